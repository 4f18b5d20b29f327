// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkTableDelegate.h>
#include <RkBaseUI/CRkVolumeWgt.h>
#include <RkBaseUI/SharedHelpers.h>

#include "support/Brackets.h"
#include "support/WindowWaits.h"
#include "widgets/ExecAnd.h"
#include "widgets/Render.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTranslator>
#include <QWindow>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

using Map = QMap<QString, QVariant>;

template <typename T>
T& part(const QWidget& window, const char* name)
{
    return *window.findChild<T*>(QString::fromLatin1(name));
}

QTableWidget& table(const QWidget& window)
{
    return part<QTableWidget>(window, "tableWidget");
}

QComboBox& design(const QWidget& window)
{
    return part<QComboBox>(window, "comboBox_design");
}

void click(const QWidget& window, const char* button)
{
    part<QPushButton>(window, button).click();
}

QStringList texts(const QWidget& window, int row)
{
    QStringList result;
    for (int column = 0; column < table(window).columnCount(); ++column)
        result.append(table(window).item(row, column)->text());
    return result;
}

QVector<QStringList> allTexts(const QWidget& window)
{
    QVector<QStringList> rows;
    for (int row = 0; row < table(window).rowCount(); ++row)
        rows.append(texts(window, row));
    return rows;
}

QString result(const QWidget& window)
{
    return part<QTextEdit>(window, "textEdit").toPlainText();
}

QVariant point(double x, double y, double elevation)
{
    return QVariantList{x, y, elevation};
}

QVariant cell(double x, double y, double side)
{
    return QPolygonF(QVector<QPointF>{{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}});
}

/// Four points of the elevations, row by row, named after the prefix and a digit.
Map fourPoints(const QString& prefix, double x, QList<double> elevations)
{
    Map points;
    for (int i = 0; i < 4; ++i)
        points.insert(prefix + QString::number(i),
                      point(x + 20 * (i % 2), 20 * (i / 2), elevations[i]));
    return points;
}

const Map oneCell = {{"A", cell(0, 0, 20)}};

/// After `InitWgt`, with one cell of these elevations.
std::unique_ptr<CRkVolumeWgt> windowWith(const QList<double>& elevations)
{
    auto window = std::make_unique<CRkVolumeWgt>(nullptr);
    window->InitWgt();
    window->slotGridPt(fourPoints("P", 0, elevations), oneCell);
    return window;
}

/// What the window reports of a computation: excavation and fill by cell.
QVariantMap computed(CRkVolumeWgt& window)
{
    QSignalSpy complete(&window, &CRkVolumeWgt::signalVolumeComplete);
    window.slotClickDesignComputer();
    return complete.count() == 1 ? complete.first().first().toMap()
                                 : QVariantMap{{"signals", complete.count()}};
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(object, event);
    }
};

/// The library's texts in Chinese, as long as the object lives.
class Chinese
{
public:
    Chinese()
        : m_translator(CreateTranslator("RkBaseUI_zh_CN"))
    {
        QCoreApplication::installTranslator(m_translator.get());
    }
    ~Chinese() { QCoreApplication::removeTranslator(m_translator.get()); }
    Q_DISABLE_COPY(Chinese)

private:
    const std::unique_ptr<QTranslator> m_translator;
};

} // namespace

class tst_CRkVolumeWgt : public QObject
{
    Q_OBJECT

private slots:
    void metaObject();
    void frame();
    void parentedIsAWindow();
    void formObjects();
    void titleIsReadable_data();
    void titleIsReadable();
    void formColours_data();
    void formColours();
    void namesForEverybody();
    void textsAreTranslatedInTheClass();
    void headerShowsItsTexts_data();
    void headerShowsItsTexts();

    void initWgt();
    void initWgtStartsAnew();
    void initWgtLeavesHeightsAndCells();
    void gridSignals();
    void controlsWithoutEffect();
    void closing();
    void escape();

    void gridFillsTheTable();
    void gridChangesTheStage();
    void pointsInOrderOfTheirNames();
    void gridBeforeInitWgt();
    void furtherGridAppends();
    void laterRowOfANameCounts();
    void lowestOfAllGrids();
    void terrainAboveTheFirstLowest();
    void noCells();

    void planes();
    void changesAreSeen();
    void thirdModeUntranslated();
    void modesStayWhenTheLanguageChanges();
    void thirdModeInChinese();
    void editorInChinese();
    void editorLeftAsItWas_data();
    void editorLeftAsItWas();
    void loadedNumberThatIsTyped_data();
    void loadedNumberThatIsTyped();
    void editorAfterAnotherMode();
    void fieldsOfSpinBoxChanged_data();
    void fieldsOfSpinBoxChanged();

    void computesOneCell();
    void resultIsShownBeforeItIsReported();
    void computesNothing();
    void flatTerrain();
    void signOfFill();
    void roundsTheTerrainOnly();
    void sideIsReadWhenComputing();
    void repeatedComputation();
    void cellsAreSortedAndDistinct();
    void orderOfCorners();
    void cornersFromTwoGrids();
    void fewerThanFourCorners();
    void moreThanFourPoints();
    void pointsKeepTheirHeights();

    void brokenPoints_data();
    void brokenPoints();
    void elevationLostToAnotherGrid();
    void brokenCells();
    void hugeNumbers();
    void namesWithBars();
    void manyPoints();
};

void tst_CRkVolumeWgt::metaObject()
{
    const QMetaObject& meta = CRkVolumeWgt::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkBaseDialog::staticMetaObject);
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods.append((meta.method(i).methodType() == QMetaMethod::Signal ? "signal " : "slot ")
                       + QString(meta.method(i).methodSignature()));
    }
    QCOMPARE(methods,
             QStringList({"signal signalGridGenerate(double)", "signal signalClearVolume()",
                          "signal signalGridComplete()", "signal signalVolumeComplete(QVariant)",
                          "slot slotClickGroupBoxGrid(bool)", "slot slotClickGroupBoxDesign(bool)",
                          "slot slotClickGridGenerate()", "slot slotClickGridEnsure()",
                          "slot slotCurrentDesignChanged(QString)",
                          "slot slotClickDesignComputer()", "slot slotClickDesignCancel()",
                          "slot slotCloseClicked()", "slot slotGridPt(QVariantMap,QVariantMap)",
                          "slot slotSpinBoxChanged(double,QString)"}));
}

