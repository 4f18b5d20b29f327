// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The earthwork window on regular grids. The floor of levelling is one pass over points that know
// their cells, and fills the same map. The floor of the computation is one pass over the heights of
// the cells in an array, and makes the same result map. The floor of the table is a bare one that
// gets the same items.

#include "Bench.h"

#include <RkBaseUI/CRkVolumeWgt.h>

#include <QApplication>
#include <QComboBox>
#include <QTableWidget>

#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

constexpr double side = 20.0;
constexpr int turns = 5;

using Map = QMap<QString, QVariant>;

/// A square grid as the host hands it over, and as the floors know it.
struct Grid
{
    explicit Grid(int cellsAcross);

    Map pointMap;
    Map cellMap;
    std::vector<rk::GridPoint> points;
    std::vector<rk::GridCell> cells;
    std::vector<std::vector<int>> cellsOfPoint;
    std::vector<std::array<std::size_t, 4>> pointsOfCell;
};

QString named(const char* kind, int row, int column)
{
    return QStringLiteral("%1%2-%3")
        .arg(QLatin1String(kind))
        .arg(row, 4, 10, QLatin1Char('0'))
        .arg(column, 4, 10, QLatin1Char('0'));
}

/// Whole centimetres, as the table shows them.
double terrainAt(int row, int column)
{
    return std::round(100 * (430 + 7 * std::sin(column / 9.0) + 5 * std::cos(row / 13.0))) / 100;
}

Grid::Grid(int cellsAcross)
{
    const int posts = cellsAcross + 1;
    cellsOfPoint.resize(std::size_t(posts) * std::size_t(posts));
    for (int row = 0; row < posts; ++row) {
        for (int column = 0; column < posts; ++column) {
            const double x = side * column;
            const double y = side * row;
            const auto post = points.size();
            points.push_back({named("P", row, column), x, y, terrainAt(row, column)});
            pointMap.insert(pointMap.cend(), points.back().name,
                            QVariantList{x, y, points.back().elevation});
            if (row == cellsAcross || column == cellsAcross)
                continue;
            const QPolygonF corners(
                QVector<QPointF>{{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}});
            const int cell = int(cells.size());
            cells.push_back({named("C", row, column), corners});
            cellMap.insert(cellMap.cend(), cells.back().name, corners);
            pointsOfCell.push_back(
                {post, post + 1, post + std::size_t(posts), post + std::size_t(posts) + 1});
            for (const std::size_t point : pointsOfCell.back())
                cellsOfPoint[point].push_back(cell);
        }
    }
}

rk::Levelling levelledFlat(const Grid& grid)
{
    rk::Levelling levelling;
    std::array<double, 4> sums{};
    for (std::size_t i = grid.points.size(); i-- > 0;) {
        const std::vector<int>& cells = grid.cellsOfPoint[i];
        sums[cells.size() - 1] += grid.points[i].elevation;
    }
    for (std::size_t i = 0; i < grid.points.size(); ++i) {
        for (const int cell : grid.cellsOfPoint[i])
            levelling.pointsOfCells.insert(grid.cells[std::size_t(cell)].name, grid.points[i].name);
    }
    levelling.elevation = rk::levellingElevation(sums, int(grid.cells.size()));
    return levelling;
}

QVariantMap computedFlat(const Grid& grid, const std::vector<rk::CornerHeights>& heights)
{
    QVariantMap volumes;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const rk::CellVolume volume = rk::cellVolume(heights[i], side);
        volumes.insert(volumes.constEnd(), grid.cells[i].name,
                       QVariantList{volume.excavation, volume.fill});
    }
    return volumes;
}

QString numberText(double number)
{
    return QString::number(number, 'f', 2);
}

/// Appends the rows that the window makes of the grid with its average plane.
void fillBare(QTableWidget& table, const Grid& grid, double average)
{
    const QString averageText = numberText(average);
    int row = table.rowCount();
    table.setRowCount(row + int(grid.points.size()));
    for (const rk::GridPoint& point : grid.points) {
        int column = 0;
        for (const QString& text : {point.name, numberText(point.elevation), averageText,
                                    averageText, numberText(point.elevation - average)}) {
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignCenter);
            item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            table.setItem(row, column++, item);
        }
        ++row;
    }
}

