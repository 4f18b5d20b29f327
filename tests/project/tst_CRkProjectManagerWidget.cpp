// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProjectManagerWidget.h>

#include "ProjectFixture.h"
#include "support/BoxAnswerer.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkCityDateFilterWidget.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QDir>
#include <QGraphicsScene>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

/// The page as a test sees it.
class Page : public CRkProjectManagerWidget
{
public:
    template <typename T>
    T& part(const char* name) const
    {
        return *findChild<T*>(QString::fromLatin1(name));
    }
    CRkProjectManagerView& view() const { return *getProjectManagerView(); }
    CRkCityDateFilterWidget& bar() const
    {
        return part<CRkCityDateFilterWidget>("m_pCityDateSelectWidget");
    }
    QLineEdit& search() const { return part<QLineEdit>("lineEditSearch"); }

    QList<CRkGraphicsProjectRectItem*> tiles() const
    {
        QList<CRkGraphicsProjectRectItem*> tiles;
        const QList<QGraphicsItem*> items = view().scene()->items(Qt::AscendingOrder);
        for (QGraphicsItem* item : items) {
            if (auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item))
                tiles.append(tile);
        }
        return tiles;
    }
    QString names() const
    {
        QStringList names;
        for (const CRkGraphicsProjectRectItem* tile : tiles())
            names.append(tile->GetProjectName());
        names.sort();
        return names.join(',');
    }
};

void choose(const Page& page, const char* slot, const QString& text)
{
    QVERIFY(QMetaObject::invokeMethod(&page.bar(), slot, Q_ARG(QString, text)));
}

const char* const searchStyle = "border: 1px solid gray;\n"
                                "background-color: rgb(42, 42, 71);\n"
                                "color: rgb(255, 255, 255);\n"
                                "padding-left:10;\n"
                                "selection-background-color: rgb(255, 255, 255);";

using SetVisible = void (CRkProjectManagerWidget::*)(bool);

} // namespace

Q_DECLARE_METATYPE(SetVisible)

class tst_CRkProjectManagerWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void buttons_data();
    void buttons();
    void search();
    void layouts();
    void toolBarOrder();
    void keyboardOrder();
    void buttonsAreNoDefaults();
    void signalOrder();

    void newButton();
    void copyButton();
    void deleteButton();
    void searchButton();
    void buttonVisibility_data();
    void buttonVisibility();

    void conditionsAtFirst();
    void everyKeystrokeFilters();
    void cityFilters();
    void dateFilters();
    void conditionsTogether();
    void hostileKeywords_data();
    void hostileKeywords();
    void listChangeRepeatsTheStoredConditions();
    void copyIsFilteredLikeTheRest();
    void defaultConditions_data();
    void defaultConditions();

    void openedProjectIsStoredFirst();
    void projectName();
    void specifiedProjectIsNotOpened();
    void withoutView();

private:
    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<BoxAnswerer> m_answers;
    QString m_root;
};

void tst_CRkProjectManagerWidget::init()
{
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
    m_answers = std::make_unique<BoxAnswerer>();
}

void tst_CRkProjectManagerWidget::cleanup()
{
    m_answers.reset();
    m_home.reset();
}

void tst_CRkProjectManagerWidget::buttons_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QSize>("size");
    QTest::newRow("pushButtonNewProject") << "eng_new_but" << QSize(72, 33);
    QTest::newRow("m_pCopyProjectBtn") << "eng_Copy_but" << QSize(72, 33);
    QTest::newRow("m_pDeleteProjectBtn") << "eng_Delete_but" << QSize(72, 33);
    QTest::newRow("pushButtonSearch") << "eng_search_but" << QSize(40, 32);
}

