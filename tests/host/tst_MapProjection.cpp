// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/MapGrid.h"
#include "map/MapProjection.h"
#include "map/MapView.h"
#include "map/ScaleBar.h"

#include <QTest>
#include <QtMath>

#include <cmath>
#include <limits>

namespace {

bool near(const QPointF& a, const QPointF& b, double tolerance)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) <= tolerance;
}

MapView someView()
{
    return {MapProjection::toPlane(QPointF(30.66, 104.06)), 256.0 * 512, QSizeF(800, 600)};
}

} // namespace

/// Where things are on the map and how large.
class tst_MapProjection : public QObject
{
    Q_OBJECT

private slots:
    void planeOfKnownPlaces_data();
    void planeOfKnownPlaces();
    void degreesComeBack();
    void polesLieOnTheEdge();
    void pointsThatAreNoNumbersAreLeftOut();
    void metresShrinkTowardsThePole();
    void viewAndScreenAreInverse();
    void movedContentFollowsThePointer();
    void zoomKeepsThePointUnderTheCursor();
    void zoomStopsAtItsLimits();
    void shownAreaFits_data();
    void shownAreaFits();
    void emptyAreaKeepsTheScale();
    void centreStaysWithin();
    void glideStartsEndsAndKeepsOnePoint();
    void glideWithoutZoomIsEven();
    void scaleBars_data();
    void scaleBars();
    void coordinates_data();
    void coordinates();
    void gridIsRoundAndNotTooClose_data();
    void gridIsRoundAndNotTooClose();
    void gridTexts();
};

void tst_MapProjection::planeOfKnownPlaces_data()
{
    QTest::addColumn<QPointF>("degrees");
    QTest::addColumn<QPointF>("plane");
    QTest::newRow("equator and Greenwich") << QPointF(0, 0) << QPointF(0.5, 0.5);
    QTest::newRow("date line") << QPointF(0, 180) << QPointF(1, 0.5);
    QTest::newRow("north edge") << QPointF(MapProjection::northernmost, -180) << QPointF(0, 0);
    QTest::newRow("south edge") << QPointF(-MapProjection::northernmost, 0) << QPointF(0.5, 1);
    // ln(tan(45 + 30 / 2)) / (2 pi) = ln(sqrt(3)) / (2 pi)
    QTest::newRow("30 degrees north")
        << QPointF(30, 90) << QPointF(0.75, 0.5 - std::log(std::sqrt(3.0)) / (2 * M_PI));
}

void tst_MapProjection::planeOfKnownPlaces()
{
    QFETCH(QPointF, degrees);
    QFETCH(QPointF, plane);
    QVERIFY(near(MapProjection::toPlane(degrees), plane, 1e-12));
}

void tst_MapProjection::degreesComeBack()
{
    for (double latitude = -84; latitude <= 84; latitude += 7) {
        for (double longitude = -180; longitude <= 180; longitude += 15) {
            const QPointF degrees(latitude, longitude);
            const QPointF back = MapProjection::toDegrees(MapProjection::toPlane(degrees));
            QVERIFY(near(back, degrees, 1e-9));
        }
    }
}

void tst_MapProjection::polesLieOnTheEdge()
{
    QVERIFY(near(MapProjection::toPlane(QPointF(90, 0)), QPointF(0.5, 0), 1e-12));
    QVERIFY(near(MapProjection::toPlane(QPointF(-1000, 0)), QPointF(0.5, 1), 1e-12));
}

void tst_MapProjection::pointsThatAreNoNumbersAreLeftOut()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const QPolygonF degrees(
        {QPointF(30, 100), QPointF(nan, 100), QPointF(30, infinity), QPointF(31, 101)});
    const QPolygonF plane = MapProjection::toPlane(degrees);
    QCOMPARE(plane.size(), 2);
    QCOMPARE(plane.last(), MapProjection::toPlane(QPointF(31, 101)));
}

void tst_MapProjection::metresShrinkTowardsThePole()
{
    QVERIFY(std::abs(MapProjection::metresPerUnit(0) - 40075016.7) < 0.1);
    QVERIFY(std::abs(MapProjection::metresPerUnit(60) - 20037508.3) < 0.1);
}