void tst_CRkVolumeWgt::frame()
{
    CRkVolumeWgt window(nullptr);
    QCOMPARE(window.windowFlags() & ~Qt::WindowFlags(Qt::WindowFullscreenButtonHint),
             Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(window.windowTitle(), QString("Earthwork measurement"));
    QCOMPARE(part<QLabel>(window, "m_pLalTitle").text(), QString("Earthwork measurement"));
    QCOMPARE(window.objectName(), QString("CRkBaseDialog"));
    window.show();
    QVERIFY(!part<QPushButton>(window, "m_pBtnOK").isVisible());
    QVERIFY(!part<QPushButton>(window, "m_pBtnCancel").isVisible());
    QVERIFY(part<QPushButton>(window, "m_pBtnClose").isVisible());
    QCOMPARE(part<QWidget>(window, "widget_2").styleSheet(),
             QString("background-color: rgba(57, 53, 92,125);\ncolor:rgb(255, 255, 255);\n"
                     "border:0px;"));
    QCOMPARE(part<QWidget>(window, "RkVolumeWgt").size(), QSize(479, 532));
    QCOMPARE(window.width(), 479);
}

void tst_CRkVolumeWgt::parentedIsAWindow()
{
    QWidget parent;
    const CRkVolumeWgt window(&parent);
    QVERIFY(window.isWindow());
    QCOMPARE(window.parentWidget(), &parent);
}

void tst_CRkVolumeWgt::formObjects()
{
    const CRkVolumeWgt window(nullptr);
    for (const char* name : {"groupBox_grid", "groupBox_design"})
        QVERIFY2(part<QGroupBox>(window, name).isCheckable(), name);
    QCOMPARE(part<QGroupBox>(window, "groupBox_grid").title(), QString("Grid"));
    QCOMPARE(part<QGroupBox>(window, "groupBox_design").title(), QString("Design"));
    const auto& side = part<QDoubleSpinBox>(window, "doubleSpinBox_grid");
    QCOMPARE(side.minimum(), 1.0);
    QCOMPARE(side.maximum(), 100000.0);
    QCOMPARE(part<QPushButton>(window, "btn_grid_generate").text(), QString("Generate"));
    QCOMPARE(part<QPushButton>(window, "btn_grid_ensure").text(), QString("Ensure"));
    QCOMPARE(part<QPushButton>(window, "btn_design_computer").text(), QString("Computer"));
    QCOMPARE(part<QPushButton>(window, "btn_design_cancel").text(), QString("Cancel"));
    QCOMPARE(table(window).columnCount(), 5);
    QStringList labels;
    for (const QLabel* label : part<QWidget>(window, "RkVolumeWgt").findChildren<QLabel*>())
        labels.append(label->text());
    labels.sort();
    QCOMPARE(labels,
             QStringList({"Drag and drop the removable mesh in the test area,\n and press the ALT "
                          "button to drag and rotate the mesh !",
                          "Elevation design:", "Grid length:"}));
    QVERIFY(!result(window).isEmpty());
    QVERIFY(!result(window).contains('\n'));
}

void tst_CRkVolumeWgt::titleIsReadable_data()
{
    addScales();
}

/// The bar is translucent, and dark all the same.
void tst_CRkVolumeWgt::titleIsReadable()
{
    QFETCH(int, scale);
    CRkVolumeWgt window(nullptr);
    const QColor bar = colorAt(rendered(window, scale), {window.width() / 2 + 60, 5});
    // 125/255 of (57, 53, 92) over (4, 21, 46).
    QVERIFY2(std::abs(bar.red() - 30) <= 1 && std::abs(bar.green() - 37) <= 1
                 && std::abs(bar.blue() - 69) <= 1,
             qPrintable(bar.name()));
    const QColor form = colorAt(rendered(window, scale), {3, 60});
    QCOMPARE(form, QColor(232, 237, 246));

    window.SetFrameHidden(true);
    QCOMPARE(colorAt(rendered(window, scale), {3, 5}), QColor(232, 237, 246));
}

void tst_CRkVolumeWgt::formColours_data()
{
    addScales();
}

void tst_CRkVolumeWgt::formColours()
{
    QFETCH(int, scale);
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt({}, {});
    window.InitWgt();
    window.show();
    auto& button = part<QPushButton>(window, "btn_grid_generate");
    QWindow* handle = window.windowHandle();
    QVERIFY(comesOnScreen(&window));
    const QPoint plate = button.mapTo(&window, QPoint(8, 12));
    const auto buttonColour = [&] { return colorAt(rendered(button, scale), {8, 12}); };
    QTest::mouseMove(handle, QPoint(20, 560));
    QCOMPARE(buttonColour(), QColor(58, 136, 244));
    const auto colourWhenEntered = [&] {
        QTest::mouseMove(handle, QPoint(20, 560));
        QTest::mouseMove(handle, plate);
        return buttonColour();
    };
    // Once more where the system's own pointer came between.
    QTRY_COMPARE(colourWhenEntered(), QColor(146, 179, 229));
    QTest::mousePress(handle, Qt::LeftButton, {}, plate);
    QCOMPARE(buttonColour(), QColor(93, 137, 207));
    QTest::mouseMove(handle, QPoint(20, 560));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(20, 560));
    QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(Qt::white));

    QCOMPARE(part<QWidget>(window, "doubleSpinBox_grid").palette().color(QPalette::Base),
             QColor(165, 165, 165));
    QCOMPARE(design(window).palette().color(QPalette::Base), QColor(165, 165, 165));

    // A white line around each box, six pixels below its top and one wide.
    auto& box = part<QGroupBox>(window, "groupBox_grid");
    const QImage image = rendered(box, scale);
    const int middle = box.width() - 40;
    QVERIFY(colorAt(image, {middle, 5}) != QColor(Qt::white));
    QCOMPARE(colorAt(image, {middle, 6}), QColor(Qt::white));
    QVERIFY(colorAt(image, {middle, 7}) != QColor(Qt::white));
    QCOMPARE(colorAt(image, {0, box.height() / 2}), QColor(Qt::white));
    QVERIFY2(colorAt(image, {0, 6}) != QColor(Qt::white), "the corner is round");
    QCOMPARE(colorAt(image, {9, 6}), QColor(Qt::white));
    QVERIFY2(colorAt(image, {10, 6}) != QColor(Qt::white), "there the title begins");
}

void tst_CRkVolumeWgt::namesForEverybody()
{
    const CRkVolumeWgt window(nullptr);
    for (const char* name : {"tableWidget", "textEdit"})
        QVERIFY2(!part<QWidget>(window, name).accessibleName().isEmpty(), name);
    QSet<QWidget*> buddies;
    for (const QLabel* label : part<QWidget>(window, "RkVolumeWgt").findChildren<QLabel*>())
        buddies.insert(label->buddy());
    QVERIFY(buddies.contains(&part<QWidget>(window, "doubleSpinBox_grid")));
    QVERIFY(buddies.contains(&part<QWidget>(window, "comboBox_design")));
}

