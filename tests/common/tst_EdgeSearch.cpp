// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/ChainTree.h"
#include "common/CollinearEdges.h"
#include "common/EdgeTree.h"
#include "common/RankedEdges.h"
#include "support/RandomOutlines.h"

#include <QtTest>

#include <algorithm>
#include <optional>
#include <random>
#include <set>
#include <utility>
#include <vector>

Q_DECLARE_METATYPE(Outline)

namespace {

using Pair = std::pair<int, int>;

bool meet(const OutlineEdges& edges, const Pair& pair)
{
    return edges.line(pair.first).intersects(edges.line(pair.second), nullptr)
        == QLineF::BoundedIntersection;
}

/// The pairs that a search asks, in order, the smaller edge first.
template <typename Search>
std::vector<Pair> askedBy(Search search)
{
    std::vector<Pair> pairs;
    search.anyPair([&pairs](int a, int b) {
        pairs.push_back(std::minmax(a, b));
        return false;
    });
    return pairs;
}

template <typename Search>
std::set<Pair> pairsOf(const Search& search)
{
    const std::vector<Pair> asked = askedBy(search);
    return {asked.begin(), asked.end()};
}

bool isFitForChains(const EdgeBoxes& boxes)
{
    return ChainTree(boxes).anyPair([](int, int) { return false; }).has_value();
}

} // namespace

class tst_EdgeSearch : public QObject
{
    Q_OBJECT

private slots:
    void ranks_data();
    void ranks();
    void boxesOverlap_data();
    void boxesOverlap();
    void searchesReachALittleBeyondEdges();
    void searchesFindWhatMeets_data();
    void searchesFindWhatMeets();
    void fewPairsAreAsked_data();
    void fewPairsAreAsked();
    void parallelEdgesAreNotAsked();
    void searchesEnd();
};

void tst_EdgeSearch::ranks_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<quint32>("highest");
    QTest::newRow("none") << 0 << 0U;
    QTest::newRow("one") << 1 << 7U;
    QTest::newRow("few") << 300 << 0xffffffffU;
    QTest::newRow("many") << 5000 << 0xffffffffU;
    QTest::newRow("many, most of them often") << 5000 << 100U;
    QTest::newRow("many equal ones") << 5000 << 0U;
}

void tst_EdgeSearch::ranks()
{
    QFETCH(int, count);
    QFETCH(quint32, highest);
    std::mt19937 engine(1);
    std::uniform_int_distribution<std::uint32_t> ranks(0, highest);
    std::vector<std::uint32_t> expected;
    RankedEdges edges;
    for (int i = 0; i < count; ++i) {
        expected.push_back(ranks(engine));
        edges.push_back({expected.back(), i});
    }
    const std::vector<std::uint32_t> rankOfEdge = expected;
    std::sort(expected.begin(), expected.end());

    RankedEdges scratch;
    sortByRank(edges.begin(), edges.end(), scratch);

    QCOMPARE(edges.size(), expected.size());
    std::set<int> seen;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        QCOMPARE(edges[i].rank, expected[i]);
        QCOMPARE(rankOfEdge[std::size_t(edges[i].edge)], edges[i].rank);
        QVERIFY(seen.insert(edges[i].edge).second);
    }
}

void tst_EdgeSearch::boxesOverlap_data()
{
    QTest::addColumn<QPoint>("shift");
    QTest::addColumn<bool>("expected");
    QTest::newRow("the same") << QPoint(0, 0) << true;
    QTest::newRow("touching at the right") << QPoint(6, 0) << true;
    QTest::newRow("touching at the left") << QPoint(-6, 0) << true;
    QTest::newRow("touching above") << QPoint(0, 4) << true;
    QTest::newRow("touching below") << QPoint(0, -4) << true;
    QTest::newRow("apart at the right") << QPoint(8, 0) << false;
    QTest::newRow("apart at the left") << QPoint(-8, 0) << false;
    QTest::newRow("apart above") << QPoint(0, 6) << false;
    QTest::newRow("apart below") << QPoint(0, -6) << false;
    QTest::newRow("apart along both") << QPoint(-8, 6) << false;
    QTest::newRow("far apart") << QPoint(900000000, -900000000) << false;
}

