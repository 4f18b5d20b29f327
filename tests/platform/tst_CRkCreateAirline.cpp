// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/CRkCreateAirline.h>

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <utility>

using Ring = std::vector<CRkPoint2D>;

Q_DECLARE_METATYPE(Ring)

namespace {

const Ring square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
/// Two arms, cut across by every cut.
const Ring fork = {{0, 0}, {100, 0}, {100, 10}, {10, 10}, {10, 20}, {100, 20}, {100, 30}, {0, 30}};

double area(const Ring& ring)
{
    double sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CRkPoint2D& a = ring[i];
        const CRkPoint2D& b = ring[(i + 1) % ring.size()];
        sum += (a.x() - ring[0].x()) * (b.y() - ring[0].y())
            - (b.x() - ring[0].x()) * (a.y() - ring[0].y());
    }
    return std::abs(sum) / 2;
}

Ring turned(Ring ring, double angle, double x, double y)
{
    for (CRkPoint2D& point : ring) {
        point = CRkPoint2D(x + point.x() * std::cos(angle) - point.y() * std::sin(angle),
                           y + point.x() * std::sin(angle) + point.y() * std::cos(angle));
    }
    return ring;
}

Ring star(int count)
{
    std::mt19937 engine(5);
    std::uniform_real_distribution<double> radius(20, 100);
    Ring ring;
    for (int i = 0; i < count; ++i) {
        const double r = radius(engine);
        const double angle = 6.283185307179586 * i / count;
        ring.emplace_back(2 * r * std::cos(angle), r * std::sin(angle));
    }
    return ring;
}

using Edge = std::pair<std::pair<double, double>, std::pair<double, double>>;

/// Edges of all parts less those that two parts share: the border of what they cover together.
std::set<Edge> border(const std::vector<Ring>& parts)
{
    std::set<Edge> edges;
    for (const Ring& part : parts) {
        for (std::size_t i = 0; i < part.size(); ++i) {
            const CRkPoint2D& a = part[i];
            const CRkPoint2D& b = part[(i + 1) % part.size()];
            const Edge edge =
                std::minmax(std::make_pair(a.x(), a.y()), std::make_pair(b.x(), b.y()));
            if (!edges.erase(edge))
                edges.insert(edge);
        }
    }
    return edges;
}

double distance(double x, double y, const CRkPoint2D& a, const CRkPoint2D& b)
{
    const double dx = b.x() - a.x();
    const double dy = b.y() - a.y();
    const double share =
        std::clamp(((x - a.x()) * dx + (y - a.y()) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
    return std::hypot(x - a.x() - share * dx, y - a.y() - share * dy);
}

bool liesOn(const std::pair<double, double>& point, const Ring& ring)
{
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (distance(point.first, point.second, ring[i], ring[(i + 1) % ring.size()]) < 1e-8)
            return true;
    }
    return false;
}

} // namespace

class tst_CRkCreateAirline : public QObject
{
    Q_OBJECT

private slots:
    void canSegment_data();
    void canSegment();
    void cannotBeSplit();
    void cutAcrossTheLongestDirection();
    void concaveSlicesFallApart();
    void partsCoverThePolygon_data();
    void partsCoverThePolygon();
    void tooManySlices();
};

void tst_CRkCreateAirline::canSegment_data()
{
    QTest::addColumn<Ring>("polygon");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("larger than the limit") << square << 99.0 << true;
    QTest::newRow("as large as the limit") << square << 100.0 << false;
    QTest::newRow("smaller than the limit") << square << 101.0 << false;
    QTest::newRow("limit 0") << square << 0.0 << false;
    QTest::newRow("limit below 0") << square << -1.0 << false;
    QTest::newRow("limit not a number") << square << qQNaN() << false;
    QTest::newRow("limit infinite") << square << qInf() << false;
    QTest::newRow("clockwise") << Ring(square.rbegin(), square.rend()) << 50.0 << true;
    QTest::newRow("triangle") << Ring({{0, 0}, {4, 0}, {0, 4}}) << 7.0 << true;
    QTest::newRow("no vertices") << Ring() << 1.0 << false;
    QTest::newRow("two vertices") << Ring({{0, 0}, {9, 9}}) << 1e-9 << false;
    QTest::newRow("no area") << Ring({{0, 0}, {5, 0}, {9, 0}}) << 1e-9 << false;
    QTest::newRow("bow-tie") << Ring({{0, 0}, {9, 9}, {9, 0}, {0, 9}}) << 1.0 << false;
    QTest::newRow("vertex on an edge elsewhere")
        << Ring({{1, 1}, {9, 1}, {9, 5}, {5, 1}, {1, 5}}) << 1.0 << false;
    QTest::newRow("not a number") << Ring({{0, 0}, {9, qQNaN()}, {9, 9}}) << 1.0 << false;
    QTest::newRow("infinite") << Ring({{0, 0}, {qInf(), 0}, {9, 9}}) << 1.0 << false;
    QTest::newRow("concave") << fork << 1000.0 << true;
}

