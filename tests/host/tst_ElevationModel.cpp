// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/Contours.h"
#include "terrain/ElevationModel.h"
#include "terrain/Relief.h"
#include "terrain/SampleTerrain.h"

#include <QTest>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

/// Four by four posts 10 metres apart, each unlike the others.
ElevationModel patch()
{
    return {4, 10, [](double x, double y) { return 100 + x * 0.3 + y * 0.7 + x * y * 0.01; }};
}

double luminance(const QColor& colour)
{
    return 0.299 * colour.red() + 0.587 * colour.green() + 0.114 * colour.blue();
}

} // namespace

class tst_ElevationModel : public QObject
{
    Q_OBJECT

private slots:
    void postsAreThoseOfTheSurface();
    void elevationIsBilinear_data();
    void elevationIsBilinear();
    void slopeOfAPlane();
    void shareOfLevelTerrain();
    void sampleHasItsShapes();
    void sampleIsTheSameAgain();
    void sampleIsSmooth();
    void coloursGetLighter();
    void colourBeyondTheEnds();
    void lightComesFromTheNorthWest_data();
    void lightComesFromTheNorthWest();
    void imageIsTheTerrain();
    void imageHasNorthAtTheTop();
    void contoursLieOnTheirElevation();
    void contoursOfAPlaneAreStraight();
    void contourGoesAroundAHill();
};

void tst_ElevationModel::postsAreThoseOfTheSurface()
{
    const ElevationModel model = patch();
    QCOMPARE(model.postsPerSide(), 4);
    QCOMPARE(model.spacing(), 10.0);
    QCOMPARE(model.extent(), QRectF(0, 0, 30, 30));
    QCOMPARE(model.post(0, 0), 100.0);
    QCOMPARE(model.post(3, 0), 109.0);
    QCOMPARE(model.post(0, 3), 121.0);
    QCOMPARE(model.lowest(), 100.0);
    QCOMPARE(model.highest(), 139.0);
}

void tst_ElevationModel::elevationIsBilinear_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<double>("expected");
    // In each square this surface is bilinear itself.
    QTest::newRow("post") << QPointF(10, 20) << 119.0;
    QTest::newRow("on a side") << QPointF(15, 20) << 121.5;
    QTest::newRow("middle of a square") << QPointF(15, 25) << 125.75;
    QTest::newRow("off the middle") << QPointF(11, 28) << 125.98;
    QTest::newRow("north-east corner") << QPointF(30, 30) << 139.0;
    QTest::newRow("beyond the west") << QPointF(-50, 10) << 107.0;
    QTest::newRow("beyond the north-east") << QPointF(99, 99) << 139.0;
}

void tst_ElevationModel::elevationIsBilinear()
{
    QFETCH(QPointF, place);
    QFETCH(double, expected);
    QVERIFY(std::abs(patch().elevation(place) - expected) < 1e-9);
}

void tst_ElevationModel::slopeOfAPlane()
{
    const ElevationModel model(5, 4, [](double x, double y) { return 0.25 * x - 0.5 * y; });
    for (const QPoint post : {QPoint(2, 2), QPoint(0, 0), QPoint(4, 4), QPoint(0, 3)})
        QCOMPARE(model.slopeAtPost(post.x(), post.y()), QPointF(0.25, -0.5));
}

void tst_ElevationModel::shareOfLevelTerrain()
{
    const ElevationModel level(3, 1, [](double, double) { return 7.0; });
    QCOMPARE(level.share(7), 0.0);
    QCOMPARE(patch().share(100), 0.0);
    QCOMPARE(patch().share(139), 1.0);
    QCOMPARE(patch().share(119.5), 0.5);
}

void tst_ElevationModel::sampleHasItsShapes()
{
    const ElevationModel model = sampleTerrain();
    QCOMPARE(model.postsPerSide(), 200);
    QCOMPARE(model.extent(), QRectF(0, 0, 995, 995));
    QVERIFY(model.lowest() > 400 && model.highest() < 600);
    QVERIFY(model.highest() - model.lowest() > 50);
    const double plain = model.elevation({520, 560});
    QVERIFY2(model.elevation({285, 455}) > plain + 25, "the hill");
    QVERIFY2(model.elevation({705, 345}) < plain - 15, "the pit");
    // Across the ridge it goes up and down again, along it it stays up.
    for (const double x : {600.0, 750.0, 900.0}) {
        double top = 0;
        for (double y = 650; y < 900; y += 5)
            top = std::max(top, model.elevation({x, y}));
        QVERIFY2(top > model.elevation({x, 560}) + 12, "south of the ridge");
        QVERIFY2(top > model.elevation({x, 990}) + 8, "north of the ridge");
    }
}

void tst_ElevationModel::sampleIsTheSameAgain()
{
    const ElevationModel a = sampleTerrain();
    const ElevationModel b = sampleTerrain();
    for (int row = 0; row < a.postsPerSide(); ++row) {
        for (int column = 0; column < a.postsPerSide(); ++column)
            QVERIFY(a.post(column, row) == b.post(column, row));
    }
}

