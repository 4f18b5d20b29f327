// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/LightPanel.h"
#include "app/MapPanel.h"
#include "app/SurveyTools.h"
#include "app/TerrainPanel.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "terrain/SampleTerrain.h"
#include "widgets/Render.h"

#include <RkBaseUI/CRkVolumeWgt.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <memory>

using End = void (*)(CRkVolumeWgt&);
Q_DECLARE_METATYPE(End)
Q_DECLARE_METATYPE(Qt::CursorShape)

namespace {

constexpr QSize panelSize(1000, 700);

void sendMouse(QWidget& widget, QEvent::Type type, const QPointF& at, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at.toPoint()), button, buttons, modifiers);
    QApplication::sendEvent(&widget, &event);
}

void drag(QWidget& widget, const QPointF& from, const QPointF& to,
          Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    sendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, modifiers);
    sendMouse(widget, QEvent::MouseMove, (from + to) / 2, Qt::LeftButton, modifiers);
    sendMouse(widget, QEvent::MouseMove, to, Qt::LeftButton, modifiers);
    sendMouse(widget, QEvent::MouseButtonRelease, to, Qt::NoButton, modifiers);
}

void hover(QWidget& widget, const QPointF& at, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, modifiers);
}

bool near(const QPointF& a, const QPointF& b, double tolerance = 1e-6)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) <= tolerance;
}

template <typename T>
T& part(const QWidget& window, const char* name)
{
    return *window.findChild<T*>(QLatin1String(name));
}

void press(const QWidget& window, const char* button)
{
    QTest::mouseClick(&part<QPushButton>(window, button), Qt::LeftButton);
}

/// Number behind the label in a line of the result.
double resultOf(const QWidget& dialog, int line)
{
    const QString text =
        part<QTextEdit>(dialog, "textEdit").toPlainText().split(QLatin1Char('\n')).value(line);
    return text.section(QLatin1Char(':'), 1).section(QLatin1Char('m'), 0, 0).toDouble();
}

} // namespace

class tst_TerrainPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void terrainFillsThePanelAtFirst();
    void mouseMovesTheView();
    void wheelAndKeysZoom();
    void reliefIsNotDrawnAnewForTheGrid();
    void cornerTellsTheElevation();
    void gridLiesInTheMiddleOfTheFreePart();
    void gridHasRoomBesideAWideTool();
    void gridIsDragged();
    void gridIsTurnedWithAlt();
    void gridStaysOnTheTerrain();
    void viewIsDraggedBesideTheGrid();
    void altDuringADragChangesNothing();
    void lostReleaseLetsGo();
    void cursorTellsWhatAPressDoes();
    void arrowsMoveTheGrid();
    void cellsTooLarge();
    void ensureWithoutGrid();
    void earthworkFromEndToEnd();
    void sampledGridStaysInItsPlace();
    void changedLengthIsThatOfTheGrid();
    void volumesAreWrittenWhereTheyFit();
    void volumesKeepToTurnedCells();
    void linesAreAsThickOnEveryScreen();
    void hugeGridIsShownQuickly();
    void endOfTheDialogRemovesTheGrid_data();
    void endOfTheDialogRemovesTheGrid();
    void dialogIsOpenOnceAndNewTheNextTime();
    void languageChangesTheTexts();

private:
    /// Opens the tool and lays a grid of cells of this side.
    CRkVolumeWgt& openWithGrid(double side);
    QPointF gridMiddle() const;
    /// Dark pixels about the grid, as those of its texts.
    int inkPixels() const;
    void verifyCells(const QVariantMap& volumes, double average, const QImage& before,
                     const QImage& after) const;

    TestHome m_home;
    std::unique_ptr<QWidget> m_window;
    TerrainPanel* m_panel = nullptr;
    SurveyTools* m_tools = nullptr;
};

void tst_TerrainPanel::initTestCase()
{
    HostSettings::installLanguage(QStringLiteral("en"));
}

