// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/RandomOutlines.h"

#include <RkAlgorthm/CRkCreateAirline.h>
#include <RkBaseUI/PolygonChecks.h>

#include <QLineF>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

using Ring = std::vector<CRkPoint2D>;

Q_DECLARE_METATYPE(Outline)

namespace {

// The outline is taken by value; hosts are built against that.
static_assert(std::is_same_v<decltype(isConvex), bool(Outline)>);
static_assert(std::is_same_v<decltype(isSelfIntersection), bool(Outline)>);

const Outline square = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};

Outline reversed(Outline outline)
{
    std::reverse(outline.begin(), outline.end());
    return outline;
}

/// What isConvex answers by its definition.
bool literalIsConvex(const Outline& polygon)
{
    const std::size_t n = polygon.size();
    if (n < 4)
        return true;
    std::vector<bool> senses;
    for (std::size_t i = 0; i < n; ++i) {
        const QPointF p = polygon[i];
        const QPointF m = polygon[(i + 1) % n];
        const QPointF q = polygon[(i + 2) % n];
        const double t = (p.y() - m.y()) * (q.x() - m.x()) - (q.y() - m.y()) * (p.x() - m.x());
        senses.push_back(t > 0.0);
    }
    return std::all_of(senses.begin(), senses.end(), [&](bool s) { return s == senses.front(); });
}

/// What isSelfIntersection answers by its definition: every edge against a list of all the others.
bool literalIsSelfIntersection(const Outline& polygon)
{
    const std::size_t n = polygon.size();
    std::vector<QLineF> edges;
    for (std::size_t i = 0; i < n; ++i)
        edges.emplace_back(polygon[i], polygon[(i + 1) % n]);
    for (std::size_t e = 0; e < n; ++e) {
        int hits = 0;
        for (std::size_t f = 0; f < n; ++f) {
            QPointF point;
            if (f != e && edges[e].intersects(edges[f], &point) == QLineF::BoundedIntersection
                && !(point.x() == 0 && point.y() == 0)) {
                ++hits;
            }
            if (hits > 2)
                return true;
        }
    }
    return false;
}

QByteArray described(const Outline& outline)
{
    QByteArray text;
    for (const QPointF& point : outline)
        text += QByteArray::number(point.x(), 'g', 17) + ','
            + QByteArray::number(point.y(), 'g', 17) + ' ';
    return text;
}

} // namespace

class tst_PolygonChecks : public QObject
{
    Q_OBJECT

private slots:
    void convex_data();
    void convex();
    void convexByDefinition();
    void selfIntersection_data();
    void selfIntersection();
    void selfIntersectionByDefinition_data();
    void selfIntersectionByDefinition();
    void largeOutlines_data();
    void largeOutlines();
    void segmentation_data();
    void segmentation();
};

