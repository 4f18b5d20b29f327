// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/CutAndFill.h"
#include "terrain/EarthworkGrid.h"
#include "terrain/SampleTerrain.h"

#include <QSet>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QRectF terrain(0, 0, 995, 995);

bool near(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) < 1e-9;
}

bool isOn(const QRectF& area, const EarthworkGrid& grid)
{
    const QRectF bounds = grid.outline().boundingRect();
    constexpr double rounding = 1e-9;
    return area.adjusted(-rounding, -rounding, rounding, rounding).contains(bounds);
}

} // namespace

class tst_EarthworkGrid : public QObject
{
    Q_OBJECT

private slots:
    void cornersStandAroundTheCentre();
    void turningIsCounterClockwise();
    void namesAreRowByRow_data();
    void namesAreRowByRow();
    void namesHaveOneLength_data();
    void namesHaveOneLength();
    void samplesAreTheTerrain_data();
    void samplesAreTheTerrain();
    void cellAtAPlace();
    void laidGridHasTheWishedWidth_data();
    void laidGridHasTheWishedWidth();
    void laidGridStaysOnTheTerrainWhenTurned();
    void gridComesBackOntoTheTerrain_data();
    void gridComesBackOntoTheTerrain();
    void volumesAreRead();
    void badVolumesAreLeftOut();
    void coloursTellCutFromFill();
    void volumeTexts_data();
    void volumeTexts();
};

void tst_EarthworkGrid::cornersStandAroundTheCentre()
{
    const EarthworkGrid grid = {10, 4, 2, {100, 50}, 0};
    QCOMPARE(grid.width(), 40.0);
    QCOMPARE(grid.height(), 20.0);
    QVERIFY(near(grid.corner(0, 0), {80, 60}));
    QVERIFY(near(grid.corner(4, 0), {120, 60}));
    QVERIFY(near(grid.corner(0, 2), {80, 40}));
    QVERIFY(near(grid.corner(2, 1), {100, 50}));
    QCOMPARE(grid.outline().size(), 4);
    QVERIFY(near(grid.outline().at(2), {120, 40}));
}

void tst_EarthworkGrid::turningIsCounterClockwise()
{
    const EarthworkGrid grid = EarthworkGrid{10, 2, 2, {0, 0}, 0}.turned(90);
    QVERIFY(near(grid.corner(0, 0), {-10, -10})); // Was at -10, 10.
    QVERIFY(near(grid.corner(2, 0), {-10, 10}));
    QCOMPARE(grid.turned(200).angle, -70.0);
}

void tst_EarthworkGrid::namesAreRowByRow_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<double>("angle");
    const int most = EarthworkGrid::mostCellsPerSide;
    for (const int size : {1, 2, 8, 9, 10, 11, 34, 98, 99, 100, most})
        QTest::addRow("%d x %d", size, size) << size << size << 0.0;
    QTest::addRow("1 x %d", most) << 1 << most << 0.0;
    QTest::addRow("%d x 1", most) << most << 1 << 0.0;
    QTest::newRow("99 x 9") << 99 << 9 << 0.0;
    for (const double angle : {-135.0, 17.5, 90.0, 180.0})
        QTest::addRow("turned by %.1f", angle) << 100 << 101 << angle;
}

/// In every cell, and by the way in which the corners are really named.
void tst_EarthworkGrid::namesAreRowByRow()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(double, angle);
    const EarthworkGrid grid = {4, columns, rows, {500, 500}, angle};
    const GridSamples samples = sampled(grid, sampleTerrain());
    QCOMPARE(samples.points.size(), (columns + 1) * (rows + 1));
    QCOMPARE(samples.cells.size(), columns * rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const std::array<QString, 4> names = {
                grid.cornerName(column, row), grid.cornerName(column + 1, row),
                grid.cornerName(column, row + 1), grid.cornerName(column + 1, row + 1)};
            QVERIFY2(std::is_sorted(names.begin(), names.end()), qPrintable(names[0]));
            const QPolygonF cell =
                samples.cells.value(grid.cellName(column, row)).value<QPolygonF>();
            QCOMPARE(cell.size(), 4);
            // Row by row of the corners is the cell's polygon without going around.
            const std::array<int, 4> corners = {0, 1, 3, 2};
            for (size_t i = 0; i < 4; ++i) {
                const QVariantList point = samples.points.value(names[i]).toList();
                QVERIFY(near({point[0].toDouble(), point[1].toDouble()}, cell[corners[i]]));
            }
        }
    }
}