void tst_TerrainPanel::init()
{
    const ElevationModel model = sampleTerrain();
    m_window = std::make_unique<QWidget>();
    m_window->resize(panelSize);
    m_panel = new TerrainPanel(model, m_window.get());
    auto* layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panel);
    auto* map = new MapPanel(m_window.get());
    map->hide();
    auto* light = new LightPanel(model, m_window.get());
    light->hide();
    m_tools = new SurveyTools(map, m_panel, light, m_window.get());
    connect(m_panel, &TerrainPanel::earthworkWanted, m_tools, &SurveyTools::openEarthwork);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(comesOnScreen(m_window.get()));
}

void tst_TerrainPanel::cleanup()
{
    m_window.reset();
    HostSettings::installLanguage(QStringLiteral("en"));
}

CRkVolumeWgt& tst_TerrainPanel::openWithGrid(double side)
{
    m_panel->findChild<QToolButton*>(QStringLiteral("tool"))->click();
    CRkVolumeWgt& dialog = *m_tools->earthwork();
    part<QDoubleSpinBox>(dialog, "doubleSpinBox_grid").setValue(side);
    press(dialog, "btn_grid_generate");
    return dialog;
}

QPointF tst_TerrainPanel::gridMiddle() const
{
    return m_panel->view().toScreen(m_panel->grid()->centre);
}

void tst_TerrainPanel::terrainFillsThePanelAtFirst()
{
    const TerrainView& view = m_panel->view();
    const QRectF terrain = m_panel->model().extent();
    QVERIFY(terrain.contains(view.toTerrain({1, 1})));
    QVERIFY(terrain.contains(view.toTerrain({999, 699})));
    m_window->resize(800, 800);
    QTRY_VERIFY(near(view.toTerrain({0, 800}), {0, 0}, 0.01));
    m_panel->showWhole();
    QVERIFY(near(view.toScreen(terrain.center()), {400, 400}));
    QVERIFY(view.toScreen({0, 0}).x() > 10);
}

void tst_TerrainPanel::mouseMovesTheView()
{
    const QPointF before = m_panel->view().toTerrain({500, 400});
    drag(*m_panel, {500, 400}, {520, 350});
    QVERIFY(near(m_panel->view().toTerrain({520, 350}), before));
    // The middle stays on the terrain.
    for (int i = 0; i < 4; ++i)
        drag(*m_panel, {10, 350}, {990, 350});
    QCOMPARE(m_panel->view().centre.x(), 0.0);
}

void tst_TerrainPanel::wheelAndKeysZoom()
{
    const double scale = m_panel->view().scale;
    const QPointF at(300, 200);
    const QPointF place = m_panel->view().toTerrain(at);
    QWheelEvent event(at, m_panel->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, 240),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_panel, &event);
    QCOMPARE(m_panel->view().scale, 2 * scale);
    QVERIFY(near(m_panel->view().toTerrain(at), place));
    QTest::keyClick(m_panel, Qt::Key_Minus);
    QCOMPARE(m_panel->view().scale, scale);
    QTest::keyClick(m_panel, Qt::Key_Plus);
    QCOMPARE(m_panel->view().scale, 2 * scale);
    const QPointF middle = m_panel->view().centre;
    QTest::keyClick(m_panel, Qt::Key_Right);
    QVERIFY(m_panel->view().centre.x() > middle.x() + 10);
    QTest::keyClick(m_panel, Qt::Key_Up);
    QVERIFY(m_panel->view().centre.y() > middle.y() + 10);
    QTest::keyClick(m_panel, Qt::Key_Home);
    QVERIFY(m_panel->view().scale < scale);
}