void tst_MapProjection::viewAndScreenAreInverse()
{
    const MapView view = someView();
    QVERIFY(near(view.toScreen(view.centre), QPointF(400, 300), 1e-9));
    for (const QPointF& point : {QPointF(0, 0), QPointF(800, 600), QPointF(123, -456)})
        QVERIFY(near(view.toScreen(view.toPlane(point)), point, 1e-6));
    QVERIFY(near(view.toScreen(view.extent().topLeft()), QPointF(0, 0), 1e-6));
    QVERIFY(near(view.toScreen(view.extent().bottomRight()), QPointF(800, 600), 1e-6));
}

void tst_MapProjection::movedContentFollowsThePointer()
{
    const MapView view = someView();
    const QPointF place = view.toPlane(QPointF(100, 200));
    QVERIFY(near(view.moved(QPointF(30, -40)).toScreen(place), QPointF(130, 160), 1e-6));
}

void tst_MapProjection::zoomKeepsThePointUnderTheCursor()
{
    const MapView view = someView();
    const QPointF cursor(700, 50);
    const MapView nearer = view.zoomed(3, cursor);
    QCOMPARE(nearer.scale, view.scale * 3);
    QVERIFY(near(nearer.toScreen(view.toPlane(cursor)), cursor, 1e-6));
}

void tst_MapProjection::zoomStopsAtItsLimits()
{
    const MapView view = someView();
    const QPointF cursor(10, 10);
    for (const double factor : {1e-12, 1e12}) {
        const MapView end = view.zoomed(factor, cursor);
        QCOMPARE(end.scale, factor < 1 ? MapView::smallestScale : MapView::largestScale);
        QVERIFY(near(end.toScreen(view.toPlane(cursor)), cursor, 1e-5));
    }
}

void tst_MapProjection::shownAreaFits_data()
{
    QTest::addColumn<QRectF>("area");
    QTest::newRow("wide") << QRectF(0.5, 0.4, 0.02, 0.001);
    QTest::newRow("high") << QRectF(0.5, 0.4, 0.001, 0.02);
    QTest::newRow("without width") << QRectF(0.5, 0.4, 0, 0.02);
    QTest::newRow("without height") << QRectF(0.5, 0.4, 0.02, 0);
}

void tst_MapProjection::shownAreaFits()
{
    QFETCH(QRectF, area);
    const MapView view = someView().showing(area, 50);
    const QRectF shown(view.toScreen(area.topLeft()), view.toScreen(area.bottomRight()));
    QVERIFY(near(shown.center(), QPointF(400, 300), 1e-6));
    QVERIFY(std::abs(shown.width() - 700) < 1e-6 || std::abs(shown.height() - 500) < 1e-6);
    QVERIFY(shown.width() < 700.001 && shown.height() < 500.001);
}

void tst_MapProjection::emptyAreaKeepsTheScale()
{
    const MapView view = someView().showing(QRectF(0.25, 0.25, 0, 0), 50);
    QCOMPARE(view.scale, someView().scale);
    QCOMPARE(view.centre, QPointF(0.25, 0.25));
}

void tst_MapProjection::centreStaysWithin()
{
    MapView view = someView();
    const QRectF area(0.2, 0.3, 0.1, 0.1);
    view.centre = QPointF(0.9, 0.35);
    QCOMPARE(view.within(area).centre, QPointF(0.3, 0.35));
    view.centre = QPointF(0.25, 0.1);
    QCOMPARE(view.within(area).centre, QPointF(0.25, 0.3));
}

void tst_MapProjection::glideStartsEndsAndKeepsOnePoint()
{
    const MapView start = someView();
    const QPointF cursor(700, 50);
    const MapView goal = start.zoomed(16, cursor);
    QVERIFY(start.towards(goal, 1) == goal);
    QVERIFY(near(start.towards(goal, 0).centre, start.centre, 1e-15));
    const QPointF place = start.toPlane(cursor);
    for (double progress = 0; progress <= 1; progress += 0.125) {
        const MapView between = start.towards(goal, progress);
        QVERIFY(std::abs(std::log2(between.scale / start.scale) - 4 * progress) < 1e-9);
        QVERIFY(near(between.toScreen(place), cursor, 1e-4));
    }
}