/// Those of the form, too.
void tst_CRkVolumeWgt::textsAreTranslatedInTheClass()
{
    Brackets brackets("CRkVolumeWgt");
    QCoreApplication::installTranslator(&brackets);
    const CRkVolumeWgt untouched;
    const auto window = windowWith({10, 12, 14, 16});
    window->slotClickDesignComputer();
    QCoreApplication::removeTranslator(&brackets);

    QStringList shown = {window->windowTitle(), result(untouched)};
    const auto& form = part<QWidget>(*window, "RkVolumeWgt");
    for (const QLabel* label : form.findChildren<QLabel*>())
        shown.append(label->text());
    for (const QGroupBox* box : form.findChildren<QGroupBox*>())
        shown.append(box->title());
    for (const QPushButton* button : form.findChildren<QPushButton*>())
        shown.append(button->text());
    for (int i = 0; i < design(*window).count(); ++i)
        shown.append(design(*window).itemText(i));
    for (int column = 0; column < 5; ++column)
        shown.append(table(*window).horizontalHeaderItem(column)->text());
    for (const char* name : {"tableWidget", "textEdit"})
        shown.append(part<QWidget>(*window, name).accessibleName());
    QCOMPARE(shown.size(), 2 + 3 + 2 + 4 + 3 + 5 + 2);
    for (const QString& text : qAsConst(shown))
        QVERIFY2(text.startsWith('[') && text.endsWith(']'), qPrintable(text));
    QCOMPARE(result(*window),
             QString("[Area:]400.00m^2\n[Excavation:]200.00m^3\n[Fill:]-200.00m^3"));
}

void tst_CRkVolumeWgt::headerShowsItsTexts_data()
{
    QTest::addColumn<bool>("chinese");
    QTest::newRow("English") << false;
    QTest::newRow("Chinese") << true;
}

void tst_CRkVolumeWgt::headerShowsItsTexts()
{
    QFETCH(bool, chinese);
    const std::unique_ptr<Chinese> language(chinese ? new Chinese : nullptr);
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.show();
    const QHeaderView& header = *table(window).horizontalHeader();
    for (int column = 0; column < 5; ++column) {
        QFont font = header.font();
        font.setPixelSize(12);
        const QString text = table(window).horizontalHeaderItem(column)->text();
        for (const QString& word : text.split(' '))
            QVERIFY2(QFontMetrics(font).horizontalAdvance(word) <= 80, qPrintable(word));
    }
    QVERIFY(header.height() >= 2 * header.fontMetrics().lineSpacing());
}

void tst_CRkVolumeWgt::initWgt()
{
    CRkVolumeWgt window(nullptr);
    part<QDoubleSpinBox>(window, "doubleSpinBox_grid").setValue(7);
    window.InitWgt();
    QCOMPARE(part<QDoubleSpinBox>(window, "doubleSpinBox_grid").value(), 20.0);
    QStringList designs;
    for (int i = 0; i < design(window).count(); ++i)
        designs.append(design(window).itemText(i));
    QCOMPARE(designs, QStringList({"Average Plane", "Minimum Plane", "Custom "}));
    QCOMPARE(design(window).currentIndex(), 0);

    const QTableWidget& points = table(window);
    QCOMPARE(points.rowCount(), 0);
    QStringList headers;
    for (int column = 0; column < points.columnCount(); ++column) {
        headers.append(points.horizontalHeaderItem(column)->text());
        QCOMPARE(points.columnWidth(column), 80);
    }
    QCOMPARE(headers,
             QStringList({"Index", "Terrain Elevation", "Leveling Elevation", "Design Elevation",
                          "Construction Elevation"}));
    QCOMPARE(points.editTriggers(),
             QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
    QCOMPARE(points.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(points.selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(qobject_cast<CRkTableDelegate*>(points.itemDelegate()));

    QVERIFY(part<QGroupBox>(window, "groupBox_grid").isEnabled());
    QVERIFY(part<QGroupBox>(window, "groupBox_grid").isChecked());
    QVERIFY(!part<QGroupBox>(window, "groupBox_design").isEnabled());
    QVERIFY(!part<QGroupBox>(window, "groupBox_design").isChecked());
    QVERIFY(result(window).isEmpty());
}

void tst_CRkVolumeWgt::initWgtStartsAnew()
{
    const auto window = windowWith({10, 12, 14, 16});
    const QAbstractItemDelegate* delegate = table(*window).itemDelegate();
    design(*window).setCurrentIndex(1);
    table(*window).setColumnWidth(2, 123);
    click(*window, "btn_design_computer");
    window->InitWgt();
    QCOMPARE(design(*window).count(), 3);
    QCOMPARE(design(*window).currentIndex(), 0);
    QCOMPARE(table(*window).rowCount(), 0);
    QCOMPARE(table(*window).columnWidth(2), 80);
    QCOMPARE(table(*window).itemDelegate(), delegate);
    QVERIFY(result(*window).isEmpty());
    QVERIFY(part<QGroupBox>(*window, "groupBox_grid").isEnabled());
    QVERIFY(!part<QGroupBox>(*window, "groupBox_design").isEnabled());

    // The delegate is the window's still.
    window->slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), oneCell);
    QCOMPARE(table(*window).rowCount(), 4);
    emit qobject_cast<CRkTableDelegate*>(table(*window).itemDelegate())
        ->signalSpinBoxChanged(9, "2|3");
    QCOMPARE(texts(*window, 2).last(), QString("5.00"));
}

void tst_CRkVolumeWgt::initWgtLeavesHeightsAndCells()
{
    const auto window = windowWith({10, 10, 10, 10});
    window->slotSpinBoxChanged(6, "2|3");
    const QVariantMap before = computed(*window);
    window->InitWgt();
    QCOMPARE(computed(*window), before);
    QCOMPARE(before.value("A").toList().first().toDouble(), 400.0 * 4 / 6);
}

void tst_CRkVolumeWgt::gridSignals()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    QSignalSpy generate(&window, &CRkVolumeWgt::signalGridGenerate);
    QSignalSpy complete(&window, &CRkVolumeWgt::signalGridComplete);
    click(window, "btn_grid_generate");
    QCOMPARE(generate.count(), 1);
    QCOMPARE(generate.first().first().toDouble(), 20.0);
    part<QDoubleSpinBox>(window, "doubleSpinBox_grid").setValue(7.25);
    click(window, "btn_grid_generate");
    QCOMPARE(generate.last().first().toDouble(), 7.25);
    QCOMPARE(complete.count(), 0);

    click(window, "btn_grid_ensure");
    QCOMPARE(complete.count(), 1);
    QCOMPARE(generate.count(), 2);
    QVERIFY(part<QGroupBox>(window, "groupBox_grid").isEnabled());
}

void tst_CRkVolumeWgt::controlsWithoutEffect()
{
    const auto window = windowWith({10, 12, 14, 16});
    QSignalSpy generate(window.get(), &CRkVolumeWgt::signalGridGenerate);
    QSignalSpy complete(window.get(), &CRkVolumeWgt::signalGridComplete);
    QSignalSpy clear(window.get(), &CRkVolumeWgt::signalClearVolume);
    QSignalSpy volumes(window.get(), &CRkVolumeWgt::signalVolumeComplete);
    const auto before = allTexts(*window);
    window->show();
    click(*window, "btn_design_cancel");
    for (const bool checked : {true, false}) {
        window->slotClickGroupBoxGrid(checked);
        window->slotClickGroupBoxDesign(checked);
    }
    QCOMPARE(allTexts(*window), before);
    QVERIFY(window->isVisible());
    QCOMPARE(generate.count() + complete.count() + clear.count() + volumes.count(), 0);
}