/// The ground is kept while the view stays.
void tst_TerrainPanel::reliefIsNotDrawnAnewForTheGrid()
{
    TerrainCanvas canvas(m_panel->model());
    const TerrainView& view = m_panel->view();
    const qint64 first = canvas.picture(view, 1).cacheKey();
    QCOMPARE(canvas.picture(view, 1).cacheKey(), first);
    QVERIFY(canvas.picture(view.moved({1, 0}), 1).cacheKey() != first);
    const qint64 moved = canvas.picture(view.moved({1, 0}), 1).cacheKey();
    QVERIFY(canvas.picture(view.moved({1, 0}), 2).cacheKey() != moved);
}

void tst_TerrainPanel::cornerTellsTheElevation()
{
    QVERIFY(m_panel->placeText().isEmpty());
    const QPointF at(512, 333);
    hover(*m_panel, at);
    const QPointF place = m_panel->view().toTerrain(at);
    QCOMPARE(m_panel->placeText(),
             QStringLiteral("E %1  N %2  H %3 m")
                 .arg(place.x(), 0, 'f', 1)
                 .arg(place.y(), 0, 'f', 1)
                 .arg(m_panel->model().elevation(place), 0, 'f', 2));
    m_panel->showWhole();
    hover(*m_panel, {3, 3});
    QVERIFY2(m_panel->placeText().isEmpty(), "beside the terrain");
    m_panel->zoomIn();
    sendMouse(*m_panel, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::NoModifier);
    sendMouse(*m_panel, QEvent::MouseMove, {512, 701}, Qt::LeftButton, Qt::NoModifier);
    QVERIFY2(m_panel->placeText().isEmpty(), "dragged out of the panel");
    sendMouse(*m_panel, QEvent::MouseMove, at, Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!m_panel->placeText().isEmpty());
    sendMouse(*m_panel, QEvent::MouseButtonRelease, at, Qt::NoButton, Qt::NoModifier);
}

void tst_TerrainPanel::gridLiesInTheMiddleOfTheFreePart()
{
    m_panel->layGrid(20);
    QVERIFY(m_panel->grid() && m_panel->isGridMovable());
    QVERIFY(near(gridMiddle(), {500, 350}));
    QCOMPARE(m_panel->grid()->side, 20.0);
    QVERIFY(m_panel->grid()->columns > 5);
    m_panel->setCoveredWidth(400);
    m_panel->layGrid(20);
    QVERIFY(near(gridMiddle(), {300, 350}));
    for (const QPointF& corner : m_panel->grid()->outline())
        QVERIFY(QRectF(0, 0, 600, 700).contains(m_panel->view().toScreen(corner)));
    QVERIFY(!m_panel->note().isEmpty());
}

/// In a window that is narrower than the tool.
void tst_TerrainPanel::gridHasRoomBesideAWideTool()
{
    m_window->resize(400, 500);
    QTRY_COMPARE(m_panel->width(), 400);
    const CRkVolumeWgt& dialog = openWithGrid(5);
    QVERIFY(dialog.width() > 400);
    QCOMPARE(dialog.x(), m_panel->mapToGlobal(QPoint()).x());
    QVERIFY(near(gridMiddle(), {80, 250}));
    const double pixels = m_panel->grid()->width() * m_panel->view().scale;
    QVERIFY2(pixels > 60, qPrintable(QString::number(pixels)));
}

void tst_TerrainPanel::gridIsDragged()
{
    m_panel->layGrid(20);
    const EarthworkGrid before = *m_panel->grid();
    const TerrainView view = m_panel->view();
    drag(*m_panel, {480, 360}, {520, 330});
    const QPointF way = view.toTerrain({520, 330}) - view.toTerrain({480, 360});
    QVERIFY(near(m_panel->grid()->centre, before.centre + way));
    QCOMPARE(m_panel->grid()->angle, 0.0);
    QVERIFY2(m_panel->view() == view, "the terrain stays");
}