void tst_EarthworkGrid::namesHaveOneLength_data()
{
    QTest::addColumn<int>("cells");
    QTest::addColumn<QString>("last");
    QTest::newRow("few") << 3 << "P04-04";
    QTest::newRow("two digits") << 98 << "P99-99";
    QTest::newRow("three digits") << 99 << "P100-100";
}

void tst_EarthworkGrid::namesHaveOneLength()
{
    QFETCH(int, cells);
    const EarthworkGrid grid = {1, cells, cells, {}, 0};
    QTEST(grid.cornerName(cells, cells), "last");
    QCOMPARE(grid.cornerName(0, 0).size(), grid.cornerName(cells, cells).size());
    QCOMPARE(grid.cellName(0, 0).size(), grid.cellName(cells - 1, 0).size());
    QVERIFY(grid.cellName(0, 0).startsWith(QLatin1Char('C')));
}

void tst_EarthworkGrid::samplesAreTheTerrain_data()
{
    QTest::addColumn<double>("angle");
    QTest::newRow("straight") << 0.0;
    QTest::newRow("turned") << 33.0;
}

void tst_EarthworkGrid::samplesAreTheTerrain()
{
    QFETCH(double, angle);
    const ElevationModel model = sampleTerrain();
    const EarthworkGrid grid = {13, 7, 5, {480, 510}, angle};
    const GridSamples samples = sampled(grid, model);
    QSet<QString> elevations;
    for (int row = 0; row <= 5; ++row) {
        for (int column = 0; column <= 7; ++column) {
            const QVariantList point = samples.points.value(grid.cornerName(column, row)).toList();
            QCOMPARE(point.size(), 3);
            const QPointF place = grid.corner(column, row);
            QCOMPARE(point[0].toDouble(), place.x());
            QCOMPARE(point[1].toDouble(), place.y());
            QCOMPARE(point[2].toDouble(), model.elevation(place));
            elevations.insert(point[2].toString());
        }
    }
    QCOMPARE(elevations.size(), 48);
}

void tst_EarthworkGrid::cellAtAPlace()
{
    const EarthworkGrid grid = EarthworkGrid{10, 3, 2, {200, 100}, 0}.turned(40);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QPolygonF cell = grid.cell(column, row);
            const QPointF middle = (cell[0] + cell[2]) / 2;
            QCOMPARE(grid.cellAt(middle), std::optional<QPoint>({column, row}));
        }
    }
    QVERIFY(!grid.cellAt(grid.corner(0, 0) - QPointF(1, 0)));
    QVERIFY(!grid.contains({200, 140}));
    QVERIFY(grid.contains({200, 100}));
}

void tst_EarthworkGrid::laidGridHasTheWishedWidth_data()
{
    QTest::addColumn<double>("side");
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("cells"); ///< 0 for no grid.
    QTest::newRow("usual") << 20.0 << 250.0 << 13;
    QTest::newRow("wider than the terrain") << 20.0 << 5000.0 << 35;
    QTest::newRow("narrower than a cell") << 20.0 << 3.0 << 1;
    QTest::newRow("smallest cells") << 1.0 << 400.0 << EarthworkGrid::mostCellsPerSide;
    QTest::newRow("as large as can be turned") << 703.0 << 250.0 << 1;
    QTest::newRow("too large to be turned") << 704.0 << 250.0 << 0;
    QTest::newRow("largest") << 100000.0 << 250.0 << 0;
    QTest::newRow("no size") << 0.0 << 250.0 << 0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 250.0 << 0;
}

void tst_EarthworkGrid::laidGridHasTheWishedWidth()
{
    QFETCH(double, side);
    QFETCH(double, width);
    QFETCH(int, cells);
    const auto grid = EarthworkGrid::laid(side, width, {500, 500}, terrain);
    QCOMPARE(grid.has_value(), cells > 0);
    if (!grid)
        return;
    QCOMPARE(grid->columns, cells);
    QCOMPARE(grid->rows, cells);
    QCOMPARE(grid->side, side);
    QVERIFY(isOn(terrain, *grid));
}

