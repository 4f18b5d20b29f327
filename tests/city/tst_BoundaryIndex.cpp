// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/BoundaryIndex.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

int literalFirst(const QVector<QPolygonF>& polygons, const QPointF& point)
{
    for (int i = 0; i < polygons.size(); ++i) {
        if (polygons.at(i).containsPoint(point, Qt::OddEvenFill))
            return i;
    }
    return -1;
}

/// Makes random polygons and the points that are hard for them.
class Maker
{
public:
    explicit Maker(quint32 seed)
        : m_random(seed)
    {
    }

    int bounded(int end) { return m_random.bounded(end); }
    double uniform(double from, double to)
    {
        return from + m_random.generateDouble() * (to - from);
    }

    /// A corner of a coarse lattice, so that corners, edges and points often coincide.
    QPointF latticePoint() { return {20 + bounded(25) * 0.25, 100 + bounded(25) * 0.25}; }

    QPolygonF lattice()
    {
        QPolygonF polygon;
        for (int i = bounded(12); i >= 0; --i)
            polygon.append(latticePoint());
        return polygon;
    }

    QPolygonF star()
    {
        const QPointF centre(uniform(20, 26), uniform(100, 106));
        const double size = std::pow(10.0, uniform(-7, 1));
        QPolygonF polygon;
        const int corners = 3 + bounded(200);
        for (int i = 0; i < corners; ++i) {
            const double angle = 2 * M_PI * i / corners;
            polygon.append(centre
                           + uniform(0.3, 1.0) * size * QPointF(std::cos(angle), std::sin(angle)));
        }
        return polygon;
    }

    QPolygonF withSpikesAndRepeats()
    {
        QPolygonF polygon;
        for (const QPointF& point : star()) {
            polygon.append(point);
            if (bounded(4) == 0)
                polygon.append(point);
            if (bounded(4) == 0)
                polygon << latticePoint() << point;
        }
        return polygon;
    }

    QPolygonF ringsThroughAnAnchor()
    {
        QPolygonF polygon = star();
        const QPointF anchor = polygon.first();
        for (int ring = bounded(3); ring >= 0; --ring) {
            polygon.append(anchor);
            const QPolygonF hole = lattice();
            polygon += hole;
            polygon << hole.first() << anchor;
        }
        return polygon;
    }

    QPolygonF nearlyHorizontal()
    {
        QPolygonF polygon = bounded(2) ? lattice() : star();
        for (QPointF& point : polygon) {
            if (bounded(2))
                point.setY(point.y() * (1 + (bounded(9) - 4) * std::pow(10.0, -bounded(18))));
        }
        return polygon;
    }

    QPolygonF aroundZero()
    {
        QPolygonF polygon;
        for (int i = bounded(8); i >= 0; --i)
            polygon.append({(bounded(3) - 1) * std::pow(10.0, -bounded(330)),
                            (bounded(3) - 1) * std::pow(10.0, -bounded(330))});
        return polygon;
    }

    QPolygonF nearlyClosed()
    {
        QPolygonF polygon = lattice();
        const double gap = std::pow(10.0, -uniform(8, 16));
        polygon.append(polygon.first() + QPointF((bounded(3) - 1) * gap, (bounded(3) - 1) * gap));
        return polygon;
    }

    QPolygonF zigzag()
    {
        QPolygonF polygon;
        const int teeth = 2 + bounded(300);
        for (int i = 0; i < teeth; ++i)
            polygon.append({20 + 6.0 * i / teeth, i % 2 ? 100.0 : 106.0});
        return polygon;
    }

    QPolygonF wild()
    {
        const double values[] = {0,       -0.0,     23,       103,       1e-320,    -1e-320,
                                 1e17,    -1e17,    1e300,    -1e300,    360,       361,
                                 1.7e308, -1.7e308, infinity, -infinity, notANumber};
        QPolygonF polygon = lattice();
        for (QPointF& point : polygon) {
            if (bounded(2))
                point.setX(values[bounded(17)]);
            if (bounded(2))
                point.setY(values[bounded(17)]);
        }
        return polygon;
    }

    QPolygonF tooSmall()
    {
        QPolygonF polygon;
        for (int i = bounded(3); i > 0; --i)
            polygon.append(latticePoint());
        return polygon;
    }

