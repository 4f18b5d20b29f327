// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What a person does with the project manager, from the first look at the projects to the block
// that the host receives, with mouse and keyboard alone.

#include <RkBaseUI/CRkProjectManagerDialog.h>

#include "BlockFixture.h"
#include "ProjectFixture.h"
#include "support/BoxAnswerer.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <RkBaseUI/SharedHelpers.h>

#include <QCalendarWidget>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>
#include <memory>

namespace {

using Tile = CRkGraphicsProjectRectItem;

void click(QWidget& widget, QPoint at)
{
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, at));
}

void click(QWidget& widget)
{
    click(widget, widget.rect().center());
}

void doubleClick(QWidget& widget, QPoint at)
{
    QWidget* window = widget.window();
    const QPoint place = widget.mapTo(window, at);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, place);
}

void clickButton(const QWidget& widget, const QString& text)
{
    const QList<QPushButton*> buttons = widget.findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&text](const auto* button) { return button->text() == text; });
    QVERIFY2(found != buttons.end(), qPrintable(text));
    click(**found);
}

/// The dialog as a person has it before himself.
class Dialog : public CRkProjectManagerDialog
{
public:
    template <typename T>
    T& part(const char* name) const
    {
        return *findChild<T*>(QString::fromLatin1(name));
    }
    void press(const char* button) const { click(part<QPushButton>(button)); }
    QString label(const char* name) const { return part<QLabel>(name).text(); }
    QString page() const
    {
        return part<QStackedWidget>("stackedWidget").currentWidget()->objectName();
    }

    CRkProjectManagerView& view() const
    {
        return *getProjectManagerWidget()->getProjectManagerView();
    }
    Tile* tile(const QString& name) const
    {
        for (QGraphicsItem* item : view().scene()->items()) {
            auto* tile = dynamic_cast<Tile*>(item);
            if (tile && tile->GetProjectName() == name)
                return tile;
        }
        return nullptr;
    }
    QPoint placeOf(const QString& name, QPointF inTile) const
    {
        return view().mapFromScene(tile(name)->mapToScene(inTile));
    }
    void clickThumbnail(const QString& name) const
    {
        click(*view().viewport(), placeOf(name, {60, 60}));
    }
    void clickCaption(const QString& name) const
    {
        click(*view().viewport(), placeOf(name, {100, 160}));
    }
    void openProject(const QString& name) const
    {
        doubleClick(*view().viewport(), placeOf(name, {60, 60}));
    }
    void openBlock(int row) const
    {
        auto& tree = part<QTreeWidget>("treeWidgetBlocks");
        doubleClick(*tree.viewport(), tree.visualItemRect(tree.topLevelItem(row)).center());
    }
    QString blockNames() const
    {
        const auto& tree = part<QTreeWidget>("treeWidgetBlocks");
        QStringList names;
        for (int i = 0; i < tree.topLevelItemCount(); ++i)
            names.append(tree.topLevelItem(i)->text(0));
        return names.join(' ');
    }

    /// The names of the projects in reading order, each found on the screen by the colour of its
    /// thumbnail: the left half of the picture at the tile's place. "?" for any other colour.
    QString seen(const QMap<QRgb, QString>& nameOfColour) const
    {
        const QImage screen = view().viewport()->grab().toImage();
        QStringList names;
        while (true) {
            const int index = names.size();
            const QPoint at =
                view().mapFromScene(45 + index % 4 * 210, 70 + index / 4 * 220); // Four in a row.
            if (!screen.rect().contains(at) || screen.pixel(at) == qRgb(240, 240, 240))
                return names.join(',');
            names.append(nameOfColour.value(screen.pixel(at), QStringLiteral("?")));
        }
    }
};

constexpr QRgb red = qRgb(200, 40, 40);
constexpr QRgb green = qRgb(40, 160, 60);
constexpr QRgb blue = qRgb(50, 80, 200);

} // namespace