void tst_TerrainPanel::gridIsTurnedWithAlt()
{
    m_panel->layGrid(20);
    const EarthworkGrid before = *m_panel->grid();
    const QPointF middle = gridMiddle();
    // From the east to the north of the middle: counter-clockwise.
    drag(*m_panel, middle + QPointF(100, 0), middle - QPointF(0, 100), Qt::AltModifier);
    QVERIFY(std::abs(m_panel->grid()->angle - 90) < 1e-9);
    QVERIFY(near(m_panel->grid()->centre, before.centre));
    const QPointF first = m_panel->view().toScreen(before.corner(0, 0)) - middle;
    QVERIFY2(first.x() < 0 && first.y() < 0, "the upper left was the first corner");
    QVERIFY(near(m_panel->view().toScreen(m_panel->grid()->corner(0, 0)) - middle,
                 QPointF(first.x(), -first.y())));
    drag(*m_panel, middle + QPointF(100, 0), middle + QPointF(100, 57.735), Qt::AltModifier);
    QVERIFY(std::abs(m_panel->grid()->angle - 60) < 0.01);
    drag(*m_panel, middle, middle + QPointF(30, 0));
    QVERIFY2(std::abs(m_panel->grid()->angle - 60) < 0.01, "a turned grid is moved as it is");
    QVERIFY(near(gridMiddle(), middle + QPointF(30, 0)));
}

void tst_TerrainPanel::gridStaysOnTheTerrain()
{
    m_panel->showWhole();
    m_panel->layGrid(50);
    drag(*m_panel, gridMiddle(), {-900, -900});
    const QPointF corner = m_panel->grid()->corner(0, 0);
    QVERIFY(near(corner, {0, 995}));
    const QPointF middle = gridMiddle();
    drag(*m_panel, middle + QPointF(40, 0), middle + QPointF(40, 40), Qt::AltModifier);
    const QRectF bounds = m_panel->grid()->outline().boundingRect();
    QVERIFY(bounds.left() > -1e-6 && bounds.bottom() < 995 + 1e-6);
    QVERIFY(std::abs(m_panel->grid()->angle + 45) < 1e-6);
}

void tst_TerrainPanel::viewIsDraggedBesideTheGrid()
{
    m_panel->layGrid(20);
    const EarthworkGrid before = *m_panel->grid();
    const QPointF middle = gridMiddle();
    drag(*m_panel, {120, 600}, {140, 580});
    QVERIFY(near(m_panel->grid()->centre, before.centre));
    QVERIFY(near(gridMiddle(), middle + QPointF(20, -20)));
}

void tst_TerrainPanel::altDuringADragChangesNothing()
{
    m_panel->layGrid(20);
    const QPointF middle = gridMiddle();
    sendMouse(*m_panel, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::NoModifier);
    QTest::keyPress(m_panel, Qt::Key_Alt, Qt::AltModifier);
    sendMouse(*m_panel, QEvent::MouseMove, middle + QPointF(25, 5), Qt::LeftButton,
              Qt::AltModifier);
    QTest::keyRelease(m_panel, Qt::Key_Alt);
    QCOMPARE(m_panel->grid()->angle, 0.0);
    QVERIFY(near(gridMiddle(), middle + QPointF(25, 5)));
}

void tst_TerrainPanel::lostReleaseLetsGo()
{
    m_panel->layGrid(20);
    const QPointF middle = gridMiddle();
    sendMouse(*m_panel, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::NoModifier);
    hover(*m_panel, middle + QPointF(25, 5));
    QVERIFY(near(gridMiddle(), middle));
}

