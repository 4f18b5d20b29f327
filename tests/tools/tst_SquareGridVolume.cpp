// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/SquareGridVolume.h>

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using rk::CellVolume;
using rk::CornerHeights;

Q_DECLARE_METATYPE(rk::CornerHeights)

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Grid
{
    std::vector<rk::GridPoint> points;
    std::vector<rk::GridCell> cells;
};

QString named(const char* kind, int number)
{
    return QStringLiteral("%1%2").arg(QLatin1String(kind)).arg(number, 6, 10, QLatin1Char('0'));
}

QPolygonF square(double x, double y, double side)
{
    return QPolygonF({{x, y}, {x + side, y}, {x, y + side}, {x + side, y + side}});
}

/// Columns x rows cells of side 20, points and cells named row by row, on a bumpy terrain.
Grid regularGrid(int columns, int rows)
{
    Grid grid;
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const double x = 500000.0 + 20.0 * column;
            const double y = 3400000.0 + 20.0 * row;
            grid.points.push_back({named("P", row * (columns + 1) + column), x, y,
                                   430.0 + 7 * std::sin(x / 37) + 5 * std::cos(y / 53)});
            if (row < rows && column < columns)
                grid.cells.push_back({named("C", row * columns + column), square(x, y, 20.0)});
        }
    }
    return grid;
}

/// The rule as it is written: every corner of every cell for every point.
rk::Levelling levelledLiterally(const Grid& grid)
{
    rk::Levelling levelling;
    QMultiMap<int, double> elevationsByCount;
    for (const rk::GridPoint& point : grid.points) {
        int count = 0;
        for (const rk::GridCell& cell : grid.cells) {
            for (int i = 0; i < 4; ++i) {
                if (std::fabs(point.x - cell.corners[i].x()) < 1e-6
                    && std::fabs(point.y - cell.corners[i].y()) < 1e-6) {
                    ++count;
                    levelling.pointsOfCells.insert(cell.name, point.name);
                }
            }
        }
        elevationsByCount.insert(count, point.elevation);
    }
    const auto sumOf = [&](int count) {
        double sum = 0.0;
        for (const double elevation : elevationsByCount.values(count))
            sum += elevation;
        return sum;
    };
    levelling.elevation =
        (sumOf(1) + 2 * sumOf(2) + 3 * sumOf(3) + 4 * sumOf(4)) / (4.0 * double(grid.cells.size()));
    return levelling;
}

void compareVolumes(const CellVolume& actual, double excavation, double fill)
{
    QCOMPARE(actual.excavation, excavation);
    QCOMPARE(actual.fill, fill);
}

/// The heights of the square turned so that corner 0 goes to the corner across, row by row.
CornerHeights turned(const CornerHeights& h)
{
    return {h[3], h[2], h[1], h[0]};
}

} // namespace

class tst_SquareGridVolume : public QObject
{
    Q_OBJECT

private slots:
    void levellingOfCornerSums_data();
    void levellingOfCornerSums();
    void levellingOfTheTextbookGrid();
    void levellingOfOneCell();
    void levellingOfSharedPoints();
    void pointsWithoutCells();
    void cellsWithoutPoints();
    void noCells();
    void pointsFoundLastComeFirst();
    void toleranceOfCorners_data();
    void toleranceOfCorners();
    void pointsOnMoreThanFourCells();
    void pointOnTwoCornersOfACell();
    void onlyTheFirstFourCornersCount();
    void unusableNumbers_data();
    void unusableNumbers();
    void sameAsTheLiteralLoop_data();
    void sameAsTheLiteralLoop();
    void aMillionPoints();

    void zeroPoints_data();
    void zeroPoints();
    void oneSign_data();
    void oneSign();
    void twoAndTwo_data();
    void twoAndTwo();
    void oneAndThree_data();
    void oneAndThree();
    void squaresOfAnotherKind();
    void zeroIsNotAbove_data();
    void zeroIsNotAbove();
    void everySignPatternKeepsItsSigns();
    void sideScalesVolumes();
    void turningACellKeepsItsVolumes();
    void notANumberIsNoCrash();
    void totals();
};