/// Boxes six cells wide and four high, at several places.
void tst_EdgeSearch::boxesOverlap()
{
    QFETCH(QPoint, shift);
    using Box = EdgeBoxes::Box;
    for (const QPoint& place : {QPoint(0, 0), QPoint(-1000, 5), QPoint(50000000, -50000000)}) {
        const QPoint other = place + shift;
        const Box a(3 - place.x(), 2 - place.y(), 3 + place.x(), 2 + place.y());
        const Box b(3 - other.x(), 2 - other.y(), 3 + other.x(), 2 + other.y());
        QTEST(a.overlaps(b), "expected");
        QTEST(b.overlaps(a), "expected");
        QVERIFY(!a.isEmpty() && !a.overlaps(Box()) && !Box().overlaps(a));
        Box both = a;
        both.add(b);
        QVERIFY(both.overlaps(a) && both.overlaps(b));
    }
    QVERIFY(Box().isEmpty() && !Box().overlaps(Box()));
}

/// Edges 2 and 6 lie on one line, or nearly, and nearly touch.
void tst_EdgeSearch::searchesReachALittleBeyondEdges()
{
    RandomOutlines random(3);
    for (int i = 0; i < 10000; ++i) {
        const double height = random.real(-1, 1);
        const double end = random.real(-0.2, 0.2);
        const double gap = OutlineEdges::lengthening * (end + 0.4);
        const double side = random.whole(-1, 1) * OutlineEdges::widening;
        const Outline outline = random.turned({{-1, height},
                                               {-0.7, height},
                                               {-0.4, height},
                                               {end, height},
                                               {end, 2},
                                               {3, 2},
                                               {end + gap, height + side},
                                               {end + 1, height + side},
                                               {end + 2, height + side},
                                               {end + 3, height + side},
                                               {end + 3, -2},
                                               {-1, -2}});
        const OutlineEdges edges(outline);
        const EdgeBoxes boxes(edges);
        const Pair pair(2, 6);
        QCOMPARE(pairsOf(ChainTree(boxes)).count(pair), 1U);
        QCOMPARE(pairsOf(EdgeTree(edges, boxes)).count(pair), 1U);
    }
}

void tst_EdgeSearch::searchesFindWhatMeets_data()
{
    QTest::addColumn<int>("outlines");
    QTest::addColumn<int>("vertices");
    QTest::newRow("small outlines") << 60000 << 12;
    QTest::newRow("larger outlines") << 3000 << 60;
}

/// Both trees find every pair that meets, but for those on one line that lie apart.
void tst_EdgeSearch::searchesFindWhatMeets()
{
    QFETCH(int, outlines);
    QFETCH(int, vertices);
    RandomOutlines random{unsigned(vertices)};
    int fit = 0;
    int onOneLine = 0;
    for (int i = 0; i < outlines; ++i) {
        const Outline outline = random.make(i % RandomOutlines::kinds, random.whole(4, vertices));
        const OutlineEdges edges(outline);
        if (edges.lineCount() < 4 || edges.areExtreme())
            continue;
        const EdgeBoxes boxes(edges);
        const bool isFit = isFitForChains(boxes);
        const std::set<Pair> inTree = pairsOf(EdgeTree(edges, boxes));
        const std::set<Pair> inChains = isFit ? pairsOf(ChainTree(boxes)) : inTree;
        const std::set<Pair> collinear = pairsOf(CollinearEdges(edges));
        fit += isFit;
        for (int a = 0; a < edges.count(); ++a) {
            for (int b = a + 2; b < edges.count(); ++b) {
                const Pair pair(a, b);
                if (edges.next(b) == a || !meet(edges, pair))
                    continue;
                onOneLine += inTree.count(pair) == 0;
                QVERIFY(inTree.count(pair) || collinear.count(pair));
                QVERIFY(inChains.count(pair) || collinear.count(pair));
            }
        }
    }
    QVERIFY(fit > outlines / 2);
    QVERIFY(onOneLine > outlines / 100);
}