/// No cliff, and no plane either.
void tst_ElevationModel::sampleIsSmooth()
{
    const ElevationModel model = sampleTerrain();
    double steepest = 0;
    int level = 0;
    for (int row = 0; row < model.postsPerSide(); ++row) {
        for (int column = 0; column < model.postsPerSide(); ++column) {
            const QPointF slope = model.slopeAtPost(column, row);
            const double rise = std::hypot(slope.x(), slope.y());
            QVERIFY(std::isfinite(rise));
            steepest = std::max(steepest, rise);
            level += rise < 1e-6 ? 1 : 0;
        }
    }
    QVERIFY2(steepest > 0.3 && steepest < 1.2, qPrintable(QString::number(steepest)));
    QVERIFY(level < 10);
}

void tst_ElevationModel::coloursGetLighter()
{
    QVERIFY(luminance(Relief::elevationColour(1)) > luminance(Relief::elevationColour(0)) + 60);
    // Without steps.
    for (int i = 0; i < 100; ++i) {
        const QColor a = Relief::elevationColour(i / 100.0);
        const QColor b = Relief::elevationColour((i + 1) / 100.0);
        QVERIFY(std::abs(a.red() - b.red()) < 8 && std::abs(a.green() - b.green()) < 8
                && std::abs(a.blue() - b.blue()) < 8);
    }
}

void tst_ElevationModel::colourBeyondTheEnds()
{
    QCOMPARE(Relief::elevationColour(-3), Relief::elevationColour(0));
    QCOMPARE(Relief::elevationColour(4), Relief::elevationColour(1));
    QCOMPARE(Relief::elevationColour(std::nan("")), Relief::elevationColour(0));
}

void tst_ElevationModel::lightComesFromTheNorthWest_data()
{
    QTest::addColumn<QPointF>("slope");
    QTest::addColumn<int>("sign"); ///< Against level ground.
    QTest::newRow("faces north-west") << QPointF(0.3, -0.3) << 1;
    QTest::newRow("faces south-east") << QPointF(-0.3, 0.3) << -1;
    QTest::newRow("faces west") << QPointF(0.3, 0) << 1;
    QTest::newRow("faces south") << QPointF(0, 0.3) << -1;
}

void tst_ElevationModel::lightComesFromTheNorthWest()
{
    QFETCH(QPointF, slope);
    QFETCH(int, sign);
    const double level = Relief::hillshade({0, 0});
    QVERIFY(level > 0.5 && level < 0.9);
    QVERIFY((Relief::hillshade(slope) - level) * sign > 0.05);
    QVERIFY(Relief::hillshade(slope * 1000) >= 0);
    QVERIFY(Relief::hillshade(slope * 1000) <= 1);
}

void tst_ElevationModel::imageIsTheTerrain()
{
    const QImage image = Relief::image(sampleTerrain(), 2);
    QCOMPARE(image.size(), QSize(398, 398));
    const auto at = [&](double x, double y) {
        return image.pixelColor(int(x / 2.5), 397 - int(y / 2.5));
    };
    QVERIFY2(luminance(at(285, 455)) > luminance(at(705, 345)) + 40, "hill against pit");
    // The hill's slopes at one height, towards the light and away from it.
    QVERIFY2(luminance(at(205, 545)) > luminance(at(365, 375)) + 15, "light against shadow");
}

/// Level, and as high as it goes at the northern edge.
void tst_ElevationModel::imageHasNorthAtTheTop()
{
    const ElevationModel model(5, 10, [](double, double y) { return y * 1e-6; });
    const QImage image = Relief::image(model, 4);
    QVERIFY(luminance(image.pixelColor(8, 0)) > luminance(image.pixelColor(8, 15)) + 60);
}

void tst_ElevationModel::contoursLieOnTheirElevation()
{
    const ElevationModel model = sampleTerrain();
    const QVector<Contour> lines = contours(model, 5);
    QVERIFY(lines.size() >= 10);
    double before = -1e9;
    for (const Contour& line : lines) {
        QVERIFY(line.elevation > before);
        before = line.elevation;
        QCOMPARE(std::remainder(line.elevation, 5), 0.0);
        for (const QLineF& piece : line.pieces) {
            // Their ends are on the sides of squares, where the terrain is linear.
            QVERIFY(std::abs(model.elevation(piece.p1()) - line.elevation) < 1e-6);
            QVERIFY(std::abs(model.elevation(piece.p2()) - line.elevation) < 1e-6);
            QVERIFY(piece.length() <= 5 * std::sqrt(2.0) + 1e-9);
        }
    }
}

void tst_ElevationModel::contoursOfAPlaneAreStraight()
{
    const ElevationModel model(5, 10, [](double x, double) { return x; });
    const QVector<Contour> lines = contours(model, 15);
    QCOMPARE(lines.size(), 3); // 0, 15 and 30.
    QCOMPARE(lines[1].pieces.size(), 4);
    for (const QLineF& piece : lines[1].pieces) {
        QCOMPARE(piece.x1(), 15.0);
        QCOMPARE(piece.x2(), 15.0);
    }
}

void tst_ElevationModel::contourGoesAroundAHill()
{
    const ElevationModel model(41, 1,
                               [](double x, double y) { return 20 - std::hypot(x - 20, y - 20); });
    const QVector<Contour> lines = contours(model, 10);
    double length = 0;
    for (const Contour& line : lines) {
        if (line.elevation != 10)
            continue;
        for (const QLineF& piece : line.pieces)
            length += piece.length();
    }
    QVERIFY(std::abs(length - 2 * M_PI * 10) < 0.5);
}

QTEST_GUILESS_MAIN(tst_ElevationModel)
#include "tst_ElevationModel.moc"