void tst_SquareGridVolume::levellingOfCornerSums_data()
{
    QTest::addColumn<double>("sum1");
    QTest::addColumn<double>("sum2");
    QTest::addColumn<double>("sum3");
    QTest::addColumn<double>("sum4");
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("expected");
    QTest::newRow("one cell") << 52.0 << 0.0 << 0.0 << 0.0 << 1 << 13.0;
    QTest::newRow("one of each") << 1.0 << 10.0 << 100.0 << 1000.0 << 1 << 4321.0 / 4;
    QTest::newRow("more cells, lower plane") << 1.0 << 10.0 << 100.0 << 1000.0 << 10 << 4321.0 / 40;
    QTest::newRow("below the sea") << -8.0 << 0.0 << 0.0 << 0.0 << 2 << -1.0;
    QTest::newRow("no cells") << 52.0 << 1.0 << 1.0 << 1.0 << 0 << 0.0;
}

void tst_SquareGridVolume::levellingOfCornerSums()
{
    QFETCH(double, sum1);
    QFETCH(double, sum2);
    QFETCH(double, sum3);
    QFETCH(double, sum4);
    QFETCH(int, cells);
    QFETCH(double, expected);
    QCOMPARE(rk::levellingElevation({sum1, sum2, sum3, sum4}, cells), expected);
}

/// Squares of 100 m2: 2394 m3 lie above the datum.
void tst_SquareGridVolume::levellingOfTheTextbookGrid()
{
    const int textbookCells = 7;
    const double elevation = rk::levellingElevation({24.46, 17.38, 5.82, 4.77}, textbookCells);
    QVERIFY(std::fabs(elevation * textbookCells * 100 - 2394) < 1e-9);
}

void tst_SquareGridVolume::levellingOfOneCell()
{
    const rk::Levelling levelling =
        rk::levelGrid({{"1", 0, 0, 10}, {"2", 5, 0, 12}, {"3", 0, 5, 14}, {"4", 5, 5, 16}},
                      {{"A", square(0, 0, 5)}});
    QCOMPARE(levelling.elevation, 13.0);
    QCOMPARE(levelling.pointsOfCells.values("A"), QStringList({"4", "3", "2", "1"}));
}

/// An L of three cells: six points of one cell, one of two on each arm, one of three.
void tst_SquareGridVolume::levellingOfSharedPoints()
{
    const rk::Levelling levelling =
        rk::levelGrid({{"1", 0, 0, 1},
                       {"2", 5, 0, 2},
                       {"3", 10, 0, 4},
                       {"4", 0, 5, 8},
                       {"5", 5, 5, 16},
                       {"6", 10, 5, 32},
                       {"7", 0, 10, 64},
                       {"8", 5, 10, 128}},
                      {{"A", square(0, 0, 5)}, {"B", square(5, 0, 5)}, {"C", square(0, 5, 5)}});
    const double sum1 = 1 + 4 + 32 + 64 + 128;
    const double sum2 = 2 + 8;
    const double sum3 = 16;
    QCOMPARE(levelling.elevation, (sum1 + 2 * sum2 + 3 * sum3) / 12);
    QCOMPARE(levelling.pointsOfCells.size(), 12);
    QCOMPARE(levelling.pointsOfCells.values("C"), QStringList({"8", "7", "5", "4"}));
}

void tst_SquareGridVolume::pointsWithoutCells()
{
    const rk::Levelling levelling = rk::levelGrid({{"0", -9, -9, 1000},
                                                   {"1", 0, 0, 10},
                                                   {"2", 5, 0, 12},
                                                   {"3", 0, 5, 14},
                                                   {"4", 5, 5, 16},
                                                   {"5", 2, 2, -1000}},
                                                  {{"A", square(0, 0, 5)}});
    QCOMPARE(levelling.elevation, 13.0);
    QCOMPARE(levelling.pointsOfCells.size(), 4);
}

void tst_SquareGridVolume::cellsWithoutPoints()
{
    const rk::Levelling levelling =
        rk::levelGrid({{"1", 0, 0, 10}, {"2", 5, 0, 12}, {"3", 0, 5, 14}, {"4", 5, 5, 16}},
                      {{"A", square(0, 0, 5)}, {"B", square(50, 0, 5)}});
    QCOMPARE(levelling.elevation, 6.5); // They count in the denominator.
    QCOMPARE(levelling.pointsOfCells.uniqueKeys(), QStringList("A"));
    QCOMPARE(rk::levelGrid({}, {{"A", square(0, 0, 5)}}).elevation, 0.0);
}