void tst_TerrainPanel::cursorTellsWhatAPressDoes()
{
    const auto shape = [this] { return m_panel->cursor().shape(); };
    hover(*m_panel, {500, 350});
    QCOMPARE(shape(), Qt::OpenHandCursor);
    m_panel->layGrid(20);
    QCOMPARE(shape(), Qt::SizeAllCursor); // The grid came under the cursor.
    hover(*m_panel, gridMiddle(), Qt::AltModifier);
    QCOMPARE(shape(), Qt::BitmapCursor);
    hover(*m_panel, gridMiddle());
    QCOMPARE(shape(), Qt::SizeAllCursor);
    QTest::keyPress(m_panel, Qt::Key_Alt, Qt::AltModifier);
    QCOMPARE(shape(), Qt::BitmapCursor);
    QTest::keyRelease(m_panel, Qt::Key_Alt);
    QCOMPARE(shape(), Qt::SizeAllCursor);
    hover(*m_panel, {60, 640});
    QCOMPARE(shape(), Qt::OpenHandCursor);
    hover(*m_panel, {60, 640}, Qt::AltModifier);
    QCOMPARE(shape(), Qt::OpenHandCursor);
    sendMouse(*m_panel, QEvent::MouseButtonPress, {60, 640}, Qt::LeftButton, Qt::NoModifier);
    QCOMPARE(shape(), Qt::ClosedHandCursor);
    sendMouse(*m_panel, QEvent::MouseButtonRelease, {60, 640}, Qt::NoButton, Qt::NoModifier);
    QCOMPARE(shape(), Qt::OpenHandCursor);
    m_panel->sampleGrid();
    hover(*m_panel, gridMiddle());
    QCOMPARE(shape(), Qt::OpenHandCursor);
}