    /// On, and by the least step beside, what the polygon's edges turn on; and anywhere.
    QVector<QPointF> pointsFor(const QPolygonF& polygon)
    {
        QVector<QPointF> points = {latticePoint(),
                                   latticePoint() + QPointF(0.125, 0.125),
                                   {uniform(19, 27), uniform(99, 107)}};
        for (int i = 0; i < 6 && !polygon.isEmpty(); ++i) {
            const int edge = bounded(polygon.size());
            const QPointF from = polygon.at(edge);
            const QPointF to = polygon.at((edge + 1) % polygon.size());
            const double y = from.y() + uniform(0, 1) * (to.y() - from.y());
            const double x = from.x() + (to.x() - from.x()) / (to.y() - from.y()) * (y - from.y());
            for (const QPointF& point :
                 {from, (from + to) / 2, QPointF(x, y), QPointF(x, from.y())})
                points.append({nudged(point.x()), nudged(point.y())});
        }
        return points;
    }

private:
    double nudged(double value)
    {
        switch (bounded(4)) {
        case 0:
            return std::nextafter(value, infinity);
        case 1:
            return std::nextafter(value, -infinity);
        default:
            return value;
        }
    }

    QRandomGenerator m_random;
};

using Kind = QPolygonF (Maker::*)();
const QVector<QPair<const char*, Kind>> kinds = {
    {"corners on a lattice", &Maker::lattice},
    {"stars of any size", &Maker::star},
    {"spikes and repeated corners", &Maker::withSpikesAndRepeats},
    {"rings joined through an anchor", &Maker::ringsThroughAnAnchor},
    {"nearly horizontal edges", &Maker::nearlyHorizontal},
    {"tiny coordinates around zero", &Maker::aroundZero},
    {"rings that nearly close", &Maker::nearlyClosed},
    {"zigzags over everything", &Maker::zigzag},
    {"huge, infinite and undefined coordinates", &Maker::wild},
    {"none, one or two corners", &Maker::tooSmall},
};

} // namespace

Q_DECLARE_METATYPE(Kind)

class tst_BoundaryIndex : public QObject
{
    Q_OBJECT

private slots:
    void answersAsTheLiteralScan_data();
    void answersAsTheLiteralScan();
    void answersAsTheLiteralScanForMixtures();
    void bandedPolygonAnswersAsItsPolygon();
    void prefersTheFirstOfOverlapping();
    void givesNothingWithoutPolygons();
    void givesNothingForUndefinedPoints();
    void letsAPolygonWithoutEvennessDecideFarAway();
    void manyPolygonsOfOneShape();
    void polygonOfAMillionLongEdges();

private:
    void compare(Maker& maker, const QVector<QPolygonF>& polygons);
    int m_inside = 0;
    int m_outside = 0;
};

void tst_BoundaryIndex::compare(Maker& maker, const QVector<QPolygonF>& polygons)
{
    const BoundaryIndex index(polygons);
    for (const QPolygonF& polygon : polygons) {
        for (const QPointF& point : maker.pointsFor(polygon)) {
            const int expected = literalFirst(polygons, point);
            const int found = index.firstContaining(point);
            if (found != expected) {
                qWarning() << "point" << QString::number(point.x(), 'g', 17)
                           << QString::number(point.y(), 'g', 17) << polygons;
            }
            QCOMPARE(found, expected);
            ++(expected < 0 ? m_outside : m_inside);
        }
    }
}

void tst_BoundaryIndex::answersAsTheLiteralScan_data()
{
    QTest::addColumn<Kind>("kind");
    for (const auto& [name, kind] : kinds)
        QTest::newRow(name) << kind;
}