void tst_MapProjection::glideWithoutZoomIsEven()
{
    const MapView start = someView();
    const MapView goal = start.moved(QPointF(100, -60));
    const QPointF place = start.toPlane(QPointF(10, 10));
    QVERIFY(near(start.towards(goal, 0.25).toScreen(place), QPointF(35, -5), 1e-6));
}

void tst_MapProjection::scaleBars_data()
{
    QTest::addColumn<double>("metresPerPixel");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("pixels");
    QTest::newRow("five hundred kilometres") << 5000.0 << "500 km" << 100.0;
    QTest::newRow("exactly as long as may be") << 10.0 << "1 km" << 100.0;
    QTest::newRow("a little less") << 9.99 << "500 m" << 500 / 9.99;
    QTest::newRow("two hundred metres") << 2.5 << "200 m" << 80.0;
    QTest::newRow("one metre") << 0.015 << "1 m" << 1 / 0.015;
    QTest::newRow("below a metre") << 0.005 << "0.5 m" << 100.0;
}

void tst_MapProjection::scaleBars()
{
    QFETCH(double, metresPerPixel);
    QFETCH(double, pixels);
    const ScaleBar bar = scaleBar(metresPerPixel, 100);
    QTEST(bar.text, "text");
    QVERIFY(std::abs(bar.pixels - pixels) < 1e-6);
    QVERIFY(std::abs(bar.metres - bar.pixels * metresPerPixel) < 1e-6);
}

void tst_MapProjection::coordinates_data()
{
    QTest::addColumn<QPointF>("degrees");
    QTest::addColumn<QString>("text");
    const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
    QTest::newRow("north east") << QPointF(30.660123, 104.0631)
                                << text("30.66012° N  104.06310° E");
    QTest::newRow("south west") << QPointF(-1.5, -70) << text("1.50000° S  70.00000° W");
    QTest::newRow("once around") << QPointF(0, 190) << text("0.00000° N  170.00000° W");
}

void tst_MapProjection::coordinates()
{
    QFETCH(QPointF, degrees);
    QTEST(coordinateText(degrees.x(), degrees.y()), "text");
}

void tst_MapProjection::gridIsRoundAndNotTooClose_data()
{
    QTest::addColumn<double>("scale");
    for (int zoom = 2; zoom <= 20; zoom += 2)
        QTest::addRow("zoom %d", zoom) << 256.0 * (1 << zoom);
}

void tst_MapProjection::gridIsRoundAndNotTooClose()
{
    QFETCH(double, scale);
    MapView view = someView();
    view.scale = scale;
    QVector<double> meridians;
    for (const GridLine& line : gridLines(view)) {
        const double at = view.toScreen(QPointF(line.position, line.position)).x();
        if (line.isMeridian)
            meridians.append(at);
        const QPointF degrees = MapProjection::toDegrees(QPointF(line.position, line.position));
        const double seconds = 3600 * (line.isMeridian ? degrees.y() : degrees.x());
        QVERIFY2(std::abs(seconds - std::round(seconds)) < 1e-4, qPrintable(line.text));
    }
    QVERIFY(meridians.size() <= 6);
    for (int i = 1; i < meridians.size(); ++i)
        QVERIFY(meridians[i] - meridians[i - 1] > 159);
}

void tst_MapProjection::gridTexts()
{
    MapView view = someView();
    const auto texts = [&view] {
        QStringList all;
        for (const GridLine& line : gridLines(view))
            all.append(line.text);
        return all;
    };
    view.scale = 256 * 64; // A degree is 45 pixels wide.
    QVERIFY(texts().contains(QString::fromUtf8("105°E")));
    QVERIFY(texts().contains(QString::fromUtf8("30°N")));
    view.scale = 256.0 * 8192;
    QVERIFY2(texts().contains(QString::fromUtf8("104°04′E")), qPrintable(texts().join(' ')));
    view.scale = 256.0 * (1 << 18);
    view.centre = MapProjection::toPlane(QPointF(-0.5, -70.25));
    QVERIFY2(texts().contains(QString::fromUtf8("70°15′00″W")), qPrintable(texts().join(' ')));
    QVERIFY2(texts().contains(QString::fromUtf8("0°30′00″S")), qPrintable(texts().join(' ')));
}

QTEST_GUILESS_MAIN(tst_MapProjection)
#include "tst_MapProjection.moc"