void tst_EdgeSearch::fewPairsAreAsked_data()
{
    QTest::addColumn<Outline>("outline");
    QTest::addColumn<bool>("isFit"); // for the chains
    QTest::addColumn<bool>("isByDirection"); // the tree
    RandomOutlines random(1);
    const Outline comb = random.comb(4000);
    const Outline spiral = RandomOutlines::squareSpiral(4000);
    QTest::newRow("comb") << comb << true << false;
    QTest::newRow("turned comb") << random.turned(comb) << true << false;
    QTest::newRow("star with short edges") << random.star(4000, 0.99) << true << false;
    QTest::newRow("star") << random.star(4000, 0) << false << false;
    QTest::newRow("irregular steps, level") << random.alongLine(4000, {1, 0}) << true << false;
    QTest::newRow("irregular steps, upright") << random.alongLine(4000, {0, 1}) << true << false;
    QTest::newRow("irregular steps, rising at 45 degrees")
        << random.alongLine(4000, {1, 1}) << true << false;
    QTest::newRow("irregular steps, falling at 45 degrees")
        << random.alongLine(4000, {1, -1}) << true << false;
    QTest::newRow("square spiral") << spiral << false << true;
    QTest::newRow("turned square spiral") << random.turned(spiral) << false << true;
    QTest::newRow("angles inside one another")
        << RandomOutlines::nestedAngles(2000) << false << true;
}

void tst_EdgeSearch::fewPairsAreAsked()
{
    QFETCH(Outline, outline);
    const OutlineEdges edges(outline);
    const EdgeBoxes boxes(edges);
    QTEST(isFitForChains(boxes), "isFit");
    const std::size_t most = 12 * outline.size();
    const EdgeTree tree(edges, boxes);
    QTEST(tree.isByDirection(), "isByDirection");
    const std::vector<Pair> askedByChains = askedBy(ChainTree(boxes));
    const std::vector<Pair> askedByTree = askedBy(tree);
    QVERIFY(askedByChains.size() < most);
    QVERIFY(askedByTree.size() < most);
    QVERIFY(askedBy(CollinearEdges(edges)).size() < most);
    QCOMPARE(pairsOf(ChainTree(boxes)).size(), askedByChains.size()); // Each once.
    QCOMPARE(pairsOf(tree).size(), askedByTree.size());
}

/// Beside a vertex so far away the teeth of a comb seem to lie on one line.
void tst_EdgeSearch::parallelEdgesAreNotAsked()
{
    Outline outline = RandomOutlines(1).comb(4000);
    outline.back() = QPointF(500, -2.7e8);
    QVERIFY(askedBy(CollinearEdges(OutlineEdges(outline))).size() < outline.size());
}

void tst_EdgeSearch::searchesEnd()
{
    const Outline outline = RandomOutlines(2).comb(100);
    const OutlineEdges edges(outline);
    int asked = 0;
    const AskPair third = [&asked](int, int) { return ++asked == 3; };
    const EdgeBoxes boxes(edges);
    QCOMPARE(ChainTree(boxes).anyPair(third), std::optional<bool>(true));
    QCOMPARE(std::exchange(asked, 0), 3);
    QVERIFY(EdgeTree(edges, boxes).anyPair(third));
    QCOMPARE(std::exchange(asked, 0), 3);
    const Outline straight = RandomOutlines(2).alongLine(100, {1, 0.3});
    QVERIFY(CollinearEdges(OutlineEdges(straight)).anyPair(third));
    QCOMPARE(std::exchange(asked, 0), 3);
}

QTEST_APPLESS_MAIN(tst_EdgeSearch)
#include "tst_EdgeSearch.moc"