void tst_SquareGridVolume::noCells()
{
    QCOMPARE(rk::levelGrid({}, {}).elevation, 0.0);
    const rk::Levelling levelling = rk::levelGrid({{"1", 0, 0, 10}}, {});
    QCOMPARE(levelling.elevation, 0.0);
    QVERIFY(levelling.pointsOfCells.isEmpty());
}

void tst_SquareGridVolume::pointsFoundLastComeFirst()
{
    // Corners in an order that is not the points'.
    const QPolygonF backwards({{5, 5}, {0, 5}, {5, 0}, {0, 0}});
    const rk::Levelling levelling =
        rk::levelGrid({{"1", 0, 0, 0}, {"2", 5, 0, 0}, {"3", 0, 5, 0}, {"4", 5, 5, 0}},
                      {{"A", backwards}, {"B", square(0, 0, 5)}});
    QCOMPARE(levelling.pointsOfCells.values("A"), QStringList({"4", "3", "2", "1"}));
    QCOMPARE(levelling.pointsOfCells.values("B"), QStringList({"4", "3", "2", "1"}));
}

void tst_SquareGridVolume::toleranceOfCorners_data()
{
    QTest::addColumn<QPointF>("corner");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<bool>("isFound");
    const QPointF origin(0, 0);
    QTest::newRow("exact") << origin << QPointF(0, 0) << true;
    QTest::newRow("just inside in x") << origin << QPointF(9.999e-7, 0) << true;
    QTest::newRow("just inside in y") << origin << QPointF(0, -9.999e-7) << true;
    QTest::newRow("just inside in both") << origin << QPointF(-9.999e-7, 9.999e-7) << true;
    QTest::newRow("on the limit in x") << origin << QPointF(1e-6, 0) << false;
    QTest::newRow("on the limit in y") << origin << QPointF(0, -1e-6) << false;
    QTest::newRow("outside in x") << origin << QPointF(-1.001e-6, 0) << false;
    QTest::newRow("outside in y") << origin << QPointF(0, 1.001e-6) << false;
    QTest::newRow("outside in one of both") << origin << QPointF(1e-7, 2e-6) << false;
    // The index divides a metre into 65536 parts; a corner between two of them.
    const QPointF between(3 + 1.0 / 65536, 7 + 1.0 / 65536);
    QTest::newRow("over a border of the index") << between << QPointF(-5e-7, -5e-7) << true;
    QTest::newRow("up to a border of the index") << between << QPointF(-5e-7, 5e-7) << true;
    QTest::newRow("negative places") << QPointF(-1.0 / 65536, -4) << QPointF(9e-7, -9e-7) << true;
    QTest::newRow("round the origin") << QPointF(-4e-7, -4e-7) << QPointF(8e-7, 8e-7) << true;
    QTest::newRow("far away, exact") << QPointF(1e15, -1e15) << QPointF(0, 0) << true;
    QTest::newRow("far away, next number") << QPointF(1e15, -1e15) << QPointF(0.125, 0) << false;
    QTest::newRow("farthest") << QPointF(1e308, -1e308) << QPointF(0, 0) << true;
}

void tst_SquareGridVolume::toleranceOfCorners()
{
    QFETCH(QPointF, corner);
    QFETCH(QPointF, offset);
    QFETCH(bool, isFound);
    const QPointF place = corner + offset;
    const rk::Levelling levelling =
        rk::levelGrid({{"1", place.x(), place.y(), 8}},
                      {{"A", QPolygonF()}, {"B", QPolygonF(QVector<QPointF>{corner})}});
    QCOMPARE(levelling.pointsOfCells.contains("B", "1"), isFound);
    QCOMPARE(levelling.elevation, isFound ? 1.0 : 0.0);
}

void tst_SquareGridVolume::pointsOnMoreThanFourCells()
{
    std::vector<rk::GridCell> cells;
    for (int i = 0; i < 5; ++i)
        cells.push_back({named("C", i), square(0, 0, 5 + i)});
    const rk::Levelling levelling = rk::levelGrid({{"1", 0, 0, 1000}, {"2", 5, 0, 30}}, cells);
    QCOMPARE(levelling.elevation, 30.0 / 20); // The first belongs to five.
    QCOMPARE(levelling.pointsOfCells.size(), 6);
}