void tst_TerrainPanel::arrowsMoveTheGrid()
{
    m_panel->layGrid(20);
    const EarthworkGrid before = *m_panel->grid();
    const TerrainView view = m_panel->view();
    QTest::keyClick(m_panel, Qt::Key_Right);
    QVERIFY(near(m_panel->grid()->centre, before.centre + QPointF(5, 0)));
    QTest::keyClick(m_panel, Qt::Key_Up);
    QVERIFY(near(m_panel->grid()->centre, before.centre + QPointF(5, 5)));
    QTest::keyClick(m_panel, Qt::Key_Left);
    QTest::keyClick(m_panel, Qt::Key_Down);
    QVERIFY(near(m_panel->grid()->centre, before.centre));
    QTest::keyClick(m_panel, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_panel->grid()->angle, 1.0);
    QTest::keyClick(m_panel, Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(m_panel, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_panel->grid()->angle, -1.0);
    QVERIFY(m_panel->view() == view);
}

void tst_TerrainPanel::cellsTooLarge()
{
    m_panel->layGrid(20);
    m_panel->layGrid(1000);
    QVERIFY(!m_panel->grid());
    QCOMPARE(m_panel->note(), QStringLiteral("Such cells are too large for the terrain."));
    QCOMPARE(m_panel->accessibleDescription(), m_panel->note());
    m_panel->layGrid(20);
    QVERIFY(m_panel->grid());
    QVERIFY(m_panel->note().contains(QStringLiteral("Alt")));
}

void tst_TerrainPanel::ensureWithoutGrid()
{
    m_tools->openEarthwork();
    const CRkVolumeWgt& dialog = *m_tools->earthwork();
    press(dialog, "btn_grid_ensure");
    QCOMPARE(m_panel->note(), QStringLiteral("Generate a grid first."));
    QCOMPARE(part<QTableWidget>(dialog, "tableWidget").rowCount(), 0);
    QVERIFY(part<QGroupBox>(dialog, "groupBox_grid").isEnabled());
    press(dialog, "btn_grid_generate");
    QVERIFY(m_panel->isGridMovable());
}

void tst_TerrainPanel::earthworkFromEndToEnd()
{
    CRkVolumeWgt& dialog = openWithGrid(40);
    drag(*m_panel, gridMiddle(), gridMiddle() + QPointF(50, 30));
    drag(*m_panel, gridMiddle() + QPointF(80, 0), gridMiddle() + QPointF(70, -30), Qt::AltModifier);
    const EarthworkGrid grid = *m_panel->grid();
    QVERIFY(grid.angle > 20 && grid.angle < 30);
    QSignalSpy samples(m_panel, &TerrainPanel::gridSampled);
    QSignalSpy volumes(&dialog, &CRkVolumeWgt::signalVolumeComplete);
    const QImage laid = rendered(*m_panel, 1);

    press(dialog, "btn_grid_ensure");
    QCOMPARE(samples.size(), 1);
    const auto& table = part<QTableWidget>(dialog, "tableWidget");
    QCOMPARE(table.rowCount(), (grid.columns + 1) * (grid.rows + 1));
    for (int row = 0; row < table.rowCount(); ++row) {
        const QPointF place = grid.corner(row % (grid.columns + 1), row / (grid.columns + 1));
        QCOMPARE(table.item(row, 1)->text(),
                 QString::number(m_panel->model().elevation(place), 'f', 2));
    }

    press(dialog, "btn_design_computer");
    QCOMPARE(volumes.size(), 1);
    QCOMPARE(resultOf(dialog, 0), grid.width() * grid.height());
    hover(*m_panel, {1, 1}); // Away from the grid.
    verifyCells(volumes.first().first().toMap(), table.item(0, 2)->text().toDouble(), laid,
                rendered(*m_panel, 1));
    hover(*m_panel, m_panel->view().toScreen((grid.cell(1, 2)[0] + grid.cell(1, 2)[2]) / 2));
    QVERIFY2(m_panel->placeText().startsWith(grid.cellName(1, 2) + QStringLiteral(": cut ")),
             qPrintable(m_panel->placeText()));
}

/// Against what the corners of each cell say: its volume, where all are on one side of the average
/// elevation, and its colour, where much is moved.
void tst_TerrainPanel::verifyCells(const QVariantMap& volumes, double average, const QImage& before,
                                   const QImage& after) const
{
    const EarthworkGrid grid = *m_panel->grid();
    QCOMPARE(volumes.size(), grid.columns * grid.rows);
    const double quarter = grid.side * grid.side / 4;
    int warm = 0;
    int cool = 0;
    int ofOneSign = 0;
    for (int i = 0; i < grid.columns * grid.rows; ++i) {
        const QPoint at(i % grid.columns, i / grid.columns);
        const QPolygonF cell = grid.cell(at.x(), at.y());
        double sum = 0;
        int positive = 0;
        for (const QPointF& corner : cell) {
            const double height = m_panel->model().elevation(corner) - average;
            positive += height > 0 ? 1 : 0;
            sum += height;
        }
        const QVariantList volume = volumes.value(grid.cellName(at.x(), at.y())).toList();
        if (positive % 4 == 0) {
            ++ofOneSign;
            // Heights are rounded to centimetres.
            QVERIFY(std::abs(volume[0].toDouble() + volume[1].toDouble() - sum * quarter) < 20);
        }
        // Off the middle, where a text may stand.
        const QPoint place = m_panel->view().toScreen(cell[0] * 0.85 + cell[2] * 0.15).toPoint();
        const QColor a = before.pixelColor(place);
        const QColor b = after.pixelColor(place);
        const int warmer = (b.red() - b.blue()) - (a.red() - a.blue());
        if (sum * quarter > 3000) {
            ++warm;
            QVERIFY(warmer > 15);
        } else if (sum * quarter < -3000) {
            ++cool;
            QVERIFY(warmer < -15);
        }
    }
    QVERIFY(warm > 3 && cool > 3 && ofOneSign > 10);
}

void tst_TerrainPanel::sampledGridStaysInItsPlace()
{
    openWithGrid(40);
    const QPointF middle = gridMiddle();
    m_panel->sampleGrid();
    QVERIFY(!m_panel->isGridMovable());
    const EarthworkGrid before = *m_panel->grid();
    QTest::keyClick(m_panel, Qt::Key_Left, Qt::AltModifier);
    drag(*m_panel, middle, middle + QPointF(20, 20), Qt::AltModifier);
    drag(*m_panel, middle, middle + QPointF(20, 20));
    QVERIFY(near(m_panel->grid()->centre, before.centre));
    QCOMPARE(m_panel->grid()->angle, 0.0);
}

/// The length is entered anew after the grid was laid.
void tst_TerrainPanel::changedLengthIsThatOfTheGrid()
{
    const CRkVolumeWgt& dialog = openWithGrid(40);
    auto& length = part<QDoubleSpinBox>(dialog, "doubleSpinBox_grid");
    length.setValue(55);
    press(dialog, "btn_grid_ensure");
    QCOMPARE(length.value(), 40.0);
    press(dialog, "btn_design_computer");
    QCOMPARE(resultOf(dialog, 0), m_panel->grid()->width() * m_panel->grid()->height());
}

int tst_TerrainPanel::inkPixels() const
{
    const QImage image = rendered(*m_panel, 1);
    const QRect part =
        m_panel->view().transform().map(m_panel->grid()->outline()).boundingRect().toRect();
    int count = 0;
    for (int y = part.top(); y < part.bottom(); ++y) {
        for (int x = part.left(); x < part.right(); ++x)
            count += image.valid(x, y) && image.pixelColor(x, y).lightness() < 60 ? 1 : 0;
    }
    return count;
}

void tst_TerrainPanel::volumesAreWrittenWhereTheyFit()
{
    const CRkVolumeWgt& dialog = openWithGrid(70);
    press(dialog, "btn_grid_ensure");
    press(dialog, "btn_design_computer");
    QVERIFY(inkPixels() > 300);
    m_panel->showWhole();
    m_panel->zoomOut();
    QVERIFY2(inkPixels() < 30, "too small for the texts");
}

/// Cells that are just large enough for the texts while they stand straight are too small when they
/// are turned by half a right angle, where two lines do not fit.
void tst_TerrainPanel::volumesKeepToTurnedCells()
{
    const auto show = [this](double scale, int degrees) {
        TerrainView view = m_panel->view();
        view.scale = scale;
        m_panel->setView(view);
        m_panel->layGrid(40);
        for (int i = 0; i < degrees; ++i)
            QTest::keyClick(m_panel, Qt::Key_Left, Qt::AltModifier);
        const EarthworkGrid& grid = *m_panel->grid();
        QVariantMap volumes;
        for (int i = 0; i < grid.columns * grid.rows; ++i)
            volumes.insert(grid.cellName(i % grid.columns, i / grid.columns),
                           QVariantList{150.0, -150.0});
        m_panel->showVolumes(volumes);
        return inkPixels() > 300;
    };
    double scale = 0.5;
    QVERIFY(!show(scale, 0));
    while (scale < 2 && !show(scale, 0))
        scale *= 1.05;
    QVERIFY(scale < 2);
    show(scale, 45);
    QCOMPARE(m_panel->grid()->angle, 45.0);
    QVERIFY(inkPixels() < 30);
}

/// Counted across the west side of the grid.
void tst_TerrainPanel::linesAreAsThickOnEveryScreen()
{
    m_panel->layGrid(20);
    const TerrainView& view = m_panel->view();
    const QPointF side = view.toScreen(m_panel->grid()->cell(0, 3)[0]);
    const auto accentPixels = [&](int scale) {
        const QImage image = rendered(*m_panel, scale);
        const int y = int((side.y() + 5) * scale);
        int count = 0;
        for (int x = int(side.x() - 6) * scale; x < int(side.x() + 6) * scale; ++x)
            count += image.pixelColor(x, y).blue() > image.pixelColor(x, y).red() + 100 ? 1 : 0;
        return count;
    };
    QVERIFY2(accentPixels(1) >= 1 && accentPixels(2) >= 3,
             qPrintable(QStringLiteral("%1 %2").arg(accentPixels(1)).arg(accentPixels(2))));
}

/// As many cells as there may be, with all that is done for them.
void tst_TerrainPanel::hugeGridIsShownQuickly()
{
    m_panel->showWhole();
    m_panel->layGrid(1);
    QCOMPARE(m_panel->grid()->columns, EarthworkGrid::mostCellsPerSide);
    QVariantMap volumes;
    for (int row = 0; row < m_panel->grid()->rows; ++row) {
        for (int column = 0; column < m_panel->grid()->columns; ++column)
            volumes.insert(m_panel->grid()->cellName(column, row),
                           QVariantList{double(row), -double(column)});
    }
    m_panel->sampleGrid();
    m_panel->showVolumes(volumes);
    m_panel->grab();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 10; ++i)
        m_panel->grab();
    // Far above what it takes, far below what a person feels.
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

void tst_TerrainPanel::endOfTheDialogRemovesTheGrid_data()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<bool>("isAtOnce");
    QTest::newRow("close button") << End([](CRkVolumeWgt& dialog) { press(dialog, "m_pBtnClose"); })
                                  << true;
    QTest::newRow("Escape") << End([](CRkVolumeWgt& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }) << true;
    QTest::newRow("window system") << End([](CRkVolumeWgt& dialog) { dialog.close(); }) << true;
    QTest::newRow("destroyed") << End([](CRkVolumeWgt& dialog) { dialog.deleteLater(); }) << false;
}

