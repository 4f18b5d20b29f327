// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBlockManagerTable.h>

#include <RkAlgorthm/RkAlgorthm.h>

#include "support/WindowWaits.h"

#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>
#include <QVBoxLayout>

namespace {

const QStringList headerTexts = {"Block Name", "Airplane Type", "Camera Type", "Task Count",
                                 "Flight Count"};
const QStringList headerNames = {"pushButtonBlockName", "pushButtonAirplaneType",
                                 "pushButtonCameraType", "pushButtonTaskCount",
                                 "pushButtonFlightCount"};

/// The table as a test sees it.
class Table : public CRkBlockManagerTable
{
public:
    QTreeWidget& tree() const { return *findChild<QTreeWidget*>("treeWidgetBlocks"); }
    QPushButton& header(int column) const { return *findChild<QPushButton*>(headerNames[column]); }
    QTreeWidgetItem* row(int number) const { return tree().topLevelItem(number); }
    QTreeWidgetItem* rowNamed(const QString& name) const
    {
        return tree().findItems(name, Qt::MatchExactly).value(0);
    }

    QStringList texts(int row) const
    {
        QStringList texts;
        for (int column = 0; column < tree().columnCount(); ++column)
            texts.append(tree().topLevelItem(row)->text(column));
        return texts;
    }
    QString names() const
    {
        QStringList names;
        for (int i = 0; i < tree().topLevelItemCount(); ++i)
            names.append(row(i)->text(0));
        return names.join(' ');
    }

    void add(const QString& name, EPlaneType plane = PlaneTypeQuadrotor,
             ECameraType camera = CameraTypeThermal, int tasks = 1, int flights = 0)
    {
        AddItem("id-" + name, name, plane, camera, tasks, flights);
    }
    void addWithoutTasks(const QString& name)
    {
        add(name, PlaneTypeQuadrotor, CameraTypeThermal, 0, 3);
    }
    /// Rows whose orders by name, by aircraft and by camera all differ, and two without tasks.
    void fill()
    {
        Clear();
        addWithoutTasks("c");
        add("e", PlaneTypeQuadrotor, CameraTypeThermal); // Quadrotor, Thermal
        add("b", PlaneTypeVerticalTakeOffLight, CameraTypeLaserScanner); // VTOL, Laser
        add("f", PlaneTypeFixedWingLight, CameraTypeThermal); // Fixed, Thermal
        addWithoutTasks("a");
        add("d", PlaneTypeVerticalTakeOffLight, CameraTypeMultispectral); // VTOL, Multi
        FinishLoad();
    }
};

/// Answers one text of the table with another.
class OneText : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "CRkBlockManagerTable") == 0 && qstrcmp(source, "N/A") == 0
            ? QStringLiteral("none")
            : QString();
    }
};

} // namespace

class tst_CRkBlockManagerTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void rowWithTasks();
    void rowWithoutTasks_data();
    void rowWithoutTasks();
    void rowsAtOnce();
    void alignment();
    void finishSortsByName();
    void finishMovesRowsWithoutTasksToTheEnd();
    void finishAgain();
    void finishOfNothing();
    void notAvailableIsTranslatedOnce();
    void clear();
    void sortByPlane();
    void sortByCamera();
    void sortWithASelection();
    void sortByTheSelectedCamera();
    void selectionAndCurrentRowStay();
    void otherHeadersDoNothing();
    void rowsAfterTheDisabledOnesStay();
    void sortCalledByNobody();
    void doubleClickOpens();
    void doubleClickOnADisabledRow();
    void doubleClickOnAnUnknownRow();
    void columnWidths_data();
    void columnWidths();
    void widthsShrinkInALayout();
    void columnsStayBelowTheirHeaders();
    void newRowsAreShownFromTheFirst();
    void tenThousandRows();
    void colours();
};

/// In a language that does not sort by code units.
void tst_CRkBlockManagerTable::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English));
}