void tst_SquareGridVolume::pointOnTwoCornersOfACell()
{
    const QPolygonF folded({{0, 0}, {5, 0}, {0, 0}, {5, 5}});
    const rk::Levelling levelling =
        rk::levelGrid({{"1", 0, 0, 10}, {"2", 5, 0, 6}}, {{"A", folded}});
    QCOMPARE(levelling.pointsOfCells.values("A"), QStringList({"2", "1", "1"}));
    QCOMPARE(levelling.elevation, (6.0 + 2 * 10.0) / 4);
}

void tst_SquareGridVolume::onlyTheFirstFourCornersCount()
{
    QPolygonF closed = square(0, 0, 5);
    closed.append(closed.first());
    closed.append({9, 9});
    const rk::Levelling levelling =
        rk::levelGrid({{"1", 0, 0, 10}, {"9", 9, 9, 10}}, {{"A", closed}});
    QCOMPARE(levelling.pointsOfCells.values("A"), QStringList("1"));
    QCOMPARE(levelling.elevation, 2.5);

    // Fewer than four: those that are there.
    const rk::Levelling few = rk::levelGrid({{"1", 0, 0, 10}, {"2", 5, 0, 10}},
                                            {{"A", QPolygonF()},
                                             {"B", QPolygonF(QVector<QPointF>{{0, 0}})},
                                             {"C", QPolygonF(QVector<QPointF>{{5, 0}, {0, 0}})}});
    QCOMPARE(few.pointsOfCells.keys(), QStringList({"B", "C", "C"}));
    QCOMPARE(few.elevation, (10.0 + 2 * 10.0) / 12);
}

void tst_SquareGridVolume::unusableNumbers_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("elevation");
    for (const double bad : {notANumber, infinity, -infinity}) {
        QTest::addRow("x is %f", bad) << bad << 0.0 << 7.0;
        QTest::addRow("y is %f", bad) << 0.0 << bad << 7.0;
        QTest::addRow("elevation is %f", bad) << 0.0 << 0.0 << bad;
        QTest::addRow("all are %f", bad) << bad << bad << bad;
    }
}

/// A point that was not measured leaves a hole and spoils nothing else.
void tst_SquareGridVolume::unusableNumbers()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, elevation);
    const rk::Levelling levelling = rk::levelGrid(
        {{"1", x, y, elevation}, {"2", 5, 0, 12}, {"3", 0, 5, 14}, {"4", 5, 5, 16}},
        {{"A", square(0, 0, 5)},
         {"B", QPolygonF({{x, y}, {notANumber, notANumber}, {infinity, 0}, {5, 5}})}});
    QCOMPARE(levelling.pointsOfCells.values("A"), QStringList({"4", "3", "2"}));
    QCOMPARE(levelling.pointsOfCells.values("B"), QStringList("4"));
    QCOMPARE(levelling.elevation, (12.0 + 14.0 + 2 * 16.0) / 8);
}

void tst_SquareGridVolume::sameAsTheLiteralLoop_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<double>("jitter");
    QTest::addColumn<double>("scale");
    QTest::newRow("one cell") << 1 << 1 << 0.0 << 1.0;
    QTest::newRow("exact corners") << 11 << 7 << 0.0 << 1.0;
    QTest::newRow("a little off") << 11 << 7 << 4e-7 << 1.0;
    QTest::newRow("about the tolerance") << 13 << 9 << 1.1e-6 << 1.0;
    QTest::newRow("mostly off") << 11 << 7 << 4e-6 << 1.0;
    // The cells themselves are not larger than a few tolerances.
    QTest::newRow("cells of a hundredth of a millimetre") << 9 << 9 << 1e-6 << 5e-7;
    QTest::newRow("cells of a micrometre") << 6 << 6 << 2e-7 << 5e-8;
    QTest::newRow("far from the origin") << 9 << 6 << 4e-7 << 4e3;
}

