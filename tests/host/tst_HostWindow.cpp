// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BlockPanel.h"
#include "app/HostSettings.h"
#include "app/HostWindow.h"
#include "app/LightPanel.h"
#include "app/MapPanel.h"
#include "app/SurveyTools.h"
#include "app/SystemPage.h"
#include "app/TerrainPanel.h"
#include "app/UserBox.h"
#include "map/MapProjection.h"
#include "samples/SampleProjects.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkLightWgt.h>
#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <RkBaseUI/CRkVolumeWgt.h>
#include <RkData/CRkControl.h>
#include <RkData/ReferenceSettings.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <functional>
#include <memory>

using Close = void (*)(CRkProjectManagerDialog&);
Q_DECLARE_METATYPE(Close)
Q_DECLARE_METATYPE(HostWindow::Page)

namespace {

QString storedUser()
{
    return QSettings(QStringLiteral("RkOrganization"), QStringLiteral("RkCloud"))
        .value(QStringLiteral("UserInfo/UserID"))
        .toString();
}

void doubleClick(const QWidget& widget, QPoint at)
{
    const QWidget* window = widget.window();
    const QPoint place = widget.mapTo(window, at);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, place);
}

CRkProjectManagerView& viewOf(const CRkProjectManagerDialog& dialog)
{
    return *dialog.getProjectManagerWidget()->getProjectManagerView();
}

void openProject(const CRkProjectManagerDialog& dialog, const QString& file)
{
    QVERIFY(comesOnScreen(dialog.windowHandle()));
    CRkProjectManagerView& view = viewOf(dialog);
    const QList<QGraphicsItem*> items = view.scene()->items();
    for (QGraphicsItem* item : items) {
        const auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item);
        if (!tile || tile->GetProjectName() != QFileInfo(file).completeBaseName())
            continue;
        view.ensureVisible(item);
        doubleClick(*view.viewport(), view.mapFromScene(item->mapToScene(60, 60)));
    }
    QTRY_VERIFY(dialog.getBlockManagerWidget()->isVisible());
}

void openFirstBlock(const CRkProjectManagerDialog& dialog)
{
    const auto* blocks = dialog.getBlockManagerWidget()->findChild<QTreeWidget*>();
    QVERIFY(blocks->topLevelItemCount() > 0);
    doubleClick(*blocks->viewport(), blocks->visualItemRect(blocks->topLevelItem(0)).center());
}

void typeUser(const UserBox& box, const QString& text)
{
    QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
    box.lineEdit()->selectAll();
    QTest::keyClicks(box.lineEdit(), text);
}

/// Acts on the modal dialog that is shown next while this lives.
class RunningTool : public QObject
{
public:
    explicit RunningTool(std::function<void(QDialog&)> action)
    {
        QTimer::singleShot(0, this, [action] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            action(*dialog);
        });
    }
};

QLineEdit& field(const QDialog& dialog, const char* name)
{
    return *dialog.findChild<QLineEdit*>(QLatin1String(name));
}

} // namespace

class tst_HostWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void settingsHoldTheUser();
    void projectsButtonOpensTheDialog();
    void dialogIsOpenOnce();
    void closedDialogChangesNothing_data();
    void closedDialogChangesNothing();
    void openedBlockIsShown();
    void flightsAreCountedWhenTheBlockIsOpened();
    void usersOfTheSamplesHaveNames();
    void chosenUserGoesToTheSettings();
    void typedUserGoesToTheSettings();
    void idMayBeTheBeginningOfAnother();
    void idMayHoldQuotes_data();
    void idMayHoldQuotes();
    void userBeingTypedCountsForTheDialog();
    void windowMayGoWhileAUserIsTyped();
    void wheelDoesNotChangeTheUser();
    void anotherUserClosesTheBlock();
    void dialogListsTheProjectsOfTheUser();
    void blockOfAProjectThatIsGoneIsShown();
    void pagesAreReached_data();
    void pagesAreReached();
    void systemIsAskedWhenItsPageIsShown();
    void systemPageIsInTheLanguageOfTheWindow();
    void blockIsShownOnTheMap();
    void toolsOpenOnTheirPages();
    void toolsStandBesideTheirViews();
    void gridGetsTheKeys();
    void windowGoesWithItsTools_data();
    void windowGoesWithItsTools();
    void shortcutsReachEverything();
    void menuListsTheTools();
    void antennaHeightIsShown();
    void dismissedToolsShowNothing();
    void coordinatesAreShown_data();
    void coordinatesAreShown();
    void coordinatesBeginAtTheMiddleOfTheMap();
    void userBeingTypedCountsOnEveryPage();
    void languageMenuSwitches();
    void languageSwitchesUnderTheDialog();
    void languagesAreReplaced();
    void programKeepsItsSettingsWhereItIsTold();
    void programStartsWithTheUserOfTheSamples();