void tst_BoundaryIndex::answersAsTheLiteralScan()
{
    QFETCH(Kind, kind);
    m_inside = 0;
    m_outside = 0;
    Maker maker(7);
    for (int round = 0; round < 60; ++round) {
        QVector<QPolygonF> polygons;
        for (int i = maker.bounded(6); i >= 0; --i)
            polygons.append((maker.*kind)());
        compare(maker, polygons);
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY(m_outside > 100);
    QVERIFY(m_inside > 100 || kind == &Maker::tooSmall || kind == &Maker::aroundZero);
}

void tst_BoundaryIndex::answersAsTheLiteralScanForMixtures()
{
    Maker maker(8);
    for (int round = 0; round < 60; ++round) {
        QVector<QPolygonF> polygons;
        for (int i = maker.bounded(30); i >= 0; --i) {
            polygons.append((maker.*kinds.at(maker.bounded(kinds.size())).second)());
            if (maker.bounded(10) == 0)
                polygons.append(polygons.last());
        }
        compare(maker, polygons);
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_BoundaryIndex::bandedPolygonAnswersAsItsPolygon()
{
    Maker maker(9);
    int even = 0;
    for (int round = 0; round < 3000; ++round) {
        const QPolygonF polygon = (maker.*kinds.at(maker.bounded(kinds.size())).second)();
        if (!BandedPolygon::isEven(polygon))
            continue;
        ++even;
        const BandedPolygon banded(polygon);
        for (const QPointF& point : maker.pointsFor(polygon))
            QCOMPARE(banded.contains(point), polygon.containsPoint(point, Qt::OddEvenFill));
    }
    QVERIFY(even > 1000);
}

void tst_BoundaryIndex::prefersTheFirstOfOverlapping()
{
    const QPolygonF west(QRectF(20, 100, 4, 4));
    const QPolygonF east(QRectF(20, 102, 4, 4));
    QCOMPARE(BoundaryIndex({west, east}).firstContaining({22, 103}), 0);
    QCOMPARE(BoundaryIndex({east, west}).firstContaining({22, 103}), 0);
    QCOMPARE(BoundaryIndex({west, east}).firstContaining({22, 105}), 1);
    QCOMPARE(BoundaryIndex({west, west}).firstContaining({22, 103}), 0);
    QCOMPARE(BoundaryIndex({west, east}).firstContaining({22, 107}), -1);
}

void tst_BoundaryIndex::givesNothingWithoutPolygons()
{
    const QPolygonF corner(QVector<QPointF>{QPointF(0, 0)});
    for (const QPointF& point :
         {QPointF(0, 0), QPointF(30, 104), QPointF(-1, -1), QPointF(360, 360)}) {
        QCOMPARE(BoundaryIndex().firstContaining(point), -1);
        QCOMPARE(BoundaryIndex(QVector<QPolygonF>()).firstContaining(point), -1);
        QCOMPARE(BoundaryIndex(QVector<QPolygonF>{QPolygonF(), corner}).firstContaining(point), -1);
    }
}

void tst_BoundaryIndex::givesNothingForUndefinedPoints()
{
    const BoundaryIndex index(
        {QPolygonF(QRectF(20, 100, 4, 4)), QPolygonF({{notANumber, 1}, {2, 3}, {4, 5}})});
    for (const double bad : {notANumber, infinity, -infinity, 1e300, -1e300}) {
        QCOMPARE(index.firstContaining({bad, 102}), -1);
        QCOMPARE(index.firstContaining({22, bad}), -1);
        QCOMPARE(index.firstContaining({bad, bad}), -1);
    }
}

/// An edge that rises too little to be counted leaves heights at which everything to the right of
/// the polygon has an odd number of crossings.
void tst_BoundaryIndex::letsAPolygonWithoutEvennessDecideFarAway()
{
    const double little = std::nextafter(100.0, 101.0);
    const QPolygonF square(QRectF(40, 99, 4, 4));
    const QPolygonF leaning({{20, 100.0}, {24, little}, {24, 104}, {20, 104}});
    QVERIFY(leaning.containsPoint({1000, 100.0}, Qt::OddEvenFill));
    QVERIFY(!BandedPolygon::isEven(leaning));
    const BoundaryIndex first({leaning, square});
    QCOMPARE(first.firstContaining({1000, 100.0}), 0);
    QCOMPARE(first.firstContaining({42, 100.0}), 0);
    QCOMPARE(first.firstContaining({42, 101.0}), 1);
    const BoundaryIndex second({square, leaning});
    QCOMPARE(second.firstContaining({42, 100.0}), 0);
    QCOMPARE(second.firstContaining({1000, 100.0}), 1);
}

void tst_BoundaryIndex::manyPolygonsOfOneShape()
{
    QVector<QPolygonF> polygons;
    for (int i = 0; i < 2000; ++i)
        polygons.append(QPolygonF({{18, 73}, {54, 73}, {54, 135 - 1e-3 * i}}));
    const BoundaryIndex index(polygons);
    Maker maker(10);
    for (int i = 0; i < 300; ++i) {
        const QPointF point(maker.uniform(18, 54), maker.uniform(73, 135));
        QCOMPARE(index.firstContaining(point), literalFirst(polygons, point));
    }
}

void tst_BoundaryIndex::polygonOfAMillionLongEdges()
{
    QPolygonF comb;
    for (int i = 0; i < 500000; ++i)
        comb << QPointF(18 + 36e-6 * i, 73) << QPointF(18 + 36e-6 * i, 135);
    const QVector<QPolygonF> polygons = {comb};
    const BoundaryIndex index(polygons);
    Maker maker(11);
    for (int i = 0; i < 50; ++i) {
        const QPointF point(maker.uniform(18, 54), maker.uniform(73, 135));
        QCOMPARE(index.firstContaining(point), literalFirst(polygons, point));
    }
}

QTEST_GUILESS_MAIN(tst_BoundaryIndex)
#include "tst_BoundaryIndex.moc"