void tst_CRkProjectManagerWidget::buttons()
{
    QFETCH(QString, picture);
    const Page page;
    const auto& button = page.part<QPushButton>(QTest::currentDataTag());
    QTEST(button.minimumSize(), "size");
    QTEST(button.maximumSize(), "size");
    QCOMPARE(button.text(), QString());
    QVERIFY(!button.accessibleName().isEmpty());
    QVERIFY(!button.toolTip().isEmpty());
    const QString style = button.styleSheet();
    QVERIFY(style.contains("background-color: transparent;"));
    QVERIFY(style.contains("border: none;"));
    // In this order, for a later rule wins over an earlier one.
    const QRegularExpression rules(
        QString(R"(QPushButton \{[^}]*url\(:/images/Normal/%1_nor\.png\)[^}]*\}\s*)"
                R"(QPushButton:hover[^{]*\{[^}]*url\(:/images/Normal/%1_hov\.png\)[^}]*\}\s*)"
                R"(QPushButton:pressed \{[^}]*url\(:/images/Normal/%1_per\.png\))")
            .arg(picture));
    QVERIFY2(rules.match(style).hasMatch(), qPrintable(style));
}

void tst_CRkProjectManagerWidget::search()
{
    const Page page;
    QCOMPARE(page.search().placeholderText(), QString("Search"));
    QVERIFY(page.search().isClearButtonEnabled());
    QCOMPARE(page.search().styleSheet(), QString(searchStyle));
    QCOMPARE(page.search().minimumSize(), QSize(200, 32));
    QCOMPARE(page.search().maximumWidth(), 200);
    QVERIFY(!page.search().accessibleName().isEmpty());
}

void tst_CRkProjectManagerWidget::layouts()
{
    const Page page;
    QCOMPARE(page.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(page.layout()->spacing(), 0);
    const QLayout* toolBar = page.part<QWidget>("widgetProjectManagerToolBar").layout();
    QVERIFY(qobject_cast<const QHBoxLayout*>(toolBar));
    QCOMPARE(toolBar->contentsMargins(), QMargins(0, 5, 0, 5));
    QCOMPARE(toolBar->spacing(), 0);
    QCOMPARE(page.bar().minimumWidth(), 100);
    QCOMPARE(page.view().styleSheet(), QString("background-color: rgb(240, 240, 240);"));
    QCOMPARE(page.view().objectName(), QString("graphicsView"));
}

void tst_CRkProjectManagerWidget::toolBarOrder()
{
    const Page page;
    const QLayout* toolBar = page.part<QWidget>("widgetProjectManagerToolBar").layout();
    QStringList names;
    for (int i = 0; i < toolBar->count(); ++i)
        names.append(toolBar->itemAt(i)->widget()->objectName());
    QCOMPARE(names.join(' '),
             QString("pushButtonNewProject m_pCopyProjectBtn m_pDeleteProjectBtn "
                     "m_pCityDateSelectWidget lineEditSearch pushButtonSearch"));
}

void tst_CRkProjectManagerWidget::keyboardOrder()
{
    Page page;
    page.show();
    page.activateWindow();
    QVERIFY(comesToFront(&page));
    page.search().setFocus();
    QStringList names;
    for (int i = 0; i < 8; ++i) {
        names.append(page.focusWidget()->objectName());
        QTest::keyClick(page.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names.join(' '),
             QString("lineEditSearch pushButtonSearch graphicsView pushButtonNewProject "
                     "m_pCopyProjectBtn m_pDeleteProjectBtn m_pBtnCitySelect m_pBtnDateSelect"));
}

void tst_CRkProjectManagerWidget::buttonsAreNoDefaults()
{
    // In a dialog the return key in the search field would press them.
    const Page page;
    const QList<QPushButton*> buttons = page.findChildren<QPushButton*>();
    QVERIFY(buttons.size() >= 6);
    for (const QPushButton* button : buttons)
        QVERIFY2(!button->autoDefault(), qPrintable(button->objectName()));
}

void tst_CRkProjectManagerWidget::signalOrder()
{
    const QMetaObject& meta = CRkProjectManagerWidget::staticMetaObject;
    const int conditions =
        meta.indexOfSignal("filterConditionChanged(QString,QString,QString,QString)");
    QCOMPARE(conditions, meta.methodOffset());
    QCOMPARE(meta.indexOfSignal("projectOpened(QString)"), conditions + 1);
}

void tst_CRkProjectManagerWidget::newButton()
{
    const Page page;
    page.part<QPushButton>("pushButtonNewProject").click();
    QCOMPARE(page.names(), QString("New Project"));
    QVERIFY(QFileInfo::exists(m_root + "New Project/New Project.proj"));
}

void tst_CRkProjectManagerWidget::copyButton()
{
    ProjectFixture{"Hill"}.write(m_root);
    const Page page;
    auto& button = page.part<QPushButton>("m_pCopyProjectBtn");
    button.click();
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().title, QString("Copy Project"));
    page.tiles().first()->setSelected(true);
    button.click();
    QCOMPARE(page.names(), QString("Hill,copy of Hill"));
}

void tst_CRkProjectManagerWidget::deleteButton()
{
    ProjectFixture{"Hill"}.write(m_root);
    const Page page;
    page.tiles().first()->setSelected(true);
    page.part<QPushButton>("m_pDeleteProjectBtn").click();
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().title, QString("Delete Project"));
    QCOMPARE(page.names(), QString());
}