void tst_EarthworkGrid::laidGridStaysOnTheTerrainWhenTurned()
{
    for (const double side : {1.0, 20.0, 137.0, 700.0}) {
        const auto grid = EarthworkGrid::laid(side, 2000, {500, 500}, terrain);
        QVERIFY(grid);
        for (int angle = 0; angle < 360; angle += 5)
            QVERIFY(isOn(terrain, grid->turned(angle).within(terrain)));
    }
}

void tst_EarthworkGrid::gridComesBackOntoTheTerrain_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("inside") << QPointF(400, 300) << QPointF(400, 300);
    QTest::newRow("west") << QPointF(-80, 300) << QPointF(50, 300);
    QTest::newRow("north-east") << QPointF(2000, 990) << QPointF(945, 945);
    QTest::newRow("south") << QPointF(400, 49) << QPointF(400, 50);
}

void tst_EarthworkGrid::gridComesBackOntoTheTerrain()
{
    QFETCH(QPointF, place);
    QFETCH(QPointF, expected);
    const EarthworkGrid grid = EarthworkGrid{25, 4, 4, place, 0}.within(terrain);
    QVERIFY(near(grid.centre, expected));
}

void tst_EarthworkGrid::volumesAreRead()
{
    const QVariantMap map = {{"C01-01", QVariantList{12.5, -3.0}},
                             {"C01-02", QVariantList{0.0, -40.0}}};
    const QHash<QString, CutAndFill> volumes = readVolumes(map);
    QCOMPARE(volumes.size(), 2);
    QCOMPARE(volumes.value("C01-01").cut, 12.5);
    QCOMPARE(volumes.value("C01-01").fill, -3.0);
    QCOMPARE(volumes.value("C01-01").net(), 9.5);
    QCOMPARE(largestNet(volumes), 40.0);
    QCOMPARE(largestNet({}), 0.0);
}

void tst_EarthworkGrid::badVolumesAreLeftOut()
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const QVariantMap map = {{"short", QVariantList{1.0}},
                             {"empty", QVariantList()},
                             {"text", QStringLiteral("12")},
                             {"nan", QVariantList{notANumber, 0.0}},
                             {"good", QVariantList{1.0, 0.0}}};
    QCOMPARE(readVolumes(map).keys(), QStringList("good"));
    QVERIFY(readVolumes(42).isEmpty());
    QVERIFY(readVolumes({}).isEmpty());
}

void tst_EarthworkGrid::coloursTellCutFromFill()
{
    const QColor cut = volumeColour(100, 100);
    const QColor fill = volumeColour(-100, 100);
    QVERIFY2(cut.red() > cut.blue() + 80, "warm");
    QVERIFY2(fill.blue() > fill.red() + 80, "cool");
    QCOMPARE(volumeColour(900, 100), cut);
    const QColor none = volumeColour(0, 100);
    QVERIFY(std::abs(none.red() - none.blue()) < 20);
    const QColor some = volumeColour(30, 100);
    QVERIFY(some.saturation() > none.saturation() && some.saturation() < cut.saturation());
    QVERIFY(cut.alpha() < 255 && none.alpha() < cut.alpha());
}

void tst_EarthworkGrid::volumeTexts_data()
{
    QTest::addColumn<double>("volume");
    QTest::addColumn<QString>("text");
    QTest::newRow("cut") << 1234.4 << "+1234";
    QTest::newRow("fill") << -56.7 << QString::fromUtf8("−57");
    QTest::newRow("small cut") << 4.56 << "+4.6";
    QTest::newRow("rounded up to ten") << 9.96 << "+10";
    QTest::newRow("small fill") << -0.24 << QString::fromUtf8("−0.2");
    QTest::newRow("next to nothing") << -0.04 << "0";
    QTest::newRow("nothing") << 0.0 << "0";
}

void tst_EarthworkGrid::volumeTexts()
{
    QFETCH(double, volume);
    QTEST(volumeText(volume), "text");
}

QTEST_GUILESS_MAIN(tst_EarthworkGrid)
#include "tst_EarthworkGrid.moc"