private:
    /// The file of a project that has a block with tasks.
    QString flownProject() const;
    /// Opens the project and its first block in the dialog.
    void openBlockOf(const QString& file);
    static QAction* language(const HostWindow& window, const QString& id);
    /// Of the menu of survey tools, in its order.
    static QAction* tool(const HostWindow& window, int number);

    TestHome m_home;
    std::unique_ptr<HostWindow> m_window;
};

void tst_HostWindow::initTestCase()
{
    SampleOptions samples;
    samples.root = m_home.projectRoot();
    samples.userId = sampleUserId();
    samples.now = QDateTime::currentDateTime();
    QCOMPARE(writeSampleProjects(samples).size(), 24);
}

void tst_HostWindow::init()
{
    HostSettings::setProjectRoot(m_home.projectRoot());
    HostSettings::setCurrentUser(sampleUserId());
    HostSettings::installLanguage(QStringLiteral("en"));
    ClearBlocks();
    m_window = std::make_unique<HostWindow>();
    m_window->show();
    QVERIFY(comesOnScreen(m_window.get()));
}

void tst_HostWindow::cleanup()
{
    m_window.reset();
    HostSettings::installLanguage(QStringLiteral("en"));
}

QString tst_HostWindow::flownProject() const
{
    SampleOptions samples;
    samples.userId = sampleUserId();
    samples.now = QDateTime::currentDateTime();
    for (const SampleProject& project : planSampleProjects(samples)) {
        const QString file = m_home.projectRoot() + project.name + '/' + project.name + ".proj";
        if (project.kind == SampleKind::Sound
            && QFileInfo::exists(CRkControl::GetFlightMissionFilePath(file)))
            return file;
    }
    return {};
}

void tst_HostWindow::openBlockOf(const QString& file)
{
    m_window->openProjects();
    openProject(*m_window->projectsDialog(), file);
    openFirstBlock(*m_window->projectsDialog());
    QTRY_VERIFY(!m_window->projectsDialog());
}

QAction* tst_HostWindow::language(const HostWindow& window, const QString& id)
{
    const QList<QAction*> actions =
        window.findChild<QToolButton*>(QStringLiteral("language"))->menu()->actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [&](const QAction* action) { return action->data() == id; });
    return found == actions.end() ? nullptr : *found;
}

QAction* tst_HostWindow::tool(const HostWindow& window, int number)
{
    return window.findChild<QToolButton*>(QStringLiteral("tools"))->menu()->actions().at(number);
}

void tst_HostWindow::settingsHoldTheUser()
{
    HostSettings::setCurrentUser(QStringLiteral("somebody"));
    QCOMPARE(storedUser(), QStringLiteral("somebody"));
    QCOMPARE(HostSettings::currentUser(), QStringLiteral("somebody"));
}

void tst_HostWindow::projectsButtonOpensTheDialog()
{
    QVERIFY(!m_window->projectsDialog());
    QTest::mouseClick(m_window->findChild<QToolButton*>(QStringLiteral("openProjects")),
                      Qt::LeftButton);
    CRkProjectManagerDialog* dialog = m_window->projectsDialog();
    QVERIFY(dialog && dialog->isVisible() && dialog->isModal());
    QVERIFY(dialog->getProjectManagerWidget()->isVisible());
    dialog->close();
    QTRY_VERIFY(!m_window->projectsDialog());
    m_window->blockPanel()->findChild<QPushButton*>(QStringLiteral("openProject"))->click();
    QVERIFY(m_window->projectsDialog());
}

void tst_HostWindow::dialogIsOpenOnce()
{
    m_window->openProjects();
    const QPointer<CRkProjectManagerDialog> dialog = m_window->projectsDialog();
    m_window->openProjects();
    QCOMPARE(m_window->projectsDialog(), dialog.data());
    QCOMPARE(m_window->findChildren<CRkProjectManagerDialog*>().size(), 1);
}