void tst_PolygonChecks::convex_data()
{
    QTest::addColumn<Outline>("outline");
    QTest::addColumn<bool>("expected");
    const Outline withMiddle = {{0, 0}, {1, 0}, {1, 0.5}, {1, 1}, {0, 1}};
    QTest::newRow("empty") << Outline() << true;
    QTest::newRow("one point") << Outline({{1, 1}}) << true;
    QTest::newRow("two points") << Outline({{1, 1}, {2, 2}}) << true;
    QTest::newRow("triangle") << Outline({{0, 0}, {1, 0}, {0, 1}}) << true;
    QTest::newRow("three collinear points") << Outline({{0, 0}, {1, 1}, {2, 2}}) << true;
    QTest::newRow("three points, one not a number")
        << Outline({{0, 0}, {qQNaN(), 1}, {2, 2}}) << true;
    QTest::newRow("square, counter-clockwise") << square << true;
    QTest::newRow("square, clockwise") << reversed(square) << true;
    QTest::newRow("straight vertex among positive turns") << withMiddle << false;
    QTest::newRow("straight vertex among negative turns") << reversed(withMiddle) << true;
    QTest::newRow("repeated vertex among positive turns")
        << Outline({{0, 0}, {1, 0}, {1, 0}, {1, 1}, {0, 1}}) << false;
    QTest::newRow("repeated vertex among negative turns")
        << reversed({{0, 0}, {1, 0}, {1, 0}, {1, 1}, {0, 1}}) << true;
    QTest::newRow("four collinear points") << Outline({{0, 0}, {1, 1}, {2, 2}, {3, 3}}) << true;
    QTest::newRow("concave") << Outline({{0, 0}, {4, 0}, {1, 1}, {0, 4}}) << false;
    QTest::newRow("concave at the last vertex")
        << Outline({{4, 0}, {4, 4}, {0, 4}, {3, 1}}) << false;
    QTest::newRow("concave at the first vertex")
        << Outline({{3, 1}, {4, 0}, {4, 4}, {0, 4}}) << false;
    QTest::newRow("bow-tie") << Outline({{1, 1}, {3, 3}, {3, 1}, {1, 3}}) << false;
    // All turns of a five-pointed star have one sense.
    QTest::newRow("pentagram") << Outline({{0, 3}, {2, -3}, {-3, 1}, {3, 1}, {-2, -3}}) << true;
    QTest::newRow("straight vertex off by the smallest step")
        << Outline({{0, 0}, {1, 0}, {std::nextafter(1.0, 2.0), 0.5}, {1, 1}, {0, 1}}) << true;
}

void tst_PolygonChecks::convex()
{
    QFETCH(Outline, outline);
    QTEST(isConvex(outline), "expected");
    QCOMPARE(literalIsConvex(outline), isConvex(outline));
}

void tst_PolygonChecks::convexByDefinition()
{
    RandomOutlines outlines(7);
    int convex = 0;
    for (int i = 0; i < 50000; ++i) {
        Outline outline = outlines.make(i % RandomOutlines::kinds, outlines.whole(1, 7));
        if (i % 4 == 0) {
            outline = outlines.star(int(outline.size()), 1); // On a circle.
            if (i % 8 == 0)
                outline = reversed(outline);
        }
        const bool expected = literalIsConvex(outline);
        convex += expected;
        QVERIFY2(isConvex(outline) == expected, described(outline));
    }
    QVERIFY(convex > 1000 && convex < 49000);
}

