// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/Gravity.h>

#include <QtTest>

#include <algorithm>
#include <cmath>

using Ring = QVector<QPointF>;

namespace {

QPointF centroid(const Ring& ring)
{
    std::vector<CRkVector3D> points;
    for (const QPointF& point : ring)
        points.emplace_back(point.x(), point.y(), 500);
    const CRkVector3D centre = GetLatLngGravityByLatLng(points);
    return centre.z() == 0 ? QPointF(centre.x(), centre.y()) : QPointF(qQNaN(), qQNaN());
}

bool isNear(const QPointF& a, const QPointF& b, double tolerance)
{
    return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
}

Ring shifted(Ring ring, double x, double y)
{
    for (QPointF& point : ring)
        point += QPointF(x, y);
    return ring;
}

/// An L of three unit squares: its centroid is not the mean of its corners.
const Ring ell = {{0, 0}, {2, 0}, {2, 1}, {1, 1}, {1, 2}, {0, 2}};
const QPointF ellCentroid(5.0 / 6, 5.0 / 6);

} // namespace

class tst_Gravity : public QObject
{
    Q_OBJECT

private slots:
    void centroidOfArea_data();
    void centroidOfArea();
    void everyStartAndDirectionGivesTheSame();
    void smallRingFarFromTheOrigin();
    void meanWithoutArea_data();
    void meanWithoutArea();
    void collinearDecimals();
};

void tst_Gravity::centroidOfArea_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("triangle") << Ring({{30, 104}, {33, 104}, {30, 107}}) << QPointF(31, 105);
    QTest::newRow("rectangle") << Ring({{-10, -20}, {-10, 30}, {40, 30}, {40, -20}})
                               << QPointF(15, 5);
    QTest::newRow("more corners on one side")
        << Ring({{0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}, {4, 4}, {4, 0}}) << QPointF(2, 2);
    QTest::newRow("concave") << ell << ellCentroid;
    QTest::newRow("repeated corner")
        << Ring({{0, 0}, {2, 0}, {2, 0}, {2, 2}, {0, 2}}) << QPointF(1, 1);
}

void tst_Gravity::centroidOfArea()
{
    QFETCH(Ring, ring);
    QFETCH(QPointF, expected);
    QVERIFY(isNear(centroid(ring), expected, 1e-12));
    ring.append(ring.first());
    QVERIFY(isNear(centroid(ring), expected, 1e-12));
}

void tst_Gravity::everyStartAndDirectionGivesTheSame()
{
    Ring ring = ell;
    for (int i = 0; i < ring.size(); ++i) {
        std::rotate(ring.begin(), ring.begin() + 1, ring.end());
        QVERIFY(isNear(centroid(ring), ellCentroid, 1e-12));
        Ring reversed = ring;
        std::reverse(reversed.begin(), reversed.end());
        QVERIFY(isNear(centroid(reversed), ellCentroid, 1e-12));
    }
}

void tst_Gravity::smallRingFarFromTheOrigin()
{
    // About ten centimetres in size; the products of plain coordinates would lose all its digits.
    Ring ring = ell;
    for (QPointF& point : ring)
        point *= 1e-6;
    const QPointF centre = centroid(shifted(ring, 45.5, 125.25));
    QVERIFY(isNear(centre - QPointF(45.5, 125.25), ellCentroid * 1e-6, 1e-12));
}

void tst_Gravity::meanWithoutArea_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("no points") << Ring() << QPointF(0, 0);
    QTest::newRow("one point") << Ring({{30, 104}}) << QPointF(30, 104);
    QTest::newRow("one point, closed") << Ring({{30, 104}, {30, 104}}) << QPointF(30, 104);
    QTest::newRow("two points") << Ring({{30, 104}, {32, 106}}) << QPointF(31, 105);
    QTest::newRow("two points, closed")
        << Ring({{30, 104}, {32, 106}, {30, 104}}) << QPointF(31, 105);
    QTest::newRow("a line, more points at one end")
        << Ring({{0, 0}, {1, 1}, {2, 2}, {9, 9}}) << QPointF(3, 3);
    QTest::newRow("all points in one place")
        << Ring({{5, 7}, {5, 7}, {5, 7}, {5, 7}}) << QPointF(5, 7);
    QTest::newRow("two loops that cancel out")
        << Ring({{0, 0}, {2, 2}, {2, 0}, {0, 2}}) << QPointF(1, 1);
}

void tst_Gravity::meanWithoutArea()
{
    QFETCH(Ring, ring);
    QTEST(centroid(ring), "expected");
}

void tst_Gravity::collinearDecimals()
{
    // Rounded to doubles these no longer lie on one line exactly.
    const Ring line = {{30.1, 104.1}, {30.2, 104.2}, {30.3, 104.3}, {30.7, 104.7}};
    QVERIFY(isNear(centroid(line), QPointF(30.325, 104.325), 1e-9));
}

QTEST_GUILESS_MAIN(tst_Gravity)
#include "tst_Gravity.moc"