void tst_CRkBlockManagerTable::form()
{
    const Table table;
    QCOMPARE(table.windowTitle(), QString("CRkBlockManagerTable"));
    QCOMPARE(table.tree().columnCount(), 5);
    for (int column = 0; column < 5; ++column) {
        QCOMPARE(table.header(column).text(), headerTexts[column]);
        QVERIFY2(!table.header(column).autoDefault(), "Enter in a dialog presses none of them");
        QCOMPARE(table.tree().headerItem()->text(column), headerTexts[column]);
        QCOMPARE(table.tree().headerItem()->textAlignment(column), 132);
    }
    QCOMPARE(table.tree().frameShape(), QFrame::NoFrame);
    QCOMPARE(table.tree().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(!table.tree().isSortingEnabled());
    QVERIFY(table.tree().isHeaderHidden());
    QVERIFY(!table.tree().header()->isSortIndicatorShown());
    QVERIFY(!table.tree().accessibleName().isEmpty());
}

void tst_CRkBlockManagerTable::rowWithTasks()
{
    Table table;
    table.AddItem("id", "North", PlaneTypeVerticalTakeOffLight, CameraTypeFiveLens120, 12, 345);
    QCOMPARE(table.texts(0), QStringList({"North", "VTOL Light", "Five Lens 120 MP", "12", "345"}));
    QVERIFY(!table.row(0)->isDisabled());
}

void tst_CRkBlockManagerTable::rowWithoutTasks_data()
{
    QTest::addColumn<int>("taskCount");
    QTest::newRow("none") << 0;
    QTest::newRow("less than none") << -1;
}

void tst_CRkBlockManagerTable::rowWithoutTasks()
{
    QFETCH(int, taskCount);
    Table table;
    table.AddItem("id", "North", PlaneTypeQuadrotor, CameraTypeThermal, taskCount, 7);
    QCOMPARE(table.texts(0), QStringList({"North", "N/A", "N/A", "N/A", "N/A"}));
    QVERIFY2(!table.row(0)->isDisabled(), "not before the loading is finished");
    table.FinishLoad();
    QVERIFY(table.row(0)->isDisabled());
}

void tst_CRkBlockManagerTable::rowsAtOnce()
{
    Table table;
    table.add("c");
    table.AddItems({{"id-b", "b", PlaneTypeHexarotor, CameraTypeThermal, 2, 3}, {"id-a", "a"}});
    QCOMPARE(table.names(), QString("c b a"));
    QCOMPARE(table.texts(1), QStringList({"b", "Hexarotor", "Thermal", "2", "3"}));
    QCOMPARE(table.texts(2), QStringList({"a", "N/A", "N/A", "N/A", "N/A"}));
    QSignalSpy opened(&table, &CRkBlockManagerTable::signalBlockOpened);
    table.slotItemDoubleClicked(table.row(1), 0);
    QCOMPARE(opened.value(0).value(0).toString(), QString("id-b"));
    table.AddItems({});
    QCOMPARE(table.tree().topLevelItemCount(), 3);
}

void tst_CRkBlockManagerTable::alignment()
{
    Table table;
    table.fill();
    for (int row = 0; row < table.tree().topLevelItemCount(); ++row) {
        for (int column = 0; column < 5; ++column)
            QCOMPARE(table.row(row)->textAlignment(column), 132);
    }
}

void tst_CRkBlockManagerTable::finishSortsByName()
{
    Table table;
    QTreeWidget bare;
    for (const char* name : {"b", "B", "a10", "a2", "测区", "A"}) {
        table.add(name);
        new QTreeWidgetItem(&bare, {name});
    }
    QCOMPARE(table.names(), QString("b B a10 a2 测区 A"));
    table.FinishLoad();
    bare.sortByColumn(0, Qt::AscendingOrder);
    QStringList expected;
    for (int row = 0; row < bare.topLevelItemCount(); ++row)
        expected.append(bare.topLevelItem(row)->text(0));
    QCOMPARE(table.names(), expected.join(' '));
    QVERIFY(expected.indexOf("a2") < expected.indexOf("B")); // Not by code units.
}

void tst_CRkBlockManagerTable::finishMovesRowsWithoutTasksToTheEnd()
{
    Table table;
    table.fill();
    QCOMPARE(table.names(), QString("b d e f a c"));
    for (int row = 0; row < 6; ++row)
        QCOMPARE(table.row(row)->isDisabled(), row >= 4);
}

void tst_CRkBlockManagerTable::finishAgain()
{
    Table table;
    table.fill();
    table.add("0");
    table.addWithoutTasks("1");
    table.FinishLoad();
    QCOMPARE(table.names(), QString("0 b d e f 1 a c"));
    table.header(1).click();
    QCOMPARE(table.names(), QString("f 0 e b d 1 a c"));
}

void tst_CRkBlockManagerTable::finishOfNothing()
{
    Table table;
    table.FinishLoad();
    QCOMPARE(table.tree().topLevelItemCount(), 0);
    table.header(1).click();
    QCOMPARE(table.tree().topLevelItemCount(), 0);
}

void tst_CRkBlockManagerTable::notAvailableIsTranslatedOnce()
{
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    Table table;
    table.fill();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(table.names(), QString("b d e f a c"));
    QCOMPARE(table.texts(5), QStringList({"c", "none", "none", "none", "none"}));
    QVERIFY(table.row(5)->isDisabled());
}

void tst_CRkBlockManagerTable::clear()
{
    Table table;
    table.fill();
    table.Clear();
    QCOMPARE(table.tree().topLevelItemCount(), 0);
    // Nothing of the disabled rows is remembered: both new ones are sorted.
    table.add("x", PlaneTypeQuadrotor);
    table.add("y", PlaneTypeFixedWingLight);
    table.header(1).click();
    QCOMPARE(table.names(), QString("y x"));
}

void tst_CRkBlockManagerTable::sortByPlane()
{
    Table table;
    table.fill();
    table.header(1).click();
    QCOMPARE(table.names(), QString("f e b d a c"));
    table.header(1).click();
    QCOMPARE(table.names(), QString("f e b d a c"));
}

void tst_CRkBlockManagerTable::sortByCamera()
{
    Table table;
    table.fill();
    table.header(2).click();
    QCOMPARE(table.names(), QString("b d e f a c"));
    table.header(1).click();
    table.header(2).click();
    QVERIFY2(table.names() == "b d f e a c", "equal cameras keep the order by aircraft");
}

void tst_CRkBlockManagerTable::sortWithASelection()
{
    Table table;
    table.fill();
    table.rowNamed("e")->setSelected(true);
    table.header(1).click();
    QCOMPARE(table.names(), QString("e f b d a c"));

    table.tree().clearSelection();
    table.rowNamed("d")->setSelected(true);
    table.header(1).click();
    QVERIFY2(table.names() == "b d f e a c", "both of the type by name, then the others by type");
}

void tst_CRkBlockManagerTable::sortByTheSelectedCamera()
{
    Table table;
    table.fill();
    table.rowNamed("f")->setSelected(true);
    table.header(2).click();
    QCOMPARE(table.names(), QString("e f b d a c"));
}

void tst_CRkBlockManagerTable::selectionAndCurrentRowStay()
{
    Table table;
    table.fill();
    table.tree().setCurrentItem(table.rowNamed("d"));
    table.header(1).click();
    QCOMPARE(table.tree().selectedItems(), {table.rowNamed("d")});
    QCOMPARE(table.tree().currentItem(), table.rowNamed("d"));

    table.tree().clearSelection();
    table.header(2).click();
    QVERIFY(table.tree().selectedItems().isEmpty());
    QCOMPARE(table.tree().currentItem(), table.rowNamed("d"));
}

void tst_CRkBlockManagerTable::otherHeadersDoNothing()
{
    Table table;
    table.fill();
    table.header(1).click();
    table.rowNamed("e")->setSelected(true);
    for (const int column : {0, 3, 4}) {
        table.header(column).click();
        QCOMPARE(table.names(), QString("f e b d a c"));
    }
}

void tst_CRkBlockManagerTable::rowsAfterTheDisabledOnesStay()
{
    // As many rows are sorted as are enabled, from the top.
    Table table;
    table.fill();
    table.add("z", PlaneTypeFixedWingLight);
    table.header(1).click();
    QCOMPARE(table.names(), QString("f a e b d c z"));
}

void tst_CRkBlockManagerTable::sortCalledByNobody()
{
    Table table;
    table.fill();
    table.slotHeaderClicked();
    QCOMPARE(table.names(), QString("b d e f a c"));
}

void tst_CRkBlockManagerTable::doubleClickOpens()
{
    Table table;
    table.fill();
    table.resize(800, 400);
    table.show();
    QVERIFY(comesOnScreen(&table));
    QSignalSpy opened(&table, &CRkBlockManagerTable::signalBlockOpened);
    const auto doubleClick = [&](const QString& name) {
        const QPoint place = table.tree().visualItemRect(table.rowNamed(name)).center();
        QTest::mouseClick(table.tree().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(table.tree().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    };
    doubleClick("d");
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened[0][0].toString(), QString("id-d"));
    table.header(1).click();
    doubleClick("e");
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened[1][0].toString(), QString("id-e"));
    doubleClick("c");
    QVERIFY2(opened.size() == 2, "a block without tasks cannot be opened");
}

void tst_CRkBlockManagerTable::doubleClickOnADisabledRow()
{
    Table table;
    table.fill();
    QSignalSpy opened(&table, &CRkBlockManagerTable::signalBlockOpened);
    emit table.tree().itemDoubleClicked(table.rowNamed("a"), 0);
    table.slotItemDoubleClicked(table.rowNamed("c"), 4);
    table.slotItemDoubleClicked(nullptr, 0);
    QCOMPARE(opened.size(), 0);
    table.slotItemDoubleClicked(table.rowNamed("b"), 4);
    QCOMPARE(opened.size(), 1);
}

void tst_CRkBlockManagerTable::doubleClickOnAnUnknownRow()
{
    Table table;
    table.fill();
    QSignalSpy opened(&table, &CRkBlockManagerTable::signalBlockOpened);
    QTreeWidgetItem item;
    table.slotItemDoubleClicked(&item, 0);
    QCOMPARE(opened.size(), 1);
    QVERIFY(opened[0][0].toString().isEmpty());
}

void tst_CRkBlockManagerTable::columnWidths_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("columnWidth");
    QTest::newRow("a multiple of five") << 960 << 192;
    QTest::newRow("rounded down") << 964 << 192;
    QTest::newRow("more again") << 965 << 193;
}