void tst_CRkProjectManagerWidget::searchButton()
{
    // Every change of the text has filtered already.
    Page page;
    page.search().setText("hill");
    const QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    page.part<QPushButton>("pushButtonSearch").click();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(page.search().text(), QString("hill"));
}

void tst_CRkProjectManagerWidget::buttonVisibility_data()
{
    QTest::addColumn<SetVisible>("set");
    QTest::newRow("pushButtonNewProject") << &CRkProjectManagerWidget::SetNewProjectButtonVisible;
    QTest::newRow("m_pCopyProjectBtn") << &CRkProjectManagerWidget::SetCopyProjectBtnVisible;
    QTest::newRow("m_pDeleteProjectBtn") << &CRkProjectManagerWidget::SetDeleteProjectBtnVisible;
}

void tst_CRkProjectManagerWidget::buttonVisibility()
{
    QFETCH(SetVisible, set);
    Page page;
    const auto hidden = [&page] {
        QStringList names;
        for (const QPushButton* button : page.findChildren<QPushButton*>()) {
            if (button->isHidden() && !button->objectName().startsWith("qt_"))
                names.append(button->objectName());
        }
        return names;
    };
    QCOMPARE(hidden(), QStringList());
    (page.*set)(false);
    QCOMPARE(hidden(), QStringList{QTest::currentDataTag()});
    (page.*set)(true);
    QCOMPARE(hidden(), QStringList());
}

void tst_CRkProjectManagerWidget::conditionsAtFirst()
{
    ProjectFixture{"Hill"}.write(m_root);
    Page page;
    QCOMPARE(page.names(), QString("Hill"));
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    page.slotProjectListChanged();
    QCOMPARE(changed.takeFirst(), QVariantList({"", "", "", ""}));
    page.slotConditionChanged();
    QCOMPARE(changed.takeFirst(), QVariantList({"City", "Date", "", ""}));
    QCOMPARE(page.names(), QString("Hill"));
}

void tst_CRkProjectManagerWidget::everyKeystrokeFilters()
{
    for (const char* const name : {"Hill", "Hut", "Dale"})
        ProjectFixture{name}.write(m_root);
    Page page;
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    QTest::keyClicks(&page.search(), "h");
    QCOMPARE(page.names(), QString("Hill,Hut"));
    QTest::keyClicks(&page.search(), "i");
    QCOMPARE(page.names(), QString("Hill"));
    QTest::keyClick(&page.search(), Qt::Key_Backspace);
    QCOMPARE(page.names(), QString("Hill,Hut"));
    QTest::keyClick(&page.search(), Qt::Key_Backspace);
    QCOMPARE(page.names(), QString("Dale,Hill,Hut"));
    QCOMPARE(changed.size(), 4);
    QCOMPARE(changed.at(1), QVariantList({"City", "Date", "", "hi"}));
}