void tst_CRkCreateAirline::canSegment()
{
    QFETCH(Ring, polygon);
    QFETCH(double, value);
    QTEST(IsBlockPloyCanSegment(polygon, value), "expected");
    std::vector<Ring> parts = {square};
    QTEST(CRkCreateAirline().SegmentSurveyArea(polygon, value, parts), "expected");
}

void tst_CRkCreateAirline::cannotBeSplit()
{
    std::vector<Ring> parts = {square};
    QVERIFY(!CRkCreateAirline().SegmentSurveyArea(square, 100, parts));
    QVERIFY(parts.empty());
}

void tst_CRkCreateAirline::cutAcrossTheLongestDirection()
{
    const Ring wide = {{0, 0}, {40, 0}, {40, 10}, {0, 10}};
    std::vector<Ring> parts;
    QVERIFY(CRkCreateAirline().SegmentSurveyArea(wide, 100, parts));
    QCOMPARE(int(parts.size()), 4);
    for (const Ring& part : parts) {
        QCOMPARE(int(part.size()), 4);
        QVERIFY(std::abs(area(part) - 100) < 1e-6);
        const auto [left, right] = std::minmax_element(
            part.begin(), part.end(),
            [](const CRkPoint2D& a, const CRkPoint2D& b) { return a.x() < b.x(); });
        QVERIFY(std::abs(right->x() - left->x() - 10) < 1e-6);
    }
    QVERIFY(CRkCreateAirline().SegmentSurveyArea(wide, 99, parts));
    QCOMPARE(int(parts.size()), 5);
}

void tst_CRkCreateAirline::concaveSlicesFallApart()
{
    // 2,100 in three slices: the handle with the arms' beginnings, then twice two pieces of arm.
    std::vector<Ring> parts;
    QVERIFY(CRkCreateAirline().SegmentSurveyArea(fork, 700, parts));
    QCOMPARE(int(parts.size()), 5);
    QVERIFY(std::abs(area(parts.front()) - 700) < 1e-6);
    for (std::size_t i = 1; i < parts.size(); ++i)
        QVERIFY(std::abs(area(parts[i]) - 350) < 1e-6);
}

void tst_CRkCreateAirline::partsCoverThePolygon_data()
{
    QTest::addColumn<Ring>("polygon");
    QTest::addColumn<double>("value");
    QTest::newRow("square") << square << 30.0;
    QTest::newRow("fork") << fork << 100.0;
    QTest::newRow("fork, turned, far from the origin") << turned(fork, 0.7, 4e5, 3.3e6) << 130.0;
    QTest::newRow("star") << star(60) << 500.0;
    QTest::newRow("star, turned, far from the origin") << turned(star(200), 2, 4e5, 3.3e6) << 99.0;
    QTest::newRow("an edge where a cut comes to lie")
        << Ring({{0, 0}, {20, 0}, {20, 10}, {10, 10}, {10, 20}, {0, 20}}) << 100.0;
    QTest::newRow("repeated vertex") << Ring({{0, 0}, {10, 0}, {10, 0}, {10, 10}, {0, 10}}) << 30.0;
    QTest::newRow("tiny") << Ring({{0, 0}, {3e-6, 0}, {3e-6, 1e-6}, {0, 2e-6}}) << 1e-12;
}

void tst_CRkCreateAirline::partsCoverThePolygon()
{
    QFETCH(Ring, polygon);
    QFETCH(double, value);
    std::vector<Ring> parts;
    QVERIFY(CRkCreateAirline().SegmentSurveyArea(polygon, value, parts));
    QVERIFY(parts.size() >= std::size_t(area(polygon) / value));

    double sum = 0;
    for (const Ring& part : parts) {
        QVERIFY(part.size() >= 3);
        QVERIFY(area(part) <= value * (1 + 1e-9));
        QVERIFY(area(part) > 0);
        // What is valid for the split of its half is simple.
        QVERIFY(IsBlockPloyCanSegment(part, area(part) / 2));
        sum += area(part);
    }
    QVERIFY(std::abs(sum - area(polygon)) <= 1e-9 * area(polygon));

    // Inner edges are shared to the last bit, so what is left over is the outline.
    std::set<std::pair<double, double>> vertices;
    for (const Edge& edge : border(parts)) {
        QVERIFY(liesOn(edge.first, polygon) && liesOn(edge.second, polygon));
        vertices.insert({edge.first, edge.second});
    }
    for (const CRkPoint2D& point : polygon)
        QVERIFY(vertices.count({point.x(), point.y()}) == 1);
}

void tst_CRkCreateAirline::tooManySlices()
{
    std::vector<Ring> parts = {square};
    QVERIFY(!CRkCreateAirline().SegmentSurveyArea(square, 100.0 / 10001, parts));
    QVERIFY(parts.empty());
    QVERIFY(!CRkCreateAirline().SegmentSurveyArea(square, 1e-300, parts));
    QVERIFY(CRkCreateAirline().SegmentSurveyArea(square, 0.1, parts));
    QCOMPARE(int(parts.size()), 1000);
}

QTEST_GUILESS_MAIN(tst_CRkCreateAirline)
#include "tst_CRkCreateAirline.moc"