void tst_PolygonChecks::selfIntersection_data()
{
    QTest::addColumn<Outline>("outline");
    QTest::addColumn<bool>("expected");
    QTest::newRow("empty") << Outline() << false;
    QTest::newRow("one point") << Outline({{1, 1}}) << false;
    QTest::newRow("two points") << Outline({{1, 1}, {2, 3}}) << false;
    QTest::newRow("triangle") << Outline({{1, 1}, {2, 3}, {4, 1}}) << false;
    QTest::newRow("bow-tie") << Outline({{1, 1}, {3, 3}, {3, 1}, {1, 3}}) << true;
    QTest::newRow("square") << Outline({{1, 1}, {3, 1}, {3, 3}, {1, 3}}) << false;
    QTest::newRow("two edges square but for the smallest number")
        << Outline({{0, 0}, {5e-324, -1}, {1, -1}, {2, 2}, {3, -1}}) << true;
    QTest::newRow("square around the origin")
        << Outline({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}) << false;
    QTest::newRow("concave") << Outline({{1, 1}, {5, 1}, {2, 2}, {1, 5}}) << false;
    QTest::newRow("bow-tie that crosses at the origin")
        << Outline({{-1, -1}, {1, 1}, {1, -1}, {-1, 1}}) << false;
    QTest::newRow("bow-tie that crosses beside the origin")
        << Outline({{-1, -1}, {1, 1.5}, {1, -1}, {-1, 1}}) << true;
    QTest::newRow("vertex on an edge elsewhere")
        << Outline({{1, 1}, {9, 1}, {9, 5}, {5, 1}, {1, 5}}) << true;
    QTest::newRow("vertex on an edge elsewhere, at the origin")
        << Outline({{-4, 0}, {4, 0}, {4, 4}, {0, 0}, {-4, 4}}) << false;
    QTest::newRow("two vertices in one place")
        << Outline({{1, 1}, {3, 2}, {5, 1}, {5, 5}, {3, 2}, {1, 5}}) << true;
    QTest::newRow("crossing beside a corner at the origin")
        << Outline({{0, 0}, {4, 4}, {4, 0}, {0, 4}}) << true;
    QTest::newRow("there and back on one line")
        << Outline({{1, 1}, {5, 1}, {3, 1}, {7, 1}, {4, 1}}) << false;
    QTest::newRow("overlapping collinear edges")
        << Outline({{1, 1}, {9, 1}, {9, 3}, {7, 1}, {3, 1}, {1, 3}}) << true;
    QTest::newRow("repeated vertex") << Outline({{1, 1}, {3, 1}, {3, 1}, {3, 3}, {1, 3}}) << false;
    QTest::newRow("closed by a repeated first vertex")
        << Outline({{1, 1}, {3, 1}, {3, 3}, {1, 3}, {1, 1}}) << false;
    QTest::newRow("not a number") << Outline({{1, 1}, {3, 3}, {qQNaN(), 1}, {3, 1}, {1, 3}})
                                  << false;
    QTest::newRow("pentagram") << Outline({{0, 3}, {2, -3}, {-3, 1}, {3, 1}, {-2, -3}}) << true;
    // One line that falls by 45 degrees: edges that lie apart meet by rounding alone.
    QTest::newRow("meetings by rounding, far apart")
        << Outline({{0.98512632937535216, -0.71393936513434719},
                    {1.6461841842334353, -1.3749972199924305},
                    {5.2820023859529019, -5.0108154217118965},
                    {2.0868894208054916, -1.8157024565644877}})
        << true;
    QTest::newRow("meetings by rounding, of flat and steep edges")
        << Outline({{4.7979948534840071, -5.5645424499714462},
                    {3.1747931227651618, -3.9413407192526009},
                    {2.0510380784213478, -2.8175856749087864},
                    {6.7957815989841279, -7.562329195471567}})
        << true;
    QTest::newRow("meetings by rounding, of flat and steep edges away from the centre")
        << Outline({{-9.087757098230798, 8.373052876267307},
                    {1.1263628229268647, -1.841067044890351},
                    {7.958529599801656, -7.243825377838173},
                    {2.2852957780365135, -3.0},
                    {6.285295778036513, -7.000000000000001}})
        << true;
    QTest::newRow("meetings by rounding, of edges side by side")
        << Outline({{0.09234446467340962, 1.0722046861500432},
                    {0.7942273067489847, 0.3703218440744682},
                    {0.7942571616785926, 0.3702919891448603},
                    {0.7954916826932755, 0.3690574681301773}})
        << true;
    QTest::newRow("meeting by rounding, beyond the end of a long edge")
        << Outline({{0.10513901951219307, -0.8165285680362904},
                    {0.10513901904653178, -0.8165285675706291},
                    {0.10513900306227555, -0.8165285515863728},
                    {-2142565.174096982, 2142564.4627074334},
                    {-0.01392799614238921, -0.6974615523817081}})
        << true;
    QTest::newRow("meeting by rounding, at the border of a cell")
        << Outline({{0.2821592896501191, 0.7285598814226762},
                    {0.2821592890203955, 0.7285598812767751},
                    {-0.9628011898883696, 0.4401139193063214},
                    {0.848806997844406, 0.8598469753163869}})
        << true;
    QTest::newRow("meetings by rounding, beside a very short edge")
        << Outline({{0.25711390796848754, -0.36100224017429838},
                    {-0.44729072777742906, 0.34340239557161817},
                    {0.37451468059280668, -0.47840301279861763},
                    {0.37451468059280674, -0.47840301279861763},
                    {1.8420243383968007, -1.9459126706026109}})
        << true;
}