void tst_CRkBlockManagerTable::columnWidths()
{
    QFETCH(int, width);
    QFETCH(int, columnWidth);
    Table table;
    for (int i = 0; i < 100; ++i)
        table.add(QString::number(i));
    table.FinishLoad();
    table.resize(width, 400);
    table.show();
    QVERIFY(comesOnScreen(&table));
    for (int column = 0; column < 5; ++column)
        QCOMPARE(table.tree().columnWidth(column), columnWidth);
    for (int column = 0; column < 4; ++column) {
        QCOMPARE(table.header(column).minimumWidth(), columnWidth);
        QCOMPARE(table.header(column).maximumWidth(), columnWidth);
        QCOMPARE(table.header(column).geometry().x(), column * columnWidth);
    }
    QCOMPARE(table.header(4).sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(table.header(4).sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(table.header(4).width(), width - 4 * columnWidth);
}

void tst_CRkBlockManagerTable::widthsShrinkInALayout()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* table = new Table;
    layout->addWidget(table);
    window.resize(1500, 400);
    window.show();
    QVERIFY(comesOnScreen(&window));
    QCOMPARE(table->header(0).width(), 300);
    window.resize(600, 400);
    QTRY_COMPARE(table->header(0).width(), 120);
    QCOMPARE(table->tree().columnWidth(4), 120);
}

/// More rows than there is room for.
void tst_CRkBlockManagerTable::columnsStayBelowTheirHeaders()
{
    Table table;
    for (int i = 0; i < 60; ++i)
        table.add(QString::number(100 + i));
    table.FinishLoad();
    table.resize(800, 400);
    table.show();
    QVERIFY(comesOnScreen(&table));
    QVERIFY(table.tree().verticalScrollBar()->isVisible());
    table.tree().setCurrentItem(table.row(0), 4);
    QTest::keyClick(&table.tree(), Qt::Key_Right);
    QCOMPARE(table.tree().visualItemRect(table.row(0)).x(), 0);
    table.tree().horizontalScrollBar()->setValue(5);
    QCOMPARE(table.tree().visualItemRect(table.row(0)).x(), 0);
}

void tst_CRkBlockManagerTable::newRowsAreShownFromTheFirst()
{
    Table table;
    table.resize(800, 400);
    table.show();
    QVERIFY(comesOnScreen(&table));
    for (const int count : {60, 80}) {
        table.Clear();
        for (int i = 0; i < count; ++i)
            table.add(QString::number(100 + i));
        table.FinishLoad();
        QTRY_VERIFY(table.tree().verticalScrollBar()->maximum() > 0);
        QCOMPARE(table.tree().verticalScrollBar()->value(), 0);
        table.tree().scrollToBottom();
    }
}

void tst_CRkBlockManagerTable::tenThousandRows()
{
    Table table;
    table.resize(800, 400);
    table.show();
    QVERIFY(comesOnScreen(&table));
    for (int i = 0; i < 10000; ++i) {
        table.add(QString::number(10000 + i * 7919 % 10000), EPlaneType(1 + i % 6),
                  ECameraType(1 + i % 7), i % 10 == 0 ? 0 : 1);
    }
    table.FinishLoad();
    QCOMPARE(table.row(0)->text(0), QString("10001"));
    QCOMPARE(table.row(8999)->text(0), QString("19999"));
    QCOMPARE(table.row(9000)->text(0), QString("10000"));
    table.tree().setCurrentItem(table.row(4000));
    const QString plane = table.row(4000)->text(1);
    table.header(1).click();
    QCOMPARE(table.row(0)->text(1), plane);
    QCOMPARE(table.row(9000)->text(0), QString("10000"));
    QCOMPARE(table.tree().selectedItems().size(), 1);
}

void tst_CRkBlockManagerTable::colours()
{
    Table table;
    table.fill();
    table.resize(800, 400);
    table.tree().setCurrentItem(table.rowNamed("d"));
    table.show();
    QVERIFY(comesOnScreen(&table));
    QCOMPARE(table.tree().visualItemRect(table.rowNamed("b")).height(), 39);

    const QPoint place = table.tree().visualItemRect(table.rowNamed("e")).center();
    QTest::mouseMove(table.tree().viewport(), place);
    QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table.tree().viewport(), &move);
    const auto coloursOf = [&](const QString& name) {
        const QRect row = table.tree().visualItemRect(table.rowNamed(name));
        const QImage image = table.tree().viewport()->grab(row).toImage();
        QHash<QRgb, int> counts;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ++counts[image.pixel(x, y)];
        }
        QList<QRgb> colours = counts.keys();
        std::sort(colours.begin(), colours.end(),
                  [&](QRgb a, QRgb b) { return counts[a] > counts[b]; });
        return colours;
    };
    QCOMPARE(coloursOf("b")[0], qRgb(255, 255, 255));
    QCOMPARE(coloursOf("d")[0], qRgb(37, 44, 50));
    QVERIFY(coloursOf("d").contains(qRgb(81, 162, 253)));
    QCOMPARE(coloursOf("e")[0], qRgb(220, 220, 220));
    QVERIFY(coloursOf("e").contains(qRgb(255, 255, 255)));
}

QTEST_MAIN(tst_CRkBlockManagerTable)
#include "tst_CRkBlockManagerTable.moc"