void tst_HostWindow::closedDialogChangesNothing_data()
{
    QTest::addColumn<Close>("close");
    QTest::newRow("button") << Close([](CRkProjectManagerDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("pushButtonCloseWindow")),
                          Qt::LeftButton);
    });
    QTest::newRow("Escape") << Close(
        [](CRkProjectManagerDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::newRow("window system")
        << Close([](CRkProjectManagerDialog& dialog) { dialog.close(); });
}

void tst_HostWindow::closedDialogChangesNothing()
{
    QFETCH(Close, close);
    const QString file = flownProject();
    openBlockOf(file);
    QTRY_VERIFY(!m_window->map()->isMoving());
    const MapView before = m_window->map()->view();
    const QString title = m_window->windowTitle();
    for (const bool isOnBlocks : {false, true}) {
        m_window->openProjects();
        if (isOnBlocks)
            openProject(*m_window->projectsDialog(), file);
        close(*m_window->projectsDialog());
        QTRY_VERIFY(!m_window->projectsDialog());
        QVERIFY(m_window->map()->view() == before);
        QVERIFY(m_window->blockPanel()->findChild<QTreeWidget*>()->isVisible());
        QCOMPARE(m_window->windowTitle(), title);
    }
}

void tst_HostWindow::openedBlockIsShown()
{
    const QString file = flownProject();
    const QString name = QFileInfo(file).completeBaseName();
    const double country = m_window->map()->view().scale;
    openBlockOf(file);
    QVERIFY(m_window->blockPanel()->findChild<QTreeWidget*>()->isVisible());
    QVERIFY(m_window->windowTitle().startsWith(name));
    QTRY_VERIFY(!m_window->map()->isMoving());
    QVERIFY(m_window->map()->view().scale > 50 * country);
}

/// The page counted them when it loaded the project; meanwhile there was another flight.
void tst_HostWindow::flightsAreCountedWhenTheBlockIsOpened()
{
    const QString file = flownProject();
    m_window->openProjects();
    CRkProjectManagerDialog* dialog = m_window->projectsDialog();
    openProject(*dialog, file);
    const QStringList tasks =
        readSql(file, QStringLiteral("select flight_task_guid from flight_task"));
    QVERIFY(!tasks.isEmpty());
    QStringList flights;
    for (const QString& task : tasks)
        flights.append(QStringLiteral("insert into flight_mission values ('new', '%1', "
                                      "'2031-01-01 00:00:00')")
                           .arg(task));
    QVERIFY(runSql(CRkControl::GetFlightMissionFilePath(file), flights));
    openFirstBlock(*dialog);
    QTRY_VERIFY(!m_window->projectsDialog());
    const auto* tree = m_window->blockPanel()->findChild<QTreeWidget*>();
    QVERIFY(tree->topLevelItemCount() > 0);
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* task = tree->topLevelItem(i);
        QCOMPARE(task->text(1).toInt(), task->childCount());
        QCOMPARE(task->child(task->childCount() - 1)->text(0),
                 QStringLiteral("2031-01-01 00:00:00"));
    }
}

void tst_HostWindow::usersOfTheSamplesHaveNames()
{
    const auto* box = m_window->findChild<UserBox*>();
    const QStringList ids = sampleUserIds();
    QCOMPARE(box->count(), ids.size());
    for (int i = 0; i < ids.size(); ++i) {
        QCOMPARE(box->itemData(i).toString(), ids[i]);
        QVERIFY(box->itemText(i).endsWith(QStringLiteral(" (%1)").arg(ids[i])));
    }
    QCOMPARE(box->currentData().toString(), sampleUserId());
    SampleOptions samples;
    samples.userId = sampleUserId();
    samples.count = 200;
    samples.now = QDateTime::currentDateTime();
    for (const SampleProject& project : planSampleProjects(samples))
        QVERIFY(project.userId.isEmpty() || ids.contains(project.userId));
}

void tst_HostWindow::chosenUserGoesToTheSettings()
{
    auto* box = m_window->findChild<UserBox*>();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(storedUser(), sampleUserIds().at(1));
}

void tst_HostWindow::typedUserGoesToTheSettings()
{
    auto* box = m_window->findChild<UserBox*>();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), QStringLiteral(" surveyor-7 "));
    QCOMPARE(storedUser(), sampleUserId()); // Not before the text is complete.
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(storedUser(), QStringLiteral("surveyor-7"));
    QCOMPARE(box->currentText(), QStringLiteral("surveyor-7"));
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), sampleUserId());
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(storedUser(), sampleUserId());
    QVERIFY2(box->currentText().contains(QLatin1Char('(')), "a known id shows its name");
}

void tst_HostWindow::idMayBeTheBeginningOfAnother()
{
    const auto* box = m_window->findChild<UserBox*>();
    const QStringList ids = {QStringLiteral("surveyor-77"), QStringLiteral("surveyor-7"),
                             QStringLiteral("Surveyor-77")};
    for (const QString& id : ids) {
        typeUser(*box, id);
        QTest::keyClick(box->lineEdit(), Qt::Key_Return);
        QCOMPARE(storedUser(), id);
        QCOMPARE(box->currentText(), id);
    }
}

void tst_HostWindow::idMayHoldQuotes_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("tiles");
    QTest::newRow("double") << "Neill \"7\"; 50 %1" << 2;
    // The dialog puts ids into its statements as they are.
    QTest::newRow("single") << "O'Neill" << 0;
}