void tst_SquareGridVolume::sameAsTheLiteralLoop()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(double, jitter);
    QFETCH(double, scale);
    std::mt19937 random(20260301);
    std::uniform_real_distribution<double> offset(-jitter, jitter);
    std::uniform_int_distribution<int> dice(0, 5);
    Grid grid = regularGrid(columns, rows);
    for (rk::GridPoint& point : grid.points) {
        point.x = (point.x - (scale < 1 ? 500000 : 0)) * scale + offset(random);
        point.y = (point.y - (scale < 1 ? 3400000 : 0)) * scale + offset(random);
    }
    for (rk::GridCell& cell : grid.cells) {
        for (QPointF& corner : cell.corners) {
            corner -= scale < 1 ? QPointF(500000, 3400000) : QPointF();
            corner = corner * scale + QPointF(offset(random), offset(random));
        }
        if (dice(random) == 0) // Corners twice.
            cell.corners[1] = cell.corners[0];
    }
    for (const rk::GridPoint& point : regularGrid(columns, rows).points) {
        const auto original = grid.points[std::size_t(point.name.mid(1).toInt())];
        if (dice(random) <= 1) // Points twice, and nearly so.
            grid.points.push_back({"Q" + point.name, original.x, original.y, 400 + offset(random)});
        if (dice(random) == 0)
            grid.points.push_back(
                {"R" + point.name, original.x + 7e-7, original.y - 7e-7, point.elevation / 3});
    }
    std::sort(grid.points.begin(), grid.points.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });

    const rk::Levelling expected = levelledLiterally(grid);
    const rk::Levelling actual = rk::levelGrid(grid.points, grid.cells);
    QCOMPARE(actual.pointsOfCells.keys(), expected.pointsOfCells.keys());
    QCOMPARE(actual.pointsOfCells.values(), expected.pointsOfCells.values());
    QVERIFY2(actual.elevation == expected.elevation,
             qPrintable(QString::number(actual.elevation - expected.elevation)));
    QVERIFY(!expected.pointsOfCells.isEmpty());
}

/// Seconds when every step is linear, hours when one is not.
void tst_SquareGridVolume::aMillionPoints()
{
    const Grid grid = regularGrid(999, 999);
    const rk::Levelling levelling = rk::levelGrid(grid.points, grid.cells);
    QCOMPARE(levelling.pointsOfCells.size(), 4 * 999 * 999);
    QVERIFY(levelling.elevation > 400 && levelling.elevation < 450);

    // All at one place, where no cell is.
    std::vector<rk::GridPoint> heap = grid.points;
    for (rk::GridPoint& point : heap)
        point.x = point.y = 0;
    QVERIFY(rk::levelGrid(heap, grid.cells).pointsOfCells.isEmpty());
}

void tst_SquareGridVolume::zeroPoints_data()
{
    QTest::addColumn<double>("h1");
    QTest::addColumn<double>("h2");
    QTest::addColumn<double>("expected");
    QTest::newRow("middle") << 2.0 << -2.0 << 10.0;
    QTest::newRow("nearer to the lower height") << 1.0 << -3.0 << 5.0;
    QTest::newRow("signs do not matter") << -1.0 << 3.0 << 5.0;
    QTest::newRow("at the first end") << 0.0 << -3.0 << 0.0;
    QTest::newRow("at the second end") << 4.0 << 0.0 << 20.0;
}

void tst_SquareGridVolume::zeroPoints()
{
    QFETCH(double, h1);
    QFETCH(double, h2);
    QFETCH(double, expected);
    QCOMPARE(rk::zeroPointDistance(h1, h2, 20.0), expected);
}

void tst_SquareGridVolume::oneSign_data()
{
    QTest::addColumn<CornerHeights>("heights");
    QTest::addColumn<double>("excavation");
    QTest::addColumn<double>("fill");
    // 20 x 20 x (1 + 2 + 3 + 4) / 4
    QTest::newRow("all above") << CornerHeights{1, 2, 3, 4} << 1000.0 << 0.0;
    QTest::newRow("all below") << CornerHeights{-1, -2, -3, -4} << 0.0 << -1000.0;
}

void tst_SquareGridVolume::oneSign()
{
    QFETCH(CornerHeights, heights);
    QFETCH(double, excavation);
    QFETCH(double, fill);
    QCOMPARE(rk::volumeOfOneSign(heights, 20.0), excavation + fill);
    compareVolumes(rk::cellVolume(heights, 20.0), excavation, fill);
}