void tst_CRkVolumeWgt::closing()
{
    CRkVolumeWgt window(nullptr);
    int clears = 0;
    bool wasVisible = false;
    connect(&window, &CRkVolumeWgt::signalClearVolume, this, [&] {
        ++clears;
        wasVisible = window.isVisible();
    });
    QCOMPARE(execAnd(window, [&] { click(window, "m_pBtnClose"); }), -1);
    QCOMPARE(clears, 1);
    QVERIFY2(wasVisible, "the host clears its map before the window goes");
    QVERIFY(!window.isVisible());
}

void tst_CRkVolumeWgt::escape()
{
    CRkVolumeWgt window(nullptr);
    QSignalSpy clear(&window, &CRkVolumeWgt::signalClearVolume);
    QCOMPARE(execAnd(window, [&] { QTest::keyClick(&window, Qt::Key_Escape); }), 0);
    QCOMPARE(clear.count(), 0);
    window.show();
    window.close();
    QCOMPARE(clear.count(), 0);
}

void tst_CRkVolumeWgt::gridFillsTheTable()
{
    const auto window = windowWith({10, 12, 14, 16.126});
    QCOMPARE(allTexts(*window),
             QVector<QStringList>({{"P0", "10.00", "13.03", "13.03", "-3.03"},
                                   {"P1", "12.00", "13.03", "13.03", "-1.03"},
                                   {"P2", "14.00", "13.03", "13.03", "0.97"},
                                   {"P3", "16.13", "13.03", "13.03", "3.10"}}));
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 5; ++column) {
            const QTableWidgetItem* item = table(*window).item(row, column);
            QCOMPARE(item->textAlignment(), int(Qt::AlignHCenter | Qt::AlignVCenter));
            QVERIFY(!(item->flags() & Qt::ItemIsEditable));
            QVERIFY(item->flags() & Qt::ItemIsEnabled);
            QVERIFY(item->flags() & Qt::ItemIsSelectable);
        }
    }
}

void tst_CRkVolumeWgt::gridChangesTheStage()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    design(window).setEnabled(false);
    window.slotGridPt({}, {});
    QVERIFY(!part<QGroupBox>(window, "groupBox_grid").isEnabled());
    QVERIFY(!part<QGroupBox>(window, "groupBox_grid").isChecked());
    QVERIFY(part<QGroupBox>(window, "groupBox_design").isEnabled());
    QVERIFY(part<QGroupBox>(window, "groupBox_design").isChecked());
    QVERIFY(design(window).isEnabled());
    QVERIFY(part<QPushButton>(window, "btn_design_computer").isEnabled());
    QVERIFY(!part<QPushButton>(window, "btn_grid_generate").isEnabled());
}

void tst_CRkVolumeWgt::pointsInOrderOfTheirNames()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt({{"b", point(0, 0, 2)},
                       {"10", point(1, 0, 3)},
                       {"9", point(2, 0, 4)},
                       {"B", point(3, 0, 5)}},
                      {});
    QStringList names;
    for (const QStringList& row : allTexts(window))
        names.append(row.first());
    QCOMPARE(names, QStringList({"10", "9", "B", "b"}));
}

void tst_CRkVolumeWgt::furtherGridAppends()
{
    const auto window = windowWith({10, 12, 14, 16});
    window->slotGridPt(fourPoints("N", 100, {20, 20, 24, 24}), {{"B", cell(100, 0, 20)}});
    QCOMPARE(table(*window).rowCount(), 8);
    QCOMPARE(texts(*window, 0), QStringList({"P0", "10.00", "22.00", "22.00", "-12.00"}));
    QCOMPARE(texts(*window, 4), QStringList({"N0", "20.00", "22.00", "22.00", "-2.00"}));
    QCOMPARE(computed(*window).keys(), QStringList({"A", "B"}));
    QCOMPARE(result(*window), QString("Area:800.00m^2\nExcavation:200.00m^3\nFill:-3800.00m^3"));
    design(*window).setCurrentIndex(1);
    computed(*window);
    QCOMPARE(result(*window), QString("Area:800.00m^2\nExcavation:5760.00m^3\nFill:0.00m^3"));
}

void tst_CRkVolumeWgt::laterRowOfANameCounts()
{
    const auto window = windowWith({10, 12, 14, 16});
    window->slotGridPt(fourPoints("P", 0, {20, 20, 24, 24}), oneCell);
    design(*window).setCurrentIndex(1); // Over 10: 10, 10, 14 and 14.
    QCOMPARE(computed(*window).value("A").toList(), QVariantList({4800.0, 0.0}));
}

/// There is no mode yet that would write a design.
void tst_CRkVolumeWgt::gridBeforeInitWgt()
{
    CRkVolumeWgt window(nullptr);
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), oneCell);
    QCOMPARE(texts(window, 1), QStringList({"P1", "12.00", "13.00", "", ""}));
    QCOMPARE(computed(window).value("A").toList(), QVariantList({0.0, 0.0}));
    window.InitWgt();
    QCOMPARE(table(window).rowCount(), 0);
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), oneCell);
    QCOMPARE(texts(window, 1), QStringList({"P1", "12.00", "13.00", "13.00", "-1.00"}));
}

void tst_CRkVolumeWgt::lowestOfAllGrids()
{
    const auto window = windowWith({10, 12, 14, 16});
    window->InitWgt();
    window->slotGridPt(fourPoints("N", 100, {30, 31, 32, 33}), {{"B", cell(100, 0, 20)}});
    design(*window).setCurrentIndex(1);
    QCOMPARE(texts(*window, 1), QStringList({"N1", "31.00", "31.50", "10.00", "21.00"}));
    window->slotGridPt(fourPoints("O", 200, {-3.5, 31, 32, 33}), {{"C", cell(200, 0, 20)}});
    QCOMPARE(texts(*window, 1).mid(3), QStringList({"-3.50", "34.50"}));
}

void tst_CRkVolumeWgt::terrainAboveTheFirstLowest()
{
    const auto window = windowWith({10010, 10020, 10030, 10040});
    design(*window).setCurrentIndex(1);
    QCOMPARE(texts(*window, 0).mid(3), QStringList({"10000.00", "10.00"}));
}

void tst_CRkVolumeWgt::noCells()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), {});
    QCOMPARE(texts(window, 3), QStringList({"P3", "16.00", "0.00", "0.00", "16.00"}));
}

void tst_CRkVolumeWgt::planes()
{
    const auto window = windowWith({10, 12, 14, 16});
    const auto average = allTexts(*window);
    QCOMPARE(average[0].mid(2), QStringList({"13.00", "13.00", "-3.00"}));
    click(*window, "btn_design_computer");
    const QString before = result(*window);

    design(*window).setCurrentText("Minimum Plane");
    QCOMPARE(texts(*window, 0), QStringList({"P0", "10.00", "13.00", "10.00", "0.00"}));
    QCOMPARE(texts(*window, 3), QStringList({"P3", "16.00", "13.00", "10.00", "6.00"}));
    QCOMPARE(result(*window), before);
    // 20 x 20 x (2 + 4 + 6) / 10, because the lone corner is at zero.
    QCOMPARE(computed(*window).value("A").toList(), QVariantList({2 * 400.0 * 12 / 10, 0.0}));

    design(*window).setCurrentText("Average Plane");
    QCOMPARE(allTexts(*window), average);
    click(*window, "btn_design_computer");
    QCOMPARE(result(*window), before);
}