void tst_HostWindow::idMayHoldQuotes()
{
    QFETCH(QString, id);
    SampleOptions samples;
    samples.root = m_home.path() + QStringLiteral("/quotes");
    samples.userId = id;
    samples.count = 2;
    samples.withSpecialCases = false;
    samples.now = QDateTime::currentDateTime();
    QCOMPARE(writeSampleProjects(samples).size(), 2);
    HostSettings::setProjectRoot(samples.root);
    const auto* box = m_window->findChild<UserBox*>();
    typeUser(*box, samples.userId);
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(storedUser(), samples.userId);
    m_window->openProjects();
    CRkProjectManagerView& view = viewOf(*m_window->projectsDialog());
    const auto isTile = [](const QGraphicsItem* item) {
        return dynamic_cast<const CRkGraphicsProjectRectItem*>(item) != nullptr;
    };
    const QList<QGraphicsItem*> items = view.scene()->items();
    QTEST(int(std::count_if(items.begin(), items.end(), isTile)), "tiles");
}

/// A click on the button of the projects does not take the focus.
void tst_HostWindow::userBeingTypedCountsForTheDialog()
{
    openBlockOf(flownProject());
    QApplication::setActiveWindow(m_window.get()); // Else nothing has the focus.
    typeUser(*m_window->findChild<UserBox*>(), QStringLiteral("nobody"));
    QCOMPARE(storedUser(), sampleUserId());
    QTest::mouseClick(m_window->findChild<QToolButton*>(QStringLiteral("openProjects")),
                      Qt::LeftButton);
    QCOMPARE(storedUser(), QStringLiteral("nobody"));
    QVERIFY(viewOf(*m_window->projectsDialog()).scene()->items().isEmpty());
    QVERIFY(!m_window->blockPanel()->findChild<QTreeWidget*>()->isVisible());
}

void tst_HostWindow::windowMayGoWhileAUserIsTyped()
{
    openBlockOf(flownProject());
    QApplication::setActiveWindow(m_window.get());
    typeUser(*m_window->findChild<UserBox*>(), QStringLiteral("nobody"));
    m_window.reset();
    QCOMPARE(storedUser(), QStringLiteral("nobody"));
}

void tst_HostWindow::wheelDoesNotChangeTheUser()
{
    auto* box = m_window->findChild<UserBox*>();
    const QPoint at = box->rect().center();
    QWheelEvent event(at, box->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &event);
    QCOMPARE(box->currentData().toString(), sampleUserId());
    QCOMPARE(storedUser(), sampleUserId());
}

void tst_HostWindow::anotherUserClosesTheBlock()
{
    openBlockOf(flownProject());
    auto* box = m_window->findChild<UserBox*>();
    QTest::keyClick(box, Qt::Key_Down);
    QVERIFY(!m_window->blockPanel()->findChild<QTreeWidget*>()->isVisible());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Vantrell"));
}

void tst_HostWindow::dialogListsTheProjectsOfTheUser()
{
    const auto tiles = [this] {
        m_window->openProjects();
        CRkProjectManagerDialog* dialog = m_window->projectsDialog();
        const auto count =
            dialog->getProjectManagerWidget()->getProjectManagerView()->scene()->items().size();
        dialog->close();
        // The dialog goes when the events are handled; QTRY_VERIFY cannot leave a function of a
        // number.
        const bool isGone = QTest::qWaitFor([this] { return !m_window->projectsDialog(); });
        return isGone ? int(count) : -1;
    };
    const int own = tiles();
    QVERIFY(own > 0);
    auto* box = m_window->findChild<UserBox*>();
    box->lineEdit()->setText(QStringLiteral("nobody"));
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(tiles(), 0);
}

/// Somebody else removes it while its blocks are listed.
void tst_HostWindow::blockOfAProjectThatIsGoneIsShown()
{
    const QString file = flownProject();
    m_window->openProjects();
    openProject(*m_window->projectsDialog(), file);
    const QString folder = QFileInfo(file).path();
    const QString elsewhere = m_home.path() + QStringLiteral("/elsewhere");
    QVERIFY(QDir().rename(folder, elsewhere));
    openFirstBlock(*m_window->projectsDialog());
    QTRY_VERIFY(!m_window->projectsDialog());
    QVERIFY(m_window->blockPanel()->findChild<QTreeWidget*>()->isVisible());
    QVERIFY(m_window->windowTitle().startsWith(QFileInfo(file).completeBaseName()));
    QVERIFY2(!QFileInfo::exists(folder), "nothing is made in its place");
    QVERIFY(QDir().rename(elsewhere, folder));
}