void tst_CRkProjectManagerWidget::cityFilters()
{
    ProjectFixture chengdu{"River"};
    chengdu.outlines.append(squareAround(30.66, 104.06));
    chengdu.write(m_root);
    ProjectFixture{"Nowhere"}.write(m_root);
    Page page;
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    choose(page, "slotCitySelected", "Chengdu");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList({"Chengdu", "Date", "", ""}));
    QCOMPARE(page.names(), QString("River"));
    choose(page, "slotCitySelected", "All");
    QCOMPARE(page.names(), QString("Nowhere,River"));
}

void tst_CRkProjectManagerWidget::dateFilters()
{
    ProjectFixture may{"May"};
    may.modified = "2026-05-03 12:00:00";
    may.write(m_root);
    ProjectFixture june{"June"};
    june.modified = "2026-06-03 12:00:00";
    june.write(m_root);
    Page page;
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    choose(page, "slotDateSelected", "2026-05-01 to 2026-05-31");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList({"City", "2026-05-01 to 2026-05-31", "", ""}));
    QCOMPARE(page.names(), QString("May"));
    choose(page, "slotDateSelected", "2026-06-03");
    QCOMPARE(page.names(), QString("June"));
    choose(page, "slotDateSelected", "Date");
    QCOMPARE(page.names(), QString("June,May"));
}

void tst_CRkProjectManagerWidget::conditionsTogether()
{
    for (const char* const name : {"Hill in May", "Dale in May"}) {
        ProjectFixture project{name};
        project.modified = "2026-05-03 12:00:00";
        project.write(m_root);
    }
    ProjectFixture june{"Hill in June"};
    june.modified = "2026-06-03 12:00:00";
    june.write(m_root);
    Page page;
    choose(page, "slotDateSelected", "2026-05-03");
    page.search().setText("hill");
    QCOMPARE(page.names(), QString("Hill in May"));
    choose(page, "slotDateSelected", "Date");
    QCOMPARE(page.names(), QString("Hill in June,Hill in May"));
}

void tst_CRkProjectManagerWidget::hostileKeywords_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("names");
    QTest::newRow("quote") << "'"
                           << "Miller's field";
    QTest::newRow("per cent") << "%"
                              << "100 % cover";
    QTest::newRow("argument mark") << "%1"
                                   << "";
    QTest::newRow("statement") << "' or '1'='1"
                               << "";
    QTest::newRow("wildcards") << ".*"
                               << "";
    QTest::newRow("blank") << " "
                           << "100 % cover,Miller's field";
    QTest::newRow("very long") << QString(30000, 'x') << "";
}

void tst_CRkProjectManagerWidget::hostileKeywords()
{
    QFETCH(QString, keyword);
    for (const char* const name : {"Miller's field", "100 % cover", "Hill"}) {
        ProjectFixture project{name};
        project.id = "plain";
        QVERIFY(!project.write(m_root).isEmpty());
    }
    Page page;
    page.search().setText(keyword);
    QTEST(page.names(), "names");
}

void tst_CRkProjectManagerWidget::listChangeRepeatsTheStoredConditions()
{
    Page page;
    page.search().setText("hill");
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    {
        const QSignalBlocker blocker(page.search());
        page.search().setText("dale");
    }
    page.slotProjectListChanged();
    QCOMPARE(changed.takeFirst(), QVariantList({"City", "Date", "", "hill"}));
    page.slotConditionChanged();
    QCOMPARE(changed.takeFirst(), QVariantList({"City", "Date", "", "dale"}));
}

void tst_CRkProjectManagerWidget::copyIsFilteredLikeTheRest()
{
    ProjectFixture{"Hill"}.write(m_root);
    ProjectFixture dale{"Dale"};
    dale.modified = "2026-06-03 12:00:00";
    dale.write(m_root);
    Page page;
    choose(page, "slotDateSelected", "2026-05-03");
    QCOMPARE(page.names(), QString("Hill"));
    page.view().slotFilterConditionChanged({}, {}, {}, "dale"); // Behind the page's back.
    page.tiles().first()->setSelected(true);
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    page.part<QPushButton>("m_pCopyProjectBtn").click();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList({"City", "2026-05-03", "", ""}));
    QCOMPARE(page.names(), QString("Hill"));
    choose(page, "slotDateSelected", "Date");
    QCOMPARE(page.names(), QString("Dale,Hill,copy of Dale"));
}