void tst_SquareGridVolume::twoAndTwo_data()
{
    QTest::addColumn<CornerHeights>("heights");
    QTest::addColumn<double>("excavation");
    QTest::addColumn<double>("fill");
    // Side 12. On a side: from the corner of 1 the zero point is 12 x 1 / (1 + 3) = 3 away, from
    // that of 2 it is 12 x 2 / (2 + 4) = 4. Above: (3 + 4) x 12 x (1 + 2) / 8 = 31.5; below:
    // (24 - 3 - 4) x 12 x (-3 - 4) / 8 = -178.5.
    QTest::newRow("0 and 1 above") << CornerHeights{1, 2, -3, -4} << 31.5 << -178.5;
    QTest::newRow("1 and 3 above") << CornerHeights{-3, 1, -4, 2} << 31.5 << -178.5;
    QTest::newRow("2 and 3 above") << CornerHeights{-3, -4, 1, 2} << 31.5 << -178.5;
    QTest::newRow("0 and 2 above") << CornerHeights{1, -3, 2, -4} << 31.5 << -178.5;
    // Side 12, 0 of 1 and 3 of 3, 1 of 1 and 2 of 3 in absolute value. Zero points: from 0 to 1
    // 12 x 1/2 = 6, from 0 to 2 12 x 1/4 = 3, q = 18; from 3 to 1 12 x 3/4 = 9, from 3 to 2
    // 12 x 3/6 = 6, p = 54. Triangles: 18 x 1 / 6 + 54 x 3 / 6 = 30; hexagon:
    // (288 - 54 - 18) x (1 + 3) / 12 = 72.
    QTest::newRow("0 and 3 above") << CornerHeights{1, -1, -3, 3} << 30.0 << -72.0;
    QTest::newRow("1 and 2 above") << CornerHeights{-1, 1, 3, -3} << 72.0 << -30.0;
}

void tst_SquareGridVolume::twoAndTwo()
{
    QFETCH(CornerHeights, heights);
    QFETCH(double, excavation);
    QFETCH(double, fill);
    compareVolumes(rk::volumeOfTwoAndTwo(heights, 12.0), excavation, fill);
    compareVolumes(rk::cellVolume(heights, 12.0), excavation, fill);
}

void tst_SquareGridVolume::oneAndThree_data()
{
    QTest::addColumn<CornerHeights>("heights");
    QTest::addColumn<double>("excavation");
    QTest::addColumn<double>("fill");
    // Side 12, a lone corner of 2 with neighbours of 1 and 4 and 5 across. Zero points: 12 x 2/3 =
    // 8 and 12 x 2/6 = 4; triangle 8 x 4 x 2 / 6 = 64/6; pentagon (288 - 32) x (1 + 4 + 5) / 10 =
    // 256.
    const double triangle = 64.0 / 6;
    QTest::newRow("0 above") << CornerHeights{2, -1, -4, -5} << triangle << -256.0;
    QTest::newRow("1 above") << CornerHeights{-1, 2, -5, -4} << triangle << -256.0;
    QTest::newRow("2 above") << CornerHeights{-1, -5, 2, -4} << triangle << -256.0;
    QTest::newRow("3 above") << CornerHeights{-5, -1, -4, 2} << triangle << -256.0;
    QTest::newRow("0 below") << CornerHeights{-2, 1, 4, 5} << 256.0 << -triangle;
    QTest::newRow("1 below") << CornerHeights{1, -2, 5, 4} << 256.0 << -triangle;
    QTest::newRow("2 below") << CornerHeights{1, 5, -2, 4} << 256.0 << -triangle;
    QTest::newRow("3 below") << CornerHeights{5, 1, 4, -2} << 256.0 << -triangle;
}

void tst_SquareGridVolume::oneAndThree()
{
    QFETCH(CornerHeights, heights);
    QFETCH(double, excavation);
    QFETCH(double, fill);
    compareVolumes(rk::volumeOfOneAndThree(heights, 12.0), excavation, fill);
    compareVolumes(rk::cellVolume(heights, 12.0), excavation, fill);
}

void tst_SquareGridVolume::squaresOfAnotherKind()
{
    for (const CornerHeights& heights :
         {CornerHeights{-1, -1, -1, -1}, CornerHeights{0, 0, 0, 0}, CornerHeights{-1, -1, 1, -1},
          CornerHeights{1, 1, 1, -1}, CornerHeights{1, 2, 3, 4}})
        compareVolumes(rk::volumeOfTwoAndTwo(heights, 12.0), 0.0, 0.0);
    for (const CornerHeights& heights : {CornerHeights{1, 2, 3, 4}, CornerHeights{5, 5, 5, 5}})
        compareVolumes(rk::volumeOfOneAndThree(heights, 12.0), 0.0, 0.0);
}