void tst_HostWindow::pagesAreReached_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<HostWindow::Page>("page");
    QTest::newRow("map") << 0 << HostWindow::Page::Map;
    QTest::newRow("terrain") << 1 << HostWindow::Page::Terrain;
    QTest::newRow("3-D view") << 2 << HostWindow::Page::Scene;
    QTest::newRow("system") << 3 << HostWindow::Page::System;
}

/// By its button, and with the focus for the keys.
void tst_HostWindow::pagesAreReached()
{
    QFETCH(int, button);
    QFETCH(HostWindow::Page, page);
    const QVector<QWidget*> pages = {m_window->map(), m_window->terrain(), m_window->scene(),
                                     m_window->systemPage()};
    QCOMPARE(m_window->page(), HostWindow::Page::Map);
    m_window->showPage(page == HostWindow::Page::Map ? HostWindow::Page::Scene
                                                     : HostWindow::Page::Map);
    QApplication::setActiveWindow(m_window.get());
    auto* bar = m_window->findChild<QToolBar*>();
    QList<QAction*> actions = bar->actions();
    actions.erase(std::remove_if(actions.begin(), actions.end(),
                                 [](const QAction* action) { return !action->isCheckable(); }),
                  actions.end());
    QCOMPARE(actions.size(), pages.size());
    QTest::mouseClick(bar->widgetForAction(actions[button]), Qt::LeftButton);
    QCOMPARE(m_window->page(), page);
    for (int i = 0; i < pages.size(); ++i) {
        QCOMPARE(pages[i]->isVisible(), i == button);
        QCOMPARE(actions[i]->isChecked(), i == button);
        QVERIFY(actions[i]->toolTip().contains(QStringLiteral("Ctrl+%1").arg(i + 1)));
        QVERIFY(!actions[i]->icon().isNull());
    }
    QVERIFY(pages[button]->hasFocus());
    QCOMPARE(m_window->blockPanel()->isVisible(), button == 0);
}

/// And not when the application starts.
void tst_HostWindow::systemIsAskedWhenItsPageIsShown()
{
    std::atomic<int> calls(0);
    HostWindow window(nullptr, [&calls] {
        ++calls;
        SystemValues values;
        values.processorName = QStringLiteral("A processor");
        return values;
    });
    window.show();
    QVERIFY(comesOnScreen(&window));
    for (const auto page : {HostWindow::Page::Terrain, HostWindow::Page::Map})
        window.showPage(page);
    QCOMPARE(int(calls), 0);
    window.showPage(HostWindow::Page::System);
    QTRY_VERIFY(window.systemPage()->plainText().contains(QStringLiteral("Name: A processor\n")));
    QCOMPARE(int(calls), 1);
}

void tst_HostWindow::systemPageIsInTheLanguageOfTheWindow()
{
    auto* bar = m_window->findChild<QToolBar*>();
    const auto isInBar = [bar](const QString& text) {
        const QList<QAction*> actions = bar->actions();
        return std::any_of(actions.begin(), actions.end(),
                           [&](const QAction* action) { return action->text() == text; });
    };
    QVERIFY(isInBar(QStringLiteral("System")));
    m_window->showPage(HostWindow::Page::System);
    QTRY_VERIFY(m_window->systemPage()->isGathered());
    QVERIFY(m_window->systemPage()->plainText().startsWith(QLatin1String("System\n")));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_VERIFY(isInBar(QString::fromUtf8("系统信息")));
    QTRY_VERIFY(m_window->systemPage()->plainText().startsWith(QString::fromUtf8("系统信息\n")));
}

void tst_HostWindow::blockIsShownOnTheMap()
{
    m_window->showPage(HostWindow::Page::Terrain);
    openBlockOf(flownProject());
    QCOMPARE(m_window->page(), HostWindow::Page::Map);
    QVERIFY(m_window->blockPanel()->findChild<QTreeWidget*>()->isVisible());
}

void tst_HostWindow::toolsOpenOnTheirPages()
{
    const SurveyTools* tools = m_window->tools();
    tool(*m_window, 0)->trigger();
    QCOMPARE(m_window->page(), HostWindow::Page::Terrain);
    QVERIFY(tools->earthwork() && tools->earthwork()->isVisible());
    QVERIFY(m_window->frameGeometry().intersects(tools->earthwork()->frameGeometry()));
    tool(*m_window, 1)->trigger();
    QCOMPARE(m_window->page(), HostWindow::Page::Scene);
    QVERIFY(tools->light() && tools->light()->isVisible());
    QVERIFY2(tools->earthwork()->isVisible(), "one does not close the other");
}