/// The items do not report their changes one by one.
void tst_CRkVolumeWgt::changesAreSeen()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt({}, {});
    window.show();
    QVERIFY(comesOnScreen(&window));
    QCoreApplication::processEvents();

    PaintCounter paints(*table(window).viewport());
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), oneCell);
    QTRY_VERIFY(paints.count > 0);
    QCoreApplication::processEvents();

    paints.count = 0;
    design(window).setCurrentIndex(1);
    QTRY_VERIFY(paints.count > 0);
}

/// The entry has a blank at its end, and the mode has none.
void tst_CRkVolumeWgt::thirdModeUntranslated()
{
    for (const int earlier : {0, 1}) {
        const auto window = windowWith({10, 12, 14, 16});
        design(*window).setCurrentIndex(earlier);
        const auto before = allTexts(*window);
        const QVariantMap volumes = computed(*window);
        design(*window).setCurrentIndex(2);
        QCOMPARE(design(*window).currentText(), QString("Custom "));
        QCOMPARE(allTexts(*window), before);
        for (int row = 0; row < 4; ++row) {
            const QTableWidgetItem* item = table(*window).item(row, 3);
            QVERIFY(!(item->flags() & Qt::ItemIsEditable));
            QVERIFY(!item->data(Qt::UserRole).isValid());
            QVERIFY(item->statusTip().isEmpty());
        }
        QCOMPARE(computed(*window), volumes);
    }
    // A grid that comes then has no heights yet.
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    design(window).setCurrentIndex(2);
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), oneCell);
    QCOMPARE(texts(window, 1), QStringList({"P1", "12.00", "13.00", "", ""}));
    QCOMPARE(computed(window).value("A").toList(), QVariantList({0.0, 0.0}));
    // One height, and three that are missing: a triangle of 20 x 20 x 6 / 6.
    window.slotSpinBoxChanged(4, "0|3");
    QCOMPARE(computed(window).value("A").toList(), QVariantList({400.0, 0.0}));
}

/// The window keeps the texts in which its modes are offered.
void tst_CRkVolumeWgt::modesStayWhenTheLanguageChanges()
{
    CRkVolumeWgt window;
    window.InitWgt();
    const Chinese chinese;
    QVERIFY(CRkVolumeWgt::tr("Average Plane") != "Average Plane");
    QCOMPARE(design(window).currentText(), QString("Average Plane"));
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), {{"A", cell(0, 0, 20)}});
    QCOMPARE(texts(window, 0), QStringList({"P0", "10.00", "13.00", "13.00", "-3.00"}));
    design(window).setCurrentIndex(1);
    QCOMPARE(texts(window, 0), QStringList({"P0", "10.00", "13.00", "10.00", "0.00"}));
}

void tst_CRkVolumeWgt::thirdModeInChinese()
{
    const Chinese chinese;
    const auto window = windowWith({10, 12, 14, 16});
    QCOMPARE(CRkVolumeWgt::tr("Custom "), CRkVolumeWgt::tr("Custom"));
    QVERIFY(CRkVolumeWgt::tr("Custom") != "Custom");
    const auto before = allTexts(*window);
    const QVariantMap volumes = computed(*window);
    design(*window).setCurrentIndex(2);
    QCOMPARE(allTexts(*window), before);
    QCOMPARE(computed(*window), volumes);
    for (int row = 0; row < 4; ++row) {
        const QTableWidgetItem* item = table(*window).item(row, 3);
        QVERIFY(item->flags() & Qt::ItemIsEditable);
        QCOMPARE(item->data(Qt::UserRole), QVariant(QStringList(QString())));
        QCOMPARE(item->statusTip(), QString("%1|3").arg(row));
        for (const int column : {0, 1, 2, 4})
            QVERIFY(!(table(*window).item(row, column)->flags() & Qt::ItemIsEditable));
    }
    QVERIFY(result(*window).startsWith(CRkVolumeWgt::tr("Area:") + "400.00m^2\n"));

    // A grid that comes then waits for its design elevations.
    window->slotGridPt(fourPoints("N", 100, {20, 20, 20, 20}), {{"B", cell(100, 0, 20)}});
    QCOMPARE(texts(*window, 5), QStringList({"N1", "20.00", "20.00", "", ""}));
    QCOMPARE(texts(*window, 1), QStringList({"P1", "12.00", "20.00", "13.00", "-1.00"}));
    QVERIFY(table(*window).item(5, 3)->flags() & Qt::ItemIsEditable);
    QCOMPARE(table(*window).item(5, 3)->statusTip(), QString("5|3"));
    QCOMPARE(computed(*window).value("A"), volumes.value("A"));
    QCOMPARE(computed(*window).value("B").toList(), QVariantList({0.0, 0.0}));
}

void tst_CRkVolumeWgt::editorInChinese()
{
    const Chinese chinese;
    const auto window = windowWith({10, 12, 14, 16});
    design(*window).setCurrentIndex(2);
    window->show();
    QVERIFY(comesOnScreen(window.get()));
    QTableWidget& points = table(*window);
    const auto before = allTexts(*window);
    const auto openEditor = [&] {
        points.setCurrentCell(2, 3);
        points.editItem(points.item(2, 3));
        return points.viewport()->findChild<QDoubleSpinBox*>("2|3");
    };

    QDoubleSpinBox* editor = openEditor();
    QVERIFY(editor);
    QCOMPARE(editor->value(), 13.0);
    QCOMPARE(editor->minimum(), 0.0);
    QCOMPARE(allTexts(*window), before);

    editor->setValue(9.5);
    QCOMPARE(texts(*window, 2), QStringList({"P2", "14.00", "13.00", "13.00", "4.50"}));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!points.viewport()->findChild<QDoubleSpinBox*>("2|3"));
    QCOMPARE(points.item(2, 3)->data(Qt::EditRole).toDouble(), 9.5);
    QCOMPARE(points.itemDelegate()->metaObject()->className(), "CRkTableDelegate");
    // Heights -3, -1, 4.5 and 3 now.
    const rk::CellVolume expected = rk::cellVolume({-3, -1, 4.5, 3}, 20);
    QCOMPARE(computed(*window).value("A").toList(),
             QVariantList({expected.excavation, expected.fill}));

    // Once more, with what is in the cell now. Escape takes back nothing but the cell.
    editor = openEditor();
    QVERIFY(editor);
    QCOMPARE(editor->value(), 9.5);
    editor->setValue(3);
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!points.viewport()->findChild<QDoubleSpinBox*>("2|3"));
    QVERIFY(window->isVisible());
    QCOMPARE(texts(*window, 2), QStringList({"P2", "14.00", "13.00", "9.5", "11.00"}));
    const rk::CellVolume after = rk::cellVolume({-3, -1, 11, 3}, 20);
    QCOMPARE(computed(*window).value("A").toList(), QVariantList({after.excavation, after.fill}));
}