/// Writes another plane into the bare table, and its heights into a map.
void changeBare(QTableWidget& table, const Grid& grid, double average, double design,
                QHash<QString, double>& heights)
{
    const QString averageText = numberText(average);
    const QString designText = numberText(design);
    int row = 0;
    for (const rk::GridPoint& point : grid.points) {
        table.item(row, 2)->setText(averageText);
        table.item(row, 3)->setText(designText);
        table.item(row, 4)->setText(numberText(point.elevation - design));
        heights.insert(point.name, point.elevation - design);
        ++row;
    }
}

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void require(bool isSo, const char* what)
{
    if (isSo)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

bool reportLevelling(const Grid& grid, int size, int runs)
{
    std::vector<double> ours;
    std::vector<double> floor;
    for (int run = 0; run < runs; ++run) {
        rk::Levelling levelling;
        rk::Levelling flat;
        floor.push_back(bench::medianSeconds(1, [&] { flat = levelledFlat(grid); }));
        ours.push_back(
            bench::medianSeconds(1, [&] { levelling = rk::levelGrid(grid.points, grid.cells); }));
        require(levelling.elevation == flat.elevation
                    && levelling.pointsOfCells == flat.pointsOfCells,
                "the two levellings differ");
    }
    return bench::report("levelling with its map / flat pass", size, medianOf(ours),
                         medianOf(floor), 6);
}

/// A window on the screen, ready for a grid.
std::unique_ptr<CRkVolumeWgt> newWindow()
{
    auto window = std::make_unique<CRkVolumeWgt>();
    window->InitWgt();
    window->show();
    QApplication::processEvents();
    return window;
}

/// Seconds of each case and of its floor.
struct WindowTimes
{
    double fill = 0;
    double bareTable = 0;
    double takeOver = 0;
    double takeOverFloor = 0;
    double plane = 0;
    double barePlane = 0;
    double compute = 0;
    double flatCompute = 0;
};

std::vector<rk::CornerHeights> heightsOver(double design, const Grid& grid)
{
    std::vector<rk::CornerHeights> heights;
    for (const auto& corners : grid.pointsOfCell) {
        rk::CornerHeights cell;
        for (std::size_t i = 0; i < 4; ++i)
            cell[i] = grid.points[corners[i]].elevation - design;
        heights.push_back(cell);
    }
    return heights;
}

void timeBareTable(WindowTimes& times, const Grid& grid, double average, double lowest)
{
    QTableWidget table(0, 5);
    table.show();
    QApplication::processEvents();
    times.bareTable = bench::medianSeconds(1, [&] {
        fillBare(table, grid, average);
        QApplication::processEvents();
    });
    QHash<QString, double> heightOfPoint;
    for (const rk::GridPoint& point : grid.points)
        heightOfPoint.insert(point.name, 0.0);
    times.barePlane = bench::medianSeconds(1, [&] {
        changeBare(table, grid, average, lowest, heightOfPoint);
        QApplication::processEvents();
    });
}

double secondsToTakeOver(CRkVolumeWgt& window, const Map& points, const Map& cells)
{
    return bench::medianSeconds(1, [&] {
        window.slotGridPt(points, cells);
        QApplication::processEvents();
    });
}

/// By turns with the floor, so that both find the memory as the other leaves it.
void timeComputation(WindowTimes& times, CRkVolumeWgt& window, const Grid& grid,
                     const std::vector<rk::CornerHeights>& heights)
{
    std::vector<double> ours;
    std::vector<double> floor;
    for (int turn = 0; turn < turns; ++turn) {
        QVariantMap flat;
        QVariantMap volumes;
        floor.push_back(bench::medianSeconds(1, [&] { flat = computedFlat(grid, heights); }));
        const auto connection =
            QObject::connect(&window, &CRkVolumeWgt::signalVolumeComplete, &window,
                             [&](const QVariant& result) { volumes = result.toMap(); });
        ours.push_back(bench::medianSeconds(1, [&] { window.slotClickDesignComputer(); }));
        QObject::disconnect(connection);
        require(volumes == flat, "the two computations differ");
    }
    times.compute = medianOf(ours);
    times.flatCompute = medianOf(floor);
}

bool reportWindow(const Grid& grid, int size, int runs)
{
    const double average = rk::levelGrid(grid.points, grid.cells).elevation;
    double lowest = grid.points.front().elevation;
    for (const rk::GridPoint& point : grid.points)
        lowest = std::min(lowest, point.elevation);
    const std::vector<rk::CornerHeights> heights = heightsOver(average, grid);

    std::vector<WindowTimes> runTimes;
    for (int run = 0; run < runs; ++run) {
        WindowTimes times;
        timeBareTable(times, grid, average, lowest);
        times.fill = secondsToTakeOver(*newWindow(), grid.pointMap, {});
        // The rest shares a window: filling it anew for each would take most of the time.
        const auto window = newWindow();
        times.takeOver = secondsToTakeOver(*window, grid.pointMap, grid.cellMap);
        times.takeOverFloor =
            times.bareTable + bench::medianSeconds(1, [&] { levelledFlat(grid); });
        timeComputation(times, *window, grid, heights);
        times.plane = bench::medianSeconds(1, [&] {
            window->findChild<QComboBox*>("comboBox_design")->setCurrentIndex(1);
            QApplication::processEvents();
        });
        runTimes.push_back(times);
    }
    const auto median = [&](double WindowTimes::*seconds) {
        std::vector<double> values;
        for (const WindowTimes& times : runTimes)
            values.push_back(times.*seconds);
        return medianOf(values);
    };
    const bool met[] = {
        bench::report("fill the table / bare table", size, median(&WindowTimes::fill),
                      median(&WindowTimes::bareTable), 1.3),
        bench::report("take a grid over / flat pass and bare table", size,
                      median(&WindowTimes::takeOver), median(&WindowTimes::takeOverFloor), 1.3),
        bench::report("another plane / bare table and map", size, median(&WindowTimes::plane),
                      median(&WindowTimes::barePlane), 2),
        bench::report("compute / flat pass and result map", size, median(&WindowTimes::compute),
                      median(&WindowTimes::flatCompute), 4),
    };
    return std::all_of(std::begin(met), std::end(met), [](bool ok) { return ok; });
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    bool met = true;
    for (const int cellsAcross : {100, 300, 1000}) {
        const Grid grid(cellsAcross);
        const int runs = cellsAcross == 1000 ? 3 : 7;
        const int size = cellsAcross * cellsAcross;
        met = reportLevelling(grid, size, runs) && met;
        met = reportWindow(grid, size, runs) && met;
    }
    return met ? 0 : 1;
}
