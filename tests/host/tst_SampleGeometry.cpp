// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleGeometry.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace SampleGeometry;

namespace {

QPolygonF square(double left, double bottom, double side)
{
    return QVector<QPointF>{
        {left, bottom}, {left + side, bottom}, {left + side, bottom + side}, {left, bottom + side}};
}

/// A C that opens to the right.
QPolygonF cShape()
{
    return QVector<QPointF>{{0, 0}, {9, 0}, {9, 3}, {3, 3}, {3, 6}, {9, 6}, {9, 9}, {0, 9}};
}

} // namespace

class tst_SampleGeometry : public QObject
{
    Q_OBJECT

private slots:
    void planeIsTrueToScale();
    void surfaceOfRings();
    void centroids_data();
    void centroids();
    void insideMeansAltogether_data();
    void insideMeansAltogether();
    void overlapsAreSymmetric_data();
    void overlapsAreSymmetric();
    void areasKeepApartAndInside();
    void corridorsBeginWithAStrip();
    void noRoomGivesNothing();
};

void tst_SampleGeometry::planeIsTrueToScale()
{
    const LocalPlane plane(QPointF(30.66, 104.06));
    const QPointF east = plane.toMetres(QPointF(30.66, 104.16));
    const QPointF north = plane.toMetres(QPointF(30.76, 104.06));
    // A tenth of a degree on the ellipsoid WGS84 there: 9587 m and 11086 m.
    QVERIFY(qAbs(east.x() - 9587) < 40 && qAbs(east.y()) < 1e-6);
    QVERIFY(qAbs(north.y() - 11086) < 40 && qAbs(north.x()) < 1e-6);
    const QPointF back = plane.toDegrees(plane.toMetres(QPointF(30.7, 104.2)));
    QVERIFY(qAbs(back.x() - 30.7) < 1e-12 && qAbs(back.y() - 104.2) < 1e-12);
}

void tst_SampleGeometry::surfaceOfRings()
{
    QCOMPARE(surface(square(100, 100, 3)), 9.0);
    QPolygonF reversed = square(0, 0, 3);
    std::reverse(reversed.begin(), reversed.end());
    QCOMPARE(surface(reversed), 9.0);
    QCOMPARE(surface(cShape()), 63.0);
}

void tst_SampleGeometry::centroids_data()
{
    QTest::addColumn<QPolygonF>("ring");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("square") << square(2, 4, 2) << QPointF(3, 5);
    QTest::newRow("ell") << QPolygonF(
        QVector<QPointF>{{0, 0}, {2, 0}, {2, 1}, {1, 1}, {1, 2}, {0, 2}})
                         << QPointF(5 / 6.0, 5 / 6.0);
    QTest::newRow("straight line: mean")
        << QPolygonF(QVector<QPointF>{{0, 0}, {1, 0}, {5, 0}}) << QPointF(2, 0);
}

void tst_SampleGeometry::centroids()
{
    QFETCH(QPolygonF, ring);
    QFETCH(QPointF, expected);
    const QPointF centre = centroid(ring);
    QVERIFY(qAbs(centre.x() - expected.x()) < 1e-12);
    QVERIFY(qAbs(centre.y() - expected.y()) < 1e-12);
}

void tst_SampleGeometry::insideMeansAltogether_data()
{
    QTest::addColumn<QPolygonF>("ring");
    QTest::addColumn<bool>("expected");
    QTest::newRow("inside") << square(0.5, 0.5, 2) << true;
    QTest::newRow("outside") << square(20, 20, 2) << false;
    QTest::newRow("in the bay") << square(4, 4, 1) << false;
    QTest::newRow("half out") << square(8, 1, 2) << false;
    QTest::newRow("all vertices inside, an edge through the bay")
        << QPolygonF(QVector<QPointF>{{7, 1}, {8, 1}, {8, 8}, {7, 8}}) << false;
    QTest::newRow("around the boundary") << square(-1, -1, 12) << false;
    QTest::newRow("nothing") << QPolygonF() << false;
}

void tst_SampleGeometry::insideMeansAltogether()
{
    QFETCH(QPolygonF, ring);
    QFETCH(bool, expected);
    QCOMPARE(liesInside(ring, cShape()), expected);
}

void tst_SampleGeometry::overlapsAreSymmetric_data()
{
    QTest::addColumn<QPolygonF>("other");
    QTest::addColumn<bool>("expected");
    QTest::newRow("apart") << square(5, 5, 1) << false;
    QTest::newRow("crossing") << square(1, 1, 3) << true;
    QTest::newRow("within") << square(0.5, 0.5, 1) << true;
    QTest::newRow("a plus sign, no vertex inside the other")
        << QPolygonF(QVector<QPointF>{{-1, 0.5}, {3, 0.5}, {3, 1.5}, {-1, 1.5}}) << true;
}

void tst_SampleGeometry::overlapsAreSymmetric()
{
    QFETCH(QPolygonF, other);
    QFETCH(bool, expected);
    const QPolygonF ring = square(0, 0, 2);
    QCOMPARE(overlap(ring, other), expected);
    QCOMPARE(overlap(other, ring), expected);
}

void tst_SampleGeometry::areasKeepApartAndInside()
{
    const QPolygonF boundary = square(-20'000, -20'000, 40'000);
    int strips = 0;
    int total = 0;
    for (quint32 seed = 0; seed < 200; ++seed) {
        QRandomGenerator random(seed);
        const QVector<Area> areas = placeAreas(4, seed % 3 == 0, boundary, random);
        QVERIFY(!areas.isEmpty());
        for (int i = 0; i < areas.size(); ++i) {
            QVERIFY(liesInside(areas[i].outline, boundary));
            for (int j = 0; j < i; ++j)
                QVERIFY(!overlap(areas[i].outline, areas[j].outline));
            QVERIFY(areas[i].outline.boundingRect().contains(centroid(areas[i].anchor())));
            strips += areas[i].isStrip() ? 1 : 0;
        }
        total += areas.size();
    }
    QVERIFY(strips > 50 && strips < total / 2);
    QVERIFY2(total > 200 * 3.8, "there is room for nearly all of them");
}

void tst_SampleGeometry::corridorsBeginWithAStrip()
{
    const QPolygonF boundary = square(-30'000, -30'000, 60'000);
    for (quint32 seed = 0; seed < 50; ++seed) {
        QRandomGenerator random(seed);
        QVERIFY(placeAreas(2, true, boundary, random).first().isStrip());
        QVERIFY(!placeAreas(2, false, boundary, random).first().isStrip());
    }
}

void tst_SampleGeometry::noRoomGivesNothing()
{
    QRandomGenerator random(1);
    QVERIFY(placeAreas(3, false, square(-200, -200, 400), random).isEmpty());
}

QTEST_GUILESS_MAIN(tst_SampleGeometry)
#include "tst_SampleGeometry.moc"