void tst_CRkVolumeWgt::loadedNumberThatIsTyped_data()
{
    QTest::addColumn<bool>("isEmpty");
    QTest::addColumn<int>("key");
    for (const auto& key :
         {std::make_pair("Tab", Qt::Key_Tab), std::make_pair("Return", Qt::Key_Return)}) {
        QTest::addRow("below the range, %s", key.first) << false << int(key.second);
        QTest::addRow("nothing yet, %s", key.first) << true << int(key.second);
    }
}

/// The editor begins with 0, where the cell has another number or none.
void tst_CRkVolumeWgt::loadedNumberThatIsTyped()
{
    QFETCH(bool, isEmpty);
    QFETCH(int, key);
    const Chinese chinese;
    const auto window = std::make_unique<CRkVolumeWgt>(nullptr);
    window->InitWgt();
    if (isEmpty)
        design(*window).setCurrentIndex(2);
    window->slotGridPt(fourPoints("P", 0, {-10, -12, -14, -16}), oneCell);
    design(*window).setCurrentIndex(2);
    window->show();
    QVERIFY(comesOnScreen(window.get()));
    QTableWidget& points = table(*window);
    points.setCurrentCell(2, 3);
    points.editItem(points.item(2, 3));
    auto* editor = points.viewport()->findChild<QDoubleSpinBox*>("2|3");
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_0);
    QTest::keyClick(editor, Qt::Key(key));
    QTRY_VERIFY(!points.viewport()->findChild<QDoubleSpinBox*>("2|3"));
    QCOMPARE(points.item(2, 3)->data(Qt::EditRole), QVariant(0.0));
    QCOMPARE(points.item(2, 4)->text(), QString("-14.00"));
}

/// The design elevation is below what the editor can show.
void tst_CRkVolumeWgt::editorLeftAsItWas_data()
{
    QTest::addColumn<QList<double>>("elevations");
    QTest::addColumn<int>("key");
    for (const auto& key :
         {std::make_pair("Tab", Qt::Key_Tab), std::make_pair("Return", Qt::Key_Return),
          std::make_pair("Enter", Qt::Key_Enter)}) {
        QTest::addRow("below the range, %s", key.first)
            << QList<double>{-10, -12, -14, -16} << int(key.second);
        // The average is 11.5025.
        QTest::addRow("more digits than are shown, %s", key.first)
            << QList<double>{10, 12, 14, 10.01} << int(key.second);
    }
}

void tst_CRkVolumeWgt::editorLeftAsItWas()
{
    QFETCH(QList<double>, elevations);
    QFETCH(int, key);
    const Chinese chinese;
    const auto window = windowWith(elevations);
    design(*window).setCurrentIndex(2);
    window->show();
    QVERIFY(comesOnScreen(window.get()));
    QTableWidget& points = table(*window);
    const auto before = allTexts(*window);
    const QVariantMap volumes = computed(*window);
    points.setCurrentCell(2, 3);
    points.editItem(points.item(2, 3));
    auto* editor = points.viewport()->findChild<QDoubleSpinBox*>("2|3");
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key(key));
    QTRY_VERIFY(!points.viewport()->findChild<QDoubleSpinBox*>("2|3"));
    QCOMPARE(allTexts(*window), before);
    QCOMPARE(computed(*window), volumes);
}

void tst_CRkVolumeWgt::editorAfterAnotherMode()
{
    const Chinese chinese;
    const auto window = windowWith({10, 12, 14, 16});
    design(*window).setCurrentIndex(2);
    window->slotSpinBoxChanged(5, "0|3");
    design(*window).setCurrentIndex(1);
    QCOMPARE(texts(*window, 0), QStringList({"P0", "10.00", "13.00", "10.00", "0.00"}));
    QVERIFY(!(table(*window).item(0, 3)->flags() & Qt::ItemIsEditable));
    QCOMPARE(computed(*window).value("A").toList().first().toDouble(), 960.0);
}

void tst_CRkVolumeWgt::fieldsOfSpinBoxChanged_data()
{
    QTest::addColumn<QString>("cellName");
    QTest::addColumn<int>("row");
    QTest::newRow("row and column") << "1|3" << 1;
    QTest::newRow("column is not looked at") << "1|4" << 1;
    QTest::newRow("nor whether it is a number") << "1|x" << 1;
    QTest::newRow("empty parts are skipped") << "||2||3" << 2;
    QTest::newRow("more parts") << "3|3|3" << 3;
    QTest::newRow("no column") << "1" << -1;
    QTest::newRow("empty column") << "1|" << -1;
    QTest::newRow("no row") << "|3" << -1;
    QTest::newRow("nothing") << "" << -1;
    QTest::newRow("bars alone") << "|||" << -1;
    QTest::newRow("row behind the last") << "4|3" << -1;
    QTest::newRow("negative row") << "-1|3" << -1;
    QTest::newRow("row is no number") << "x|3" << -1;
    QTest::newRow("row too large for a number") << "99999999999|3" << -1;
}

void tst_CRkVolumeWgt::fieldsOfSpinBoxChanged()
{
    QFETCH(QString, cellName);
    QFETCH(int, row);
    const auto window = windowWith({10, 12, 14, 16});
    auto expected = allTexts(*window);
    const QVariantMap before = computed(*window);
    window->slotSpinBoxChanged(20.255, cellName);
    if (row >= 0)
        expected[row][4] = QString::number(10 + 2 * row - 20.255, 'f', 2);
    QCOMPARE(allTexts(*window), expected);
    QCOMPARE(computed(*window) != before, row >= 0);
}

void tst_CRkVolumeWgt::computesOneCell()
{
    const auto window = windowWith({10, 12, 14, 16});
    // Heights -3, -1, 1, 3. Zero points from the upper side: 20 x 1/4 = 5 and 20 x 3/4 = 15, so
    // each trapezium is half of the square, and (5 + 15) x 20 x 4 / 8 = 200.
    QCOMPARE(computed(*window), QVariantMap({{"A", QVariantList{200.0, -200.0}}}));
    QCOMPARE(result(*window), QString("Area:400.00m^2\nExcavation:200.00m^3\nFill:-200.00m^3"));
}

void tst_CRkVolumeWgt::resultIsShownBeforeItIsReported()
{
    const auto window = windowWith({10, 12, 14, 16});
    QString shown;
    connect(window.get(), &CRkVolumeWgt::signalVolumeComplete, this,
            [&] { shown = result(*window); });
    window->slotClickDesignComputer();
    QCOMPARE(shown, QString("Area:400.00m^2\nExcavation:200.00m^3\nFill:-200.00m^3"));
}