void tst_TerrainPanel::endOfTheDialogRemovesTheGrid()
{
    QFETCH(End, end);
    const QImage before = rendered(*m_panel, 1);
    const CRkVolumeWgt& dialog = openWithGrid(40);
    press(dialog, "btn_grid_ensure");
    press(dialog, "btn_design_computer");
    QVERIFY(rendered(*m_panel, 1) != before);
    QFETCH(bool, isAtOnce);
    end(*m_tools->earthwork());
    QCOMPARE(m_panel->grid().has_value(), !isAtOnce);
    QTRY_VERIFY(!m_tools->earthwork());
    QVERIFY(!m_panel->grid());
    QVERIFY(m_panel->note().isEmpty());
    QCOMPARE(rendered(*m_panel, 1), before);
    m_panel->layGrid(40);
    QVERIFY2(near(gridMiddle(), {500, 350}), "nothing is covered any more");
}

void tst_TerrainPanel::dialogIsOpenOnceAndNewTheNextTime()
{
    const CRkVolumeWgt& dialog = openWithGrid(40);
    QVERIFY(dialog.isVisible() && dialog.isWindow() && !dialog.isModal());
    press(dialog, "btn_grid_ensure");
    m_tools->openEarthwork();
    QCOMPARE(m_tools->earthwork(), &dialog);
    QVERIFY2(!m_panel->isGridMovable(), "the grid is as before");
    m_tools->earthwork()->close();
    QTRY_VERIFY(!m_tools->earthwork());
    const CRkVolumeWgt& next = openWithGrid(100);
    press(next, "btn_grid_ensure");
    press(next, "btn_design_computer");
    QCOMPARE(resultOf(next, 0), m_panel->grid()->width() * m_panel->grid()->height());
}

void tst_TerrainPanel::languageChangesTheTexts()
{
    m_panel->layGrid(20);
    const auto* tool = m_panel->findChild<QToolButton*>(QStringLiteral("tool"));
    const QString english = m_panel->note();
    QCOMPARE(tool->text(), QStringLiteral("Earthwork"));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(tool->text(), QString::fromUtf8("土方量计算"));
    QVERIFY(m_panel->note() != english);
    QCOMPARE(m_panel->accessibleDescription(), m_panel->note());
    QCOMPARE(m_panel->accessibleName(), QString::fromUtf8("地形"));
    const QList<QToolButton*> buttons = m_panel->findChildren<QToolButton*>();
    for (const QToolButton* button : buttons)
        QVERIFY(!button->text().isEmpty() || !button->accessibleName().isEmpty());
}

QTEST_MAIN(tst_TerrainPanel)
#include "tst_TerrainPanel.moc"