void tst_CRkProjectManagerWidget::defaultConditions_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("city");
    QTest::addColumn<QString>("names");
    QTest::newRow("none") << QString() << "All"
                          << "Nowhere,River";
    QTest::newRow("city") << "Chengdu"
                          << "Chengdu"
                          << "River";
    QTest::newRow("city that is no more") << "Atlantis"
                                          << "Atlantis"
                                          << "";
    QTest::newRow("date by hand") << "2026-05-03"
                                  << "2026-05-03"
                                  << "";
    QTest::newRow("range by hand") << "2026-5-3 to x"
                                   << "2026-5-3 to x"
                                   << "";
    QTest::newRow("marks") << "%1 '\"<b>"
                           << "%1 '\"<b>"
                           << "";
    QTest::newRow("in another language") << QStringLiteral("\u6210\u90fd") //
                                         << QStringLiteral("\u6210\u90fd") << "River";
}

void tst_CRkProjectManagerWidget::defaultConditions()
{
    QFETCH(QString, stored);
    QFETCH(QString, city);
    ProjectFixture chengdu{"River"};
    chengdu.outlines.append(squareAround(30.66, 104.06));
    chengdu.write(m_root);
    ProjectFixture{"Nowhere"}.write(m_root);
    if (!stored.isEmpty()) {
        QSettings settings(OrganizationName, "Corvel_clound");
        settings.setValue("Application/defaultcity", stored);
    }
    Page page;
    QCOMPARE(page.names(), QString("Nowhere,River"));
    QSignalSpy changed(&page, &CRkProjectManagerWidget::filterConditionChanged);
    page.loadDefaultContiditions();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList({city, "Date", "", ""}));
    QTEST(page.names(), "names");
}

void tst_CRkProjectManagerWidget::openedProjectIsStoredFirst()
{
    ProjectFixture{"Hill"}.write(m_root);
    const Page page;
    QString name;
    QString path;
    connect(&page, &CRkProjectManagerWidget::projectOpened, this, [&](const QString& file) {
        path = file;
        name = page.GetSelectProjectName();
    });
    page.tiles().first()->setSelected(true);
    page.view().slotOpenProject();
    QCOMPARE(path, m_root + "Hill/Hill.proj");
    QCOMPARE(name, path);
}

void tst_CRkProjectManagerWidget::projectName()
{
    Page page;
    QCOMPARE(page.GetSelectProjectName(), QString());
    page.SetProjectName("a");
    QCOMPARE(page.GetSelectProjectName(), QString("a"));
    page.soltGetProjectName("b");
    QCOMPARE(page.GetSelectProjectName(), QString("b"));
}

void tst_CRkProjectManagerWidget::specifiedProjectIsNotOpened()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    Page page;
    QSignalSpy opened(&page, &CRkProjectManagerWidget::projectOpened);
    page.OpenSpecifiedProject(file);
    QCOMPARE(opened.size(), 0);
    QCOMPARE(page.GetSelectProjectName(), QString());
    QCOMPARE(page.view().GetProjectName(), QString());
}

void tst_CRkProjectManagerWidget::withoutView()
{
    Page page;
    delete page.getProjectManagerView();
    QCOMPARE(page.getProjectManagerView(), nullptr);
    page.part<QPushButton>("pushButtonNewProject").click();
    page.search().setText("hill");
    page.loadDefaultContiditions();
    QVERIFY(QDir(m_root).isEmpty());
}

QTEST_MAIN(tst_CRkProjectManagerWidget)
#include "tst_CRkProjectManagerWidget.moc"