void tst_CRkVolumeWgt::computesNothing()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt({}, {});
    QVERIFY(computed(window).isEmpty());
    QCOMPARE(result(window), QString("Area:0.00m^2\nExcavation:0.00m^3\nFill:0.00m^3"));
}

void tst_CRkVolumeWgt::flatTerrain()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    Map points;
    Map cells;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            points.insert(QString("P%1%2").arg(row).arg(column),
                          point(20 * column, 20 * row, 31.25));
            if (row < 3 && column < 3)
                cells.insert(QString("C%1%2").arg(row).arg(column),
                             cell(20 * column, 20 * row, 20));
        }
    }
    window.slotGridPt(points, cells);
    QCOMPARE(texts(window, 5), QStringList({"P11", "31.25", "31.25", "31.25", "0.00"}));
    const QVariantMap volumes = computed(window);
    QCOMPARE(volumes.size(), 9);
    for (const QVariant& volume : volumes)
        QCOMPARE(volume.toList(), QVariantList({0.0, 0.0}));
    QCOMPARE(result(window), QString("Area:3600.00m^2\nExcavation:0.00m^3\nFill:0.00m^3"));
}

void tst_CRkVolumeWgt::signOfFill()
{
    const auto window = windowWith({10, 10, 10, 10});
    part<QDoubleSpinBox>(*window, "doubleSpinBox_grid").setValue(1);
    for (int row = 0; row < 4; ++row)
        window->slotSpinBoxChanged(22.5, QString("%1|3").arg(row));
    QCOMPARE(computed(*window).value("A").toList(), QVariantList({0.0, -12.5}));
    QCOMPARE(result(*window), QString("Area:1.00m^2\nExcavation:0.00m^3\nFill:-12.50m^3"));
}

/// Heights come from the elevations in the table, which have two decimals, and from the design
/// planes, which have all.
void tst_CRkVolumeWgt::roundsTheTerrainOnly()
{
    const auto window = windowWith({10.004, 10.004, 10.004, 10.012});
    QCOMPARE(texts(*window, 0), QStringList({"P0", "10.00", "10.01", "10.01", "-0.01"}));
    const double average = (10.004 + 10.004 + 10.004 + 10.012) / 4;
    const rk::CellVolume expected =
        rk::cellVolume({10.00 - average, 10.00 - average, 10.00 - average, 10.01 - average}, 20);
    const QVariantList actual = computed(*window).value("A").toList();
    QVERIFY(std::fabs(actual[0].toDouble() - expected.excavation) < 1e-9);
    QVERIFY(std::fabs(actual[1].toDouble() - expected.fill) < 1e-9);
    QVERIFY(actual[0].toDouble() > 0);
}

void tst_CRkVolumeWgt::sideIsReadWhenComputing()
{
    const auto window = windowWith({10, 12, 14, 16});
    part<QDoubleSpinBox>(*window, "doubleSpinBox_grid").setValue(10);
    QCOMPARE(computed(*window).value("A").toList(), QVariantList({50.0, -50.0}));
    QCOMPARE(result(*window), QString("Area:100.00m^2\nExcavation:50.00m^3\nFill:-50.00m^3"));
}

void tst_CRkVolumeWgt::repeatedComputation()
{
    const auto window = windowWith({10, 12, 14, 16});
    const QVariantMap first = computed(*window);
    const QString text = result(*window);
    QCOMPARE(computed(*window), first);
    QCOMPARE(result(*window), text);
}

void tst_CRkVolumeWgt::cellsAreSortedAndDistinct()
{
    const auto window = windowWith({10, 12, 14, 16});
    // The same grid again: its cells have every point twice.
    window->slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}), oneCell);
    QCOMPARE(table(*window).rowCount(), 8);
    QCOMPARE(computed(*window), QVariantMap({{"A", QVariantList{200.0, -200.0}}}));
    QCOMPARE(result(*window).section('\n', 0, 0), QString("Area:400.00m^2"));
}

/// The names' order, not that of the corners in the polygon or of the points.
void tst_CRkVolumeWgt::orderOfCorners()
{
    const QStringList names = {"a", "b", "c", "d"};
    const QList<double> elevations = {10, 12, 14, 16};
    const auto volumesOf = [&](const QStringList& order) {
        CRkVolumeWgt window(nullptr);
        window.InitWgt();
        Map points;
        for (int i = 0; i < 4; ++i)
            points.insert(order[i], point(20 * (i % 2), 20 * (i / 2), elevations[i]));
        window.slotGridPt(points, oneCell);
        return computed(window).value("A").toList();
    };
    QCOMPARE(volumesOf(names), QVariantList({200.0, -200.0}));
    // Heights -3, 3, 1, -1 in the names' order: on the diagonal.
    const rk::CellVolume crossed = rk::cellVolume({-3, 3, 1, -1}, 20);
    QCOMPARE(volumesOf({"a", "d", "c", "b"}), QVariantList({crossed.excavation, crossed.fill}));
}

/// Each brings two of a cell's points, the later names first.
void tst_CRkVolumeWgt::cornersFromTwoGrids()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt({{"c", point(0, 20, 11)}, {"d", point(20, 20, 9)}}, oneCell);
    window.slotGridPt({{"a", point(0, 0, 7)}, {"b", point(20, 0, 13)}}, oneCell);
    for (int row = 0; row < 4; ++row)
        window.slotSpinBoxChanged(10, QString("%1|3").arg(row));
    const rk::CellVolume expected = rk::cellVolume({-3, 3, 1, -1}, 20);
    QCOMPARE(computed(window).value("A").toList(),
             QVariantList({expected.excavation, expected.fill}));
}

void tst_CRkVolumeWgt::fewerThanFourCorners()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    Map points = fourPoints("P", 0, {10, 12, 14, 16});
    points.insert("P4", point(40, 0, 15));
    window.slotGridPt(points,
                      {{"A", cell(0, 0, 20)}, {"B", cell(20, 0, 20)}, {"C", cell(500, 500, 20)}});
    const QVariantMap volumes = computed(window);
    QCOMPARE(volumes.keys(), QStringList({"A", "B"})); // C has no point at all.
    QCOMPARE(volumes.value("B").toList(), QVariantList({0.0, 0.0}));
    QCOMPARE(result(window).section('\n', 0, 0), QString("Area:800.00m^2"));
}

void tst_CRkVolumeWgt::moreThanFourPoints()
{
    const auto window = windowWith({10, 12, 14, 16});
    window->slotGridPt(fourPoints("Q", 0, {10, 12, 14, 16}), oneCell);
    QCOMPARE(computed(*window), QVariantMap({{"A", QVariantList{0.0, 0.0}}}));
    QCOMPARE(result(*window), QString("Area:400.00m^2\nExcavation:0.00m^3\nFill:0.00m^3"));
}