class tst_MainFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup();

    void filters();
    void dateRange();
    void operations();
    void blocks();

private:
    /// A text of the library in the language of the row.
    static QString text(const char* context, const char* source)
    {
        return QCoreApplication::translate(context, source);
    }
    void writeProjects() const;
    void show();
    QWidget* openPopup(const char* button) const;
    QString seen() const { return m_dialog->seen(m_names); }

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<BoxAnswerer> m_answers;
    std::unique_ptr<Dialog> m_dialog;
    QMap<QRgb, QString> m_names = {{red, "Hill"}, {green, "River"}, {blue, "Port"}};
    QString m_root;
};

void tst_MainFlow::initTestCase_data()
{
    QTest::addColumn<QString>("translation");
    QTest::newRow("English") << QString();
    QTest::newRow("Chinese") << QStringLiteral("RkBaseUI_zh_CN");
}

void tst_MainFlow::init()
{
    QFETCH_GLOBAL(QString, translation);
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
    if (!translation.isEmpty()) {
        m_translator.reset(CreateTranslator(translation));
        QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
    }
    m_answers = std::make_unique<BoxAnswerer>();
    writeProjects();
    show();
}

void tst_MainFlow::cleanup()
{
    m_dialog.reset();
    m_answers.reset();
    m_translator.reset();
    m_home.reset();
}

void tst_MainFlow::writeProjects() const
{
    ProjectFixture hill{"Hill"};
    hill.imageData = thumbnailText(red);
    hill.modified = "2026-05-03 12:00:00";
    ProjectFixture river{"River"};
    river.imageData = thumbnailText(green);
    river.modified = "2026-06-15 23:59:59";
    river.outlines.append(squareAround(30.66, 104.06)); // Chengdu.
    ProjectFixture port{"Port"};
    port.imageData = thumbnailText(blue);
    port.modified = QDateTime::currentDateTime().toString(DateTimeSFormat);
    port.outlines.append(squareAround(39.9, 116.4)); // Beijing.
    for (const ProjectFixture& project : {hill, river, port})
        QVERIFY(!project.write(m_root).isEmpty());
}

void tst_MainFlow::show()
{
    m_dialog = std::make_unique<Dialog>();
    m_dialog->getProjectManagerWidget()->loadDefaultContiditions();
    m_dialog->move(100, 100);
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

QWidget* tst_MainFlow::openPopup(const char* button) const
{
    m_dialog->press(button);
    QWidget* popup = QApplication::activePopupWidget();
    return popup && QTest::qWaitForWindowExposed(popup) ? popup : nullptr;
}

void tst_MainFlow::filters()
{
    QSignalSpy changed(m_dialog->getProjectManagerWidget(),
                       &CRkProjectManagerWidget::filterConditionChanged);
    const QString all = text("CRkCityDateFilterWidget", "All");
    const QString noDate = text("CRkCityDateFilterWidget", "Date");
    QCOMPARE(m_dialog->label("m_pLblCity"), all);
    QCOMPARE(m_dialog->label("m_pLblDate"), noDate);
    QCOMPARE(seen().count(','), 2);

    const QString chengdu = text("CRkCitySelectWidget", "Chengdu");
    QWidget* cities = openPopup("m_pBtnCitySelect");
    QVERIFY(cities);
    clickButton(*cities, chengdu);
    QVERIFY(!cities->isVisible());
    QVERIFY(!m_dialog->part<QPushButton>("m_pBtnCitySelect").isChecked());
    QCOMPARE(changed.takeLast(), QVariantList({chengdu, noDate, "", ""}));
    QCOMPARE(m_dialog->label("m_pLblCity"), chengdu);
    QCOMPARE(seen(), QString("River"));

    cities = openPopup("m_pBtnCitySelect");
    QVERIFY(cities);
    clickButton(*cities, text("CRkCitySelectWidget", "All"));
    QCOMPARE(seen().count(','), 2);

    QWidget* dates = openPopup("m_pBtnDateSelect");
    QVERIFY(dates);
    click(*dates->findChild<QPushButton*>("pushButtonLastWeek"));
    QVERIFY(!dates->isVisible());
    QCOMPARE(seen(), QString("Port"));

    dates = openPopup("m_pBtnDateSelect");
    QVERIFY(dates);
    click(*dates->findChild<QPushButton*>("pushButtonAll"));
    QCOMPARE(m_dialog->label("m_pLblDate"), noDate);
    QCOMPARE(seen().count(','), 2);

    click(m_dialog->part<QLineEdit>("lineEditSearch"));
    QTest::keyClicks(m_dialog->focusWidget(), "R");
    QCOMPARE(seen().count(','), 1); // River and Port.
    QTest::keyClicks(m_dialog->focusWidget(), "i");
    QCOMPARE(seen(), QString("River"));
    QTest::keyClicks(m_dialog->focusWidget(), "'%");
    QCOMPARE(seen(), QString());
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Backspace);
    QCOMPARE(seen().count(','), 2);
    QCOMPARE(changed.last(), QVariantList({all, noDate, "", ""}));
}