/// The page is wider than the map that was shown before.
void tst_HostWindow::toolsStandBesideTheirViews()
{
    const SurveyTools* tools = m_window->tools();
    const auto right = [](const QWidget& widget) {
        return widget.mapToGlobal(QPoint(widget.width(), 0)).x();
    };
    for (int i = 0; i < 2; ++i) {
        m_window->showPage(HostWindow::Page::Map);
        QTRY_VERIFY(m_window->blockPanel()->isVisible());
        QTRY_VERIFY(right(*m_window->map()) < right(*m_window) - 300);
        tool(*m_window, i)->trigger();
        const QWidget* window = i == 0 ? static_cast<QWidget*>(tools->earthwork()) : tools->light();
        QCOMPARE(right(*window), right(*m_window) - 16);
        QCOMPARE(window->geometry().top(),
                 m_window->centralWidget()->mapToGlobal(QPoint()).y() + 16);
        QCoreApplication::processEvents();
        QCOMPARE(right(*m_window->centralWidget()), right(*m_window));
    }
}

/// From whatever page it is asked for, it is moved by the keys at once.
void tst_HostWindow::gridGetsTheKeys()
{
    tool(*m_window, 0)->trigger();
    CRkVolumeWgt* dialog = m_window->tools()->earthwork();
    m_window->showPage(HostWindow::Page::Map);
    m_window->resize(1000, 700); // The hidden page does not see that.
    dialog->activateWindow();
    QVERIFY(comesToFront(dialog));
    QTest::keyClick(dialog->findChild<QPushButton*>(QStringLiteral("btn_grid_generate")),
                    Qt::Key_Space);
    TerrainPanel& terrain = *m_window->terrain();
    QVERIFY(terrain.grid());
    QCOMPARE(m_window->page(), HostWindow::Page::Terrain);
    QCOMPARE(terrain.view().size, QSizeF(m_window->centralWidget()->size()));
    QTRY_VERIFY(terrain.hasFocus());
    const QPointF before = terrain.grid()->centre;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QVERIFY(terrain.grid()->centre.y() > before.y());
    QTest::keyClick(m_window.get(), Qt::Key_E, Qt::ControlModifier);
    QTRY_VERIFY(dialog->isActiveWindow());
    QVERIFY2(terrain.grid(), "the window is the same");
}

void tst_HostWindow::windowGoesWithItsTools_data()
{
    QTest::addColumn<bool>("isClosedFirst");
    QTest::newRow("closed") << true;
    QTest::newRow("destroyed") << false;
}