void tst_CRkVolumeWgt::pointsKeepTheirHeights()
{
    const auto window = windowWith({10, 12, 14, 16});
    window->InitWgt();
    window->slotGridPt(fourPoints("N", 100, {20, 20, 20, 20}), {{"B", cell(100, 0, 20)}});
    // The first cell is computed still, with the heights over its own average.
    QCOMPARE(computed(*window),
             QVariantMap({{"A", QVariantList{200.0, -200.0}}, {"B", QVariantList{0.0, 0.0}}}));
}

void tst_CRkVolumeWgt::brokenPoints_data()
{
    QTest::addColumn<QVariant>("broken");
    QTest::addColumn<QString>("terrain");
    QTest::newRow("nothing") << QVariant() << "nan";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "nan";
    QTest::newRow("one number") << QVariant(QVariantList{40.0}) << "nan";
    QTest::newRow("two numbers") << QVariant(QVariantList{40.0, 20.0}) << "nan";
    QTest::newRow("no list") << QVariant(5) << "nan";
    QTest::newRow("text for an elevation") << QVariant(QVariantList{40.0, 20.0, "high"}) << "nan";
    QTest::newRow("list for an elevation")
        << QVariant(QVariantList{40.0, 20.0, QVariantList{1}}) << "nan";
    QTest::newRow("elevation not a number") << point(40, 20, notANumber) << "nan";
    QTest::newRow("infinite elevation") << point(40, 20, infinity) << "inf";
    QTest::newRow("infinitely low") << point(40, 20, -infinity) << "-inf";
    QTest::newRow("place not a number") << point(notANumber, 20, 15) << "15.00";
    QTest::newRow("place infinite") << point(40, -infinity, 15) << "15.00";
}

/// The right one of two cells lacks a corner; the left one is computed as ever.
void tst_CRkVolumeWgt::brokenPoints()
{
    QFETCH(QVariant, broken);
    QFETCH(QString, terrain);
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    Map points = fourPoints("P", 0, {10, 12, 14, 16});
    points.insert("P4", point(40, 0, 15));
    points.insert("P5", broken);
    window.slotGridPt(points, {{"A", cell(0, 0, 20)}, {"B", cell(20, 0, 20)}});
    QCOMPARE(texts(window, 5).mid(0, 2), QStringList({"P5", terrain}));

    const double average = (10 + 14 + 15 + 2 * (12 + 16)) / 8.0;
    QCOMPARE(texts(window, 0).at(2), QString::number(average, 'f', 2));
    const rk::CellVolume left =
        rk::cellVolume({10 - average, 12 - average, 14 - average, 16 - average}, 20);
    QCOMPARE(computed(window),
             QVariantMap(
                 {{"A", QVariantList{left.excavation, left.fill}}, {"B", QVariantList{0.0, 0.0}}}));
    design(window).setCurrentIndex(1);
    QCOMPARE(texts(window, 0).at(3), QString("10.00"));
    QCOMPARE(computed(window).value("A").toList(), QVariantList({960.0, 0.0}));
}

void tst_CRkVolumeWgt::elevationLostToAnotherGrid()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    Map points = fourPoints("P", 0, {10, 12, 14, 16});
    const Map others = fourPoints("Q", 100, {10, 12, 14, 16});
    for (auto it = others.cbegin(); it != others.cend(); ++it)
        points.insert(it.key(), it.value());
    window.slotGridPt(points, {{"A", cell(0, 0, 20)}, {"B", cell(100, 0, 20)}});
    window.InitWgt();
    points.insert("P2", point(20, 20, notANumber));
    window.slotGridPt(points, {});
    const QVariantMap volumes = computed(window);
    QCOMPARE(volumes.value("A").toList(), QVariantList({0.0, 0.0}));
    QCOMPARE(volumes.value("B").toList(), QVariantList({5200.0, 0.0}));
    QVERIFY(!window.findChild<QTextEdit*>("textEdit")->toPlainText().contains("nan"));
}

void tst_CRkVolumeWgt::brokenCells()
{
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt(fourPoints("P", 0, {10, 12, 14, 16}),
                      {{"A", cell(0, 0, 20)},
                       {"B", QVariant()},
                       {"C", QPolygonF()},
                       {"D", QPolygonF(QVector<QPointF>{{0, 0}, {20, 0}, {20, 20}})},
                       {"E", QVariant("polygon")},
                       {"F", QPolygonF(QVector<QPointF>(4, {notANumber, infinity}))}});
    // All six count in 4 N.
    QCOMPARE(texts(window, 0).at(2), QString::number((14 + 2 * (10 + 12 + 16)) / 24.0, 'f', 2));
    const QVariantMap volumes = computed(window);
    QCOMPARE(volumes.keys(), QStringList({"A", "D"}));
    QVERIFY(volumes.value("A").toList().first().toDouble() > 0);
    QCOMPARE(volumes.value("D").toList(), QVariantList({0.0, 0.0}));
    QCOMPARE(result(window).section('\n', 0, 0), QString("Area:800.00m^2"));
}

void tst_CRkVolumeWgt::hugeNumbers()
{
    const double huge = std::numeric_limits<double>::max();
    const auto window = windowWith({huge, -huge, huge, -huge});
    for (const int mode : {0, 1, 2}) {
        design(*window).setCurrentIndex(mode);
        QCOMPARE(computed(*window).size(), 1);
        QCOMPARE(result(*window).count('\n'), 2);
    }
}

void tst_CRkVolumeWgt::namesWithBars()
{
    const Chinese chinese;
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.slotGridPt(fourPoints("7|3|", 0, {10, 12, 14, 16}), {{"A|B", cell(0, 0, 20)}});
    QCOMPARE(computed(window), QVariantMap({{"A|B", QVariantList{200.0, -200.0}}}));
    design(window).setCurrentIndex(2);
    window.slotSpinBoxChanged(2, table(window).item(1, 3)->statusTip());
    QCOMPARE(texts(window, 1), QStringList({"7|3|1", "12.00", "13.00", "13.00", "10.00"}));
}

/// Everything is linear: minutes when it is not.
void tst_CRkVolumeWgt::manyPoints()
{
    const int posts = 301;
    Map points;
    Map cells;
    for (int row = 0; row < posts; ++row) {
        for (int column = 0; column < posts; ++column) {
            const QString name = QString::number(100000 + row * posts + column);
            points.insert(name, point(20 * column, 20 * row, 400 + row % 7 + column % 5));
            if (row + 1 < posts && column + 1 < posts)
                cells.insert(name, cell(20 * column, 20 * row, 20));
        }
    }
    CRkVolumeWgt window(nullptr);
    window.InitWgt();
    window.show();
    window.slotGridPt(points, cells);
    QCOMPARE(table(window).rowCount(), posts * posts);
    QCOMPARE(computed(window).size(), (posts - 1) * (posts - 1));
    QCOMPARE(result(window).section('\n', 0, 0), QString("Area:36000000.00m^2"));
    design(window).setCurrentIndex(1);
    QCOMPARE(texts(window, posts * posts - 1).at(3), QString("400.00"));
    QVERIFY(!window.grab().isNull());
}

QTEST_MAIN(tst_CRkVolumeWgt)
#include "tst_CRkVolumeWgt.moc"