void tst_MainFlow::dateRange()
{
    QWidget* dates = openPopup("m_pBtnDateSelect");
    QVERIFY(dates);
    auto* calendar = dates->findChild<QCalendarWidget*>("m_pCalendarWidget");
    auto* days = calendar->findChild<QTableView*>();
    // The first of a month stands in the first week that the calendar shows, or the second.
    const auto clickDay = [&](int month, int day) {
        calendar->setCurrentPage(2026, month);
        const QAbstractItemModel& model = *days->model();
        bool inMonth = false;
        for (int row = 1; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex index = model.index(row, column);
                const int number = index.data().toInt();
                inMonth = inMonth || number == 1;
                if (inMonth && number == day) {
                    click(*days->viewport(), days->visualRect(index).center());
                    return;
                }
            }
        }
        QFAIL("The calendar does not show that day.");
    };
    auto* from = dates->findChild<QLineEdit*>("lineEditDateFrom");
    auto* to = dates->findChild<QLineEdit*>("lineEditDateTo");
    click(*from);
    clickDay(5, 3);
    QCOMPARE(from->text(), QString("2026-05-03"));
    click(*to);
    clickDay(6, 15);
    QCOMPARE(to->text(), QString("2026-06-15"));
    click(*dates->findChild<QPushButton*>("pushButtonDateRangeOk"));
    QVERIFY(!dates->isVisible());
    QCOMPARE(m_dialog->label("m_pLblDate"),
             text("CRkDateSelectWidget", "%1 to %2").arg("2026-05-03", "2026-06-15"));
    QStringList names = seen().split(',');
    names.sort();
    QCOMPARE(names, QStringList({"Hill", "River"}));
}

void tst_MainFlow::operations()
{
    const QString newName = text("CRkProjectManagerView", "New Project");
    const auto file = [this](const QString& name) {
        return m_root + name + '/' + name + ProjectSuffix;
    };
    QSignalSpy renamed(&m_dialog->view(), &CRkProjectManagerView::projectRenamed);
    QSignalSpy copied(&m_dialog->view(), &CRkProjectManagerView::projectCopied);

    m_dialog->press("pushButtonNewProject");
    QVERIFY(QFileInfo::exists(file(newName)));
    QVERIFY(m_dialog->tile(newName));
    QCOMPARE(seen().count(','), 3);
    QVERIFY(seen().endsWith(",?")); // The picture of projects without one.

    m_dialog->clickCaption(newName);
    QTest::keySequence(m_dialog->focusWidget(), QKeySequence::SelectAll);
    QTest::keyClicks(m_dialog->focusWidget(), "Dale 2");
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Return);
    QCOMPARE(renamed.size(), 1);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(!QFileInfo::exists(file(newName)));
    QCOMPARE(readSql(file("Dale 2"), "select project_name from " + ProjectTableName),
             QStringList{"Dale 2"});
    QVERIFY(m_answers->boxes.isEmpty());

    m_dialog->clickThumbnail("River");
    QVERIFY(m_dialog->tile("River")->isSelected());
    m_dialog->press("m_pCopyProjectBtn");
    const QString copy = text("CRkProjectManagerView", "copy of ") + "River";
    QCOMPARE(copied.size(), 1);
    QVERIFY(QFileInfo::exists(file(copy)));
    QVERIFY(QFileInfo::exists(file("River")));
    QCOMPARE(seen().split(',').count("River"), 2);

    m_dialog->clickThumbnail("Hill");
    m_dialog->press("m_pDeleteProjectBtn");
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().title, text("CRkProjectManagerView", "Delete Project"));
    QVERIFY(!QFileInfo::exists(file("Hill")));
    QVERIFY(!seen().contains("Hill"));
    QCOMPARE(seen().count(','), 3);
}