void tst_SquareGridVolume::zeroIsNotAbove_data()
{
    QTest::addColumn<CornerHeights>("heights");
    QTest::addColumn<double>("excavation");
    QTest::addColumn<double>("fill");
    QTest::newRow("all zero") << CornerHeights{0, 0, 0, 0} << 0.0 << 0.0;
    // No height below zero, but one that is not above: the pentagon takes the whole square.
    QTest::newRow("one zero") << CornerHeights{0, 1, 2, 2} << 200.0 * 5 / 10 << 0.0;
    // 10 x 10 x 6 / 6 and, with zero points in the neighbours, (200 - 100) x 0 / 10.
    QTest::newRow("three zero") << CornerHeights{6, 0, 0, 0} << 100.0 << 0.0;
    // Zero points in 2 and 3: the trapezium is the square, twice as large as the wedge over it.
    QTest::newRow("two zero") << CornerHeights{1, 3, 0, 0} << 20.0 * 10 * 4 / 8 << 0.0;
    QTest::newRow("zero beside below") << CornerHeights{0, -4, -4, -4} << 0.0 << -300.0;
}

void tst_SquareGridVolume::zeroIsNotAbove()
{
    QFETCH(CornerHeights, heights);
    QFETCH(double, excavation);
    QFETCH(double, fill);
    compareVolumes(rk::cellVolume(heights, 10.0), excavation, fill);
}

void tst_SquareGridVolume::everySignPatternKeepsItsSigns()
{
    for (int code = 0; code < 81; ++code) {
        CornerHeights heights;
        int rest = code;
        for (std::size_t i = 0; i < 4; ++i, rest /= 3)
            heights[i] = (rest % 3 - 1) * (1.5 + double(i));
        const CellVolume volume = rk::cellVolume(heights, 20.0);
        const bool anyAbove = *std::max_element(heights.begin(), heights.end()) > 0;
        const bool anyBelow = *std::min_element(heights.begin(), heights.end()) < 0;
        QVERIFY(std::isfinite(volume.excavation) && std::isfinite(volume.fill));
        QCOMPARE(volume.excavation > 0, anyAbove);
        QCOMPARE(volume.fill < 0, anyBelow);
        QVERIFY(volume.excavation >= 0 && volume.fill <= 0);
    }
}

void tst_SquareGridVolume::sideScalesVolumes()
{
    for (const CornerHeights& heights :
         {CornerHeights{1, 2, 3, 4}, {1, 2, -3, -4}, {1, -1, -3, 3}, {2, -1, -4, -5}}) {
        const CellVolume once = rk::cellVolume(heights, 10.0);
        compareVolumes(rk::cellVolume(heights, 20.0), 4 * once.excavation, 4 * once.fill);
    }
}

void tst_SquareGridVolume::turningACellKeepsItsVolumes()
{
    for (const CornerHeights& heights : {CornerHeights{1, 2, 3, 4},
                                         {1, 2, -3, -4},
                                         {-1, 2, -3, 4},
                                         {1, -1, -3, 3},
                                         {2, -1, -4, -5},
                                         {-2, 1, 4, 5}}) {
        const CellVolume volume = rk::cellVolume(heights, 12.0);
        const CellVolume other = rk::cellVolume(turned(heights), 12.0);
        QVERIFY(std::fabs(other.excavation - volume.excavation) < 1e-12);
        QVERIFY(std::fabs(other.fill - volume.fill) < 1e-12);
    }
}

void tst_SquareGridVolume::notANumberIsNoCrash()
{
    for (const double bad : {notANumber, infinity, -infinity}) {
        for (int mask = 0; mask < 16; ++mask) {
            CornerHeights heights{1, -2, 3, -4};
            for (std::size_t i = 0; i < 4; ++i) {
                if (mask >> i & 1)
                    heights[i] = bad;
            }
            rk::cellVolume(heights, 20.0);
        }
    }
    QVERIFY(
        std::isnan(rk::cellVolume({notANumber, notANumber, notANumber, notANumber}, 20.0).fill));
}

void tst_SquareGridVolume::totals()
{
    rk::VolumeTotals totals;
    QCOMPARE(totals.area, 0.0);
    rk::addCell(totals, {3.0, -1.0}, 20.0);
    rk::addCell(totals, {}, 20.0); // A cell without volume has an area all the same.
    rk::addCell(totals, {0.5, -12.5}, 10.0);
    QCOMPARE(totals.area, 900.0);
    QCOMPARE(totals.excavation, 3.5);
    QCOMPARE(totals.fill, -13.5);
}

QTEST_GUILESS_MAIN(tst_SquareGridVolume)
#include "tst_SquareGridVolume.moc"