/// Its tools do not keep the application alive, nor do they outlive it.
void tst_HostWindow::windowGoesWithItsTools()
{
    QFETCH(bool, isClosedFirst);
    tool(*m_window, 0)->trigger();
    tool(*m_window, 1)->trigger();
    const QPointer<CRkVolumeWgt> earthwork = m_window->tools()->earthwork();
    const QPointer<CRkLightWgt> light = m_window->tools()->light();
    earthwork->findChild<QPushButton*>(QStringLiteral("btn_grid_generate"))->click();
    earthwork->findChild<QPushButton*>(QStringLiteral("btn_grid_ensure"))->click();
    if (isClosedFirst) {
        QTimer::singleShot(0, m_window.get(), &QWidget::close);
        QTimer tooLate;
        connect(&tooLate, &QTimer::timeout, qApp, [] { QApplication::exit(1); });
        tooLate.start(10'000);
        QCOMPARE(QApplication::exec(), 0);
    }
    m_window.reset();
    QVERIFY(!earthwork && !light);
}

void tst_HostWindow::shortcutsReachEverything()
{
    QApplication::setActiveWindow(m_window.get());
    QTest::keyClick(m_window.get(), Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(m_window->page(), HostWindow::Page::Terrain);
    QTest::keyClick(m_window.get(), Qt::Key_3, Qt::ControlModifier);
    QCOMPARE(m_window->page(), HostWindow::Page::Scene);
    QTest::keyClick(m_window.get(), Qt::Key_4, Qt::ControlModifier);
    QCOMPARE(m_window->page(), HostWindow::Page::System);
    QTest::keyClick(m_window.get(), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(m_window->page(), HostWindow::Page::Map);
    QTest::keyClick(m_window.get(), Qt::Key_E, Qt::ControlModifier);
    QVERIFY(m_window->tools()->earthwork());
    QApplication::setActiveWindow(m_window.get());
    QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY(m_window->tools()->light());
    for (const Qt::Key key : {Qt::Key_H, Qt::Key_D}) {
        QApplication::setActiveWindow(m_window.get());
        QString title;
        const RunningTool running([&title](QDialog& dialog) {
            title = dialog.windowTitle();
            dialog.reject();
        });
        QTest::keyClick(m_window.get(), key, Qt::ControlModifier);
        QCOMPARE(title,
                 key == Qt::Key_H ? QStringLiteral("Vertical Hight Calculator")
                                  : QStringLiteral("Coordinate Format"));
    }
}

void tst_HostWindow::menuListsTheTools()
{
    QStringList texts;
    for (int i = 0; i < 4; ++i)
        texts.append(tool(*m_window, i)->text());
    QCOMPARE(texts, QStringList({"Earthwork", "Light", "Antenna height", "Coordinates"}));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(tool(*m_window, 0)->text(), QString::fromUtf8("土方量计算"));
}

void tst_HostWindow::antennaHeightIsShown()
{
    auto* result = m_window->findChild<QLabel*>(QStringLiteral("result"));
    QVERIFY(!result->isVisible());
    {
        const RunningTool running([](QDialog& dialog) {
            field(dialog, "m_pEdtP_Value2").setText(QStringLiteral("0.0942"));
            field(dialog, "m_pEdtG_Value2").setText(QStringLiteral("0.3"));
            field(dialog, "m_pEdtL_Value2").setText(QStringLiteral("1"));
            dialog.findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->click();
        });
        tool(*m_window, 2)->trigger();
    }
    QVERIFY(result->isVisible());
    QCOMPARE(result->text(), QStringLiteral("Vertical height: 1.3857 m"));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(result->text(), QString::fromUtf8("天线垂高：1.3857 m"));
}

void tst_HostWindow::dismissedToolsShowNothing()
{
    for (const int number : {2, 3}) {
        const RunningTool running([](QDialog& dialog) { dialog.reject(); });
        tool(*m_window, number)->trigger();
        QVERIFY(!m_window->findChild<QLabel*>(QStringLiteral("result"))->isVisible());
        QVERIFY(m_window->tools()->result().isEmpty());
    }
}

void tst_HostWindow::coordinatesAreShown_data()
{
    QTest::addColumn<bool>("isDms");
    QTest::addColumn<QString>("latitude");
    QTest::addColumn<QString>("longitude");
    QTest::addColumn<QString>("expected");
    QTest::newRow("decimal") << false << "39.5"
                             << "116.391234"
                             << "Coordinates: 39.50000° N  116.39123° E  =  "
                                "39° 30′ 0″ N  116° 23′ 28.4424″ E";
    QTest::newRow("degrees, minutes, seconds") << true << "39.5"
                                               << "116.391234"
                                               << "Coordinates: 39° 30′ 0″ N  116° 23′ 28.4424″ E";
    QTest::newRow("south and west, below one degree") << true << "-39.5"
                                                      << "-0.25"
                                                      << "Coordinates: 39° 30′ 0″ S  0° 15′ 0″ W";
}

void tst_HostWindow::coordinatesAreShown()
{
    QFETCH(bool, isDms);
    QFETCH(QString, latitude);
    QFETCH(QString, longitude);
    {
        const RunningTool running([&](QDialog& dialog) {
            if (isDms)
                dialog.findChild<QRadioButton*>(QStringLiteral("m_pRdoDms"))->click();
            field(dialog, "m_pEdtCoordLat").setText(latitude);
            field(dialog, "m_pEdtCoordLng").setText(longitude);
            dialog.findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->click();
        });
        tool(*m_window, 3)->trigger();
    }
    QTEST(m_window->findChild<QLabel*>(QStringLiteral("result"))->text(), "expected");
}

void tst_HostWindow::coordinatesBeginAtTheMiddleOfTheMap()
{
    openBlockOf(flownProject());
    QTRY_VERIFY(!m_window->map()->isMoving());
    const QPointF middle = MapProjection::toDegrees(m_window->map()->view().centre);
    QString latitude;
    QString longitude;
    const RunningTool running([&](QDialog& dialog) {
        latitude = field(dialog, "m_pEdtCoordLat").text();
        longitude = field(dialog, "m_pEdtCoordLng").text();
        dialog.reject();
    });
    tool(*m_window, 3)->trigger();
    QVERIFY(std::abs(latitude.toDouble() - middle.x()) < 1e-8);
    QVERIFY(std::abs(longitude.toDouble() - middle.y()) < 1e-8);
}

void tst_HostWindow::userBeingTypedCountsOnEveryPage()
{
    m_window->showPage(HostWindow::Page::Terrain);
    QApplication::setActiveWindow(m_window.get());
    typeUser(*m_window->findChild<UserBox*>(), QStringLiteral("nobody"));
    QTest::mouseClick(m_window->findChild<QToolButton*>(QStringLiteral("openProjects")),
                      Qt::LeftButton);
    QCOMPARE(storedUser(), QStringLiteral("nobody"));
}

void tst_HostWindow::languageMenuSwitches()
{
    openBlockOf(flownProject());
    const auto* open = m_window->findChild<QToolButton*>(QStringLiteral("openProjects"));
    const auto* box = m_window->findChild<UserBox*>();
    const QString english = box->currentText();
    QCOMPARE(open->text(), QStringLiteral("Projects"));

    language(*m_window, QStringLiteral("zh_CN"))->trigger();
    QTRY_COMPARE(open->text(), QString::fromUtf8("项目管理"));
    QTRY_COMPARE(m_window->map()->accessibleName(), QString::fromUtf8("地图"));
    QTRY_COMPARE(m_window->blockPanel()->findChild<QTreeWidget*>()->headerItem()->text(1),
                 QString::fromUtf8("架次"));
    QTRY_VERIFY(box->currentText() != english);
    m_window->openProjects();
    QCOMPARE(m_window->projectsDialog()->windowTitle(),
             QCoreApplication::translate("CRkProjectManagerDialog", "Open Project"));
    QVERIFY(m_window->projectsDialog()->windowTitle() != QStringLiteral("Open Project"));
    m_window->projectsDialog()->close();

    language(*m_window, QStringLiteral("en"))->trigger();
    QTRY_COMPARE(open->text(), QStringLiteral("Projects"));
    QTRY_COMPARE(box->currentText(), english);
    QCOMPARE(storedUser(), sampleUserId());
}

/// The dialog keeps the language in which it was opened, and works on.
void tst_HostWindow::languageSwitchesUnderTheDialog()
{
    m_window->openProjects();
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    openProject(*m_window->projectsDialog(), flownProject());
    HostSettings::installLanguage(QStringLiteral("en"));
    openFirstBlock(*m_window->projectsDialog());
    QTRY_VERIFY(!m_window->projectsDialog());
    QCOMPARE(m_window->blockPanel()->findChild<QTreeWidget*>()->headerItem()->text(1),
             QStringLiteral("Flights"));
}

void tst_HostWindow::languagesAreReplaced()
{
    for (int i = 0; i < 3; ++i) {
        HostSettings::installLanguage(QStringLiteral("zh_CN"));
        QCOMPARE(HostSettings::language(), QStringLiteral("zh_CN"));
        QVERIFY(QCoreApplication::translate("HostWindow", "Projects")
                != QStringLiteral("Projects"));
        HostSettings::installLanguage(QStringLiteral("en"));
        QCOMPARE(HostSettings::language(), QStringLiteral("en"));
        QCOMPARE(QCoreApplication::translate("HostWindow", "Projects"), QStringLiteral("Projects"));
    }
}

void tst_HostWindow::programKeepsItsSettingsWhereItIsTold()
{
#ifdef Q_OS_WIN
    // They lie in the registry.
    QProcess refusing;
    refusing.start(QStringLiteral(RK_SURVEY_HOST), {QStringLiteral("--settings"), m_home.path()});
    QVERIFY(refusing.waitForFinished());
    QCOMPARE(refusing.exitCode(), 1);
    QVERIFY(refusing.readAllStandardError().contains("does not keep settings in a folder"));
#else
    const QString personal = m_home.path() + QStringLiteral("/personal");
    const QString chosen = m_home.path() + QStringLiteral("/chosen");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), personal);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(RK_SURVEY_HOST),
                  {QStringLiteral("--settings"), chosen, QStringLiteral("--user"),
                   QStringLiteral("somebody"), QStringLiteral("--projects"),
                   m_home.path() + QStringLiteral("/none")});
    const QString file = QStringLiteral("/RkOrganization/RkCloud.conf");
    QTRY_VERIFY_WITH_TIMEOUT(readFile(chosen + file).contains("UserID=somebody"), 30'000);
    program.kill();
    QVERIFY(program.waitForFinished());
    QVERIFY(!QFileInfo::exists(personal + file));
#endif
}

void tst_HostWindow::programStartsWithTheUserOfTheSamples()
{
    const QString chosen = m_home.path() + QStringLiteral("/first");
    QProcess program;
    program.start(QStringLiteral(RK_SURVEY_HOST),
                  {QStringLiteral("--settings"), chosen, QStringLiteral("--projects"),
                   m_home.path() + QStringLiteral("/none")});
    QTRY_VERIFY_WITH_TIMEOUT(readFile(chosen + QStringLiteral("/RkOrganization/RkCloud.conf"))
                                 .contains("UserID=" + sampleUserId().toUtf8()),
                             30'000);
    program.kill();
    QVERIFY(program.waitForFinished());
}

QTEST_MAIN(tst_HostWindow)
#include "tst_HostWindow.moc"