void tst_MainFlow::blocks()
{
    BlockFixture field{"Field"};
    field.blocks = {{"b1", "south", {{"t1", 2}}}, {"b2", "north", {{"t2", 5}, {"t3", 0}}, "VTOL Light"}};
    const QString file = field.write(m_root);
    show();
    QSignalSpy projectOpened(m_dialog.get(), &CRkProjectManagerDialog::projectOpened);
    QSignalSpy blockOpened(m_dialog.get(), &CRkProjectManagerDialog::blockOpened);
    QSignalSpy wentBack(m_dialog.get(), &CRkProjectManagerDialog::backToProjectView);
    connect(m_dialog.get(), &CRkProjectManagerDialog::blockOpened, m_dialog.get(),
            &QDialog::accept);

    m_dialog->openProject("Field");
    QCOMPARE(projectOpened.size(), 1);
    QCOMPARE(projectOpened.first(), QVariantList{file});
    QCOMPARE(m_dialog->page(), QString("pageBlockManager"));
    QCOMPARE(m_dialog->GetProjectName(), QString("Field"));
    QCOMPARE(m_dialog->label("labelProjectNameOpeningBlocks"), QString("Field"));
    QCOMPARE(m_dialog->blockNames(), QString("north south"));
    QCOMPARE(m_dialog->label("labelTotalFlightCount"), QString("7"));

    auto* page = m_dialog->findChild<QWidget*>("pageBlockManager");
    click(*page->findChild<QLineEdit*>("lineEditSearch"));
    QTest::keyClicks(m_dialog->focusWidget(), "nor");
    click(*page->findChild<QPushButton*>("pushButtonSearch"));
    QCOMPARE(m_dialog->blockNames(), QString("north"));
    click(*page->findChild<QLineEdit*>("lineEditSearch"));
    QTest::keySequence(m_dialog->focusWidget(), QKeySequence::SelectAll);
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Delete);
    click(*page->findChild<QPushButton*>("pushButtonSearch"));
    QCOMPARE(m_dialog->blockNames(), QString("north south"));
    m_dialog->press("pushButtonAirplaneType");
    QCOMPARE(m_dialog->blockNames(), QString("south north"));

    m_dialog->press("pushButtonBackToProjectManager");
    QCOMPARE(wentBack.size(), 1);
    QCOMPARE(m_dialog->page(), QString("pageProjectManager"));
    QCOMPARE(seen().count(','), 3);

    m_dialog->openProject("Field");
    QCOMPARE(m_dialog->page(), QString("pageBlockManager"));
    m_dialog->openBlock(1);
    QCOMPARE(blockOpened.size(), 1);
    QCOMPARE(blockOpened.first(), QVariantList{"b1"});
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->getOpenedProjectInfo().projectFilePath, file);
}

QTEST_MAIN(tst_MainFlow)
#include "tst_MainFlow.moc"