void tst_PolygonChecks::selfIntersection()
{
    QFETCH(Outline, outline);
    QTEST(isSelfIntersection(outline), "expected");
    QCOMPARE(literalIsSelfIntersection(outline), isSelfIntersection(outline));
    // Not always the same answer: meetings are rounded otherwise.
    QCOMPARE(isSelfIntersection(reversed(outline)), literalIsSelfIntersection(reversed(outline)));
}

void tst_PolygonChecks::selfIntersectionByDefinition_data()
{
    QTest::addColumn<int>("outlines");
    QTest::addColumn<int>("vertices");
    QTest::newRow("small outlines") << 180000 << 12;
    QTest::newRow("middling outlines") << 24000 << 60;
    QTest::newRow("larger outlines") << 1500 << 300;
}

void tst_PolygonChecks::selfIntersectionByDefinition()
{
    QFETCH(int, outlines);
    QFETCH(int, vertices);
    RandomOutlines random{unsigned(vertices)};
    int crossing = 0;
    for (int i = 0; i < outlines; ++i) {
        const int kind = i % RandomOutlines::kinds;
        const Outline outline = random.make(kind, random.whole(4, vertices));
        const bool expected = literalIsSelfIntersection(outline);
        crossing += expected;
        QVERIFY2(isSelfIntersection(outline) == expected,
                 "kind " + QByteArray::number(kind) + ": " + described(outline));
    }
    QVERIFY(crossing > outlines / 10 && crossing < outlines * 9 / 10);
}

void tst_PolygonChecks::largeOutlines_data()
{
    QTest::addColumn<Outline>("outline");
    RandomOutlines random(3);
    const Outline comb = random.comb(3000);
    QTest::newRow("star") << random.star(3000, 0);
    QTest::newRow("comb") << comb;
    QTest::newRow("turned comb") << random.turned(comb);
    const Outline spiral = RandomOutlines::squareSpiral(3000);
    QTest::newRow("square spiral") << spiral;
    QTest::newRow("turned square spiral") << random.turned(spiral);
}

void tst_PolygonChecks::largeOutlines()
{
    QFETCH(Outline, outline);
    QCOMPARE(isSelfIntersection(outline), literalIsSelfIntersection(outline));
    // Two vertices far apart change places: edges cross somewhere.
    std::swap(outline[outline.size() / 3], outline[outline.size() / 2]);
    QVERIFY(isSelfIntersection(outline));
}

void tst_PolygonChecks::segmentation_data()
{
    QTest::addColumn<Outline>("outline");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("in two") << square << 0.5 << true;
    QTest::newRow("not larger than the limit") << square << 1.0 << false;
    QTest::newRow("no limit") << square << 0.0 << false;
    QTest::newRow("bow-tie") << Outline({{1, 1}, {3, 3}, {3, 1}, {1, 3}}) << 0.1 << false;
}

void tst_PolygonChecks::segmentation()
{
    QFETCH(Outline, outline);
    QFETCH(double, value);
    Ring polygon;
    for (const QPointF& point : outline)
        polygon.emplace_back(point.x(), point.y());

    QTEST(isAreaCanSegment(polygon, value), "expected");
    std::vector<Ring> parts = {polygon};
    QTEST(SegmentBlockArea(polygon, value, parts), "expected");

    std::vector<Ring> platformParts;
    QCOMPARE(IsBlockPloyCanSegment(polygon, value), isAreaCanSegment(polygon, value));
    CRkCreateAirline().SegmentSurveyArea(polygon, value, platformParts);
    QVERIFY(parts == platformParts);
}

QTEST_GUILESS_MAIN(tst_PolygonChecks)
#include "tst_PolygonChecks.moc"
