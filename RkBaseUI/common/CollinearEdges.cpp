// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/CollinearEdges.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace {

// With these cells, edges that are nearly parallel are at most in neighbouring ones, and so are
// nearly parallel edges that are nearly on one line. The directions make a circle.
constexpr double directionCells = 1 << 30;
constexpr double offsetCells = 1 << 28; ///< in a reach
constexpr double pieceCells = 1 << 28; ///< the same; less than 8 reaches to both sides
constexpr double highestRank = std::numeric_limits<std::uint32_t>::max();
static_assert(OutlineEdges::widening * directionCells < 0.5);
static_assert(8 * OutlineEdges::widening * offsetCells <= 0.5);
static_assert(OutlineEdges::largestOffset * offsetCells < highestRank);
static_assert(16 * pieceCells <= highestRank + 1);

/// For the same with K = 32 (see OutlineEdges.cpp).
constexpr double largeLengthening = 1.0 / 2;
constexpr double sameDirection = 48 * OutlineEdges::unit;

/// Whether the second one of two ranks is neither in the same cell as the first nor in the next.
bool isGap(const RankedEdge& first, const RankedEdge& second)
{
    return second.rank - first.rank > 1;
}

/// Calls `work` with every longest run of at least two edges without a gap, until it gives true. It
/// may rank the edges of its run anew.
template <typename Work>
bool anyRun(RankedEdges::iterator begin, RankedEdges::iterator end, Work work)
{
    while (begin != end) {
        const auto last = std::adjacent_find(begin, end, isGap);
        const auto runEnd = last == end ? end : last + 1;
        if (runEnd - begin > 1 && work(begin, runEnd))
            return true;
        begin = runEnd;
    }
    return false;
}

/// From one direction to another, at most 2.
double turn(double from, double to)
{
    const double turn = to - from;
    return std::abs(turn) <= 2 ? turn : turn - std::copysign(4, turn);
}

} // namespace

CollinearEdges::CollinearEdges(const OutlineEdges& edges, std::pmr::memory_resource* memory)
    : m_edges(edges)
    , m_ranked(memory)
    , m_scratch(memory)
{
}

bool CollinearEdges::anyPair(const AskPair& ask)
{
    const double cellsPerUnit = offsetCells / m_edges.reach();
    m_ranked.clear();
    m_ranked.reserve(std::size_t(m_edges.lineCount()));
    for (int edge = 0; edge < m_edges.count(); ++edge) {
        if (!m_edges.isLine(edge))
            continue;
        // Its sign changes where the directions begin anew.
        const double offset = std::abs(m_edges.offset(m_edges.line(edge)));
        m_ranked.push_back({std::uint32_t(offset * cellsPerUnit), edge});
    }
    sortByRank(m_ranked.begin(), m_ranked.end(), m_scratch);
    return anyRun(m_ranked.begin(), m_ranked.end(),
                  [&](Iterator begin, Iterator end) { return anyOfOneOffset(begin, end, ask); });
}

/// Whether no rounding can make two edges anything but parallel.
bool CollinearEdges::areParallel(int a, int b) const
{
    const QLineF lineA = m_edges.line(a);
    const QLineF lineB = m_edges.line(b);
    return (lineA.dx() == 0 && lineB.dx() == 0) || (lineA.dy() == 0 && lineB.dy() == 0)
        || (lineA.dx() == lineA.dy() && lineB.dx() == lineB.dy())
        || (lineA.dx() == -lineA.dy() && lineB.dx() == -lineB.dy())
        || (lineA.dx() == lineB.dx() && lineA.dy() == lineB.dy())
        || (lineA.dx() == -lineB.dx() && lineA.dy() == -lineB.dy());
}

bool CollinearEdges::areAllParallel(Iterator begin, Iterator end) const
{
    return std::all_of(begin + 1, end, [&](const RankedEdge& other) {
        return areParallel(begin->edge, other.edge);
    });
}

bool CollinearEdges::anyOfOneOffset(Iterator begin, Iterator end, const AskPair& ask)
{
    if (areAllParallel(begin, end))
        return false;
    for (auto edge = begin; edge != end; ++edge) {
        const double direction = OutlineEdges::direction(m_edges.line(edge->edge)) + 1;
        edge->rank = std::uint32_t(std::uint64_t(direction * directionCells));
    }
    sortByRank(begin, end, m_scratch);
    if (!isGap(*(end - 1), *begin)) {
        // No run may be broken where the circle begins.
        const auto last = std::adjacent_find(begin, end, isGap);
        if (last != end)
            std::rotate(begin, last + 1, end);
    }
    return anyRun(begin, end, [&](Iterator first, Iterator last) {
        return !areAllParallel(first, last)
            && (anyEquallyDirected(first, last, ask) || anySideBySide(first, last, ask));
    });
}

/// Asks the pairs whose directions differ by rounding alone.
bool CollinearEdges::anyEquallyDirected(Iterator begin, Iterator end, const AskPair& ask)
{
    const double first = OutlineEdges::direction(m_edges.line(begin->edge));
    for (auto edge = begin; edge != end; ++edge) {
        // The first one has the lowest rank, so no direction is lower by a cell.
        const double direction = OutlineEdges::direction(m_edges.line(edge->edge));
        const double more = turn(first, direction) + 1 / directionCells;
        edge->rank = std::uint32_t(std::min(more / sameDirection, highestRank));
    }
    sortByRank(begin, end, m_scratch);
    return anyRun(begin, end, [&](Iterator runBegin, Iterator runEnd) {
        return anyOfOneRun(runBegin, runEnd, ask);
    });
}

bool CollinearEdges::anyOfOneRun(Iterator begin, Iterator end, const AskPair& ask)
{
    if (areAllParallel(begin, end))
        return false; // As the rest would give, but sooner.
    struct Directed
    {
        double direction;
        double length;
        int edge;
    };
    const double first = OutlineEdges::direction(m_edges.line(begin->edge));
    std::vector<Directed> edges;
    for (auto ranked = begin; ranked != end; ++ranked) {
        const QLineF line = m_edges.line(ranked->edge);
        edges.push_back({turn(first, OutlineEdges::direction(line)),
                         OutlineEdges::size(OutlineEdges::vector(line)), ranked->edge});
    }
    std::sort(edges.begin(), edges.end(), [](const Directed& a, const Directed& b) {
        return a.direction != b.direction ? a.direction < b.direction : a.length < b.length;
    });
    auto groupEnd = edges.begin();
    for (auto edge = edges.begin(); edge != edges.end(); ++edge) {
        if (edge == groupEnd) {
            while (groupEnd != edges.end() && areParallel(edge->edge, groupEnd->edge))
                ++groupEnd;
        }
        for (auto other = groupEnd;
             other != edges.end() && other->direction - edge->direction <= sameDirection; ++other) {
            if (ask(edge->edge, other->edge))
                return true;
        }
    }
    return false;
}

/// Asks the pairs that overlap in x, or in y where the edges are steep.
bool CollinearEdges::anySideBySide(Iterator begin, Iterator end, const AskPair& ask)
{
    const QPointF first = OutlineEdges::vector(m_edges.line(begin->edge));
    const bool isFlat = std::abs(first.x()) >= std::abs(first.y());
    const double cellsPerUnit = pieceCells / m_edges.reach();
    const auto rankOfEnd = [&](int edge, double side) {
        const QLineF line = m_edges.line(edge);
        const double middle = isFlat ? m_edges.middle(line).x() : m_edges.middle(line).y();
        const double half =
            (0.5 + largeLengthening) * OutlineEdges::size(OutlineEdges::vector(line))
            + OutlineEdges::widening * m_edges.reach();
        return std::uint32_t((middle + side * half) * cellsPerUnit + 8 * pieceCells);
    };
    for (auto edge = begin; edge != end; ++edge)
        edge->rank = rankOfEnd(edge->edge, -1);
    sortByRank(begin, end, m_scratch);
    for (auto edge = begin; edge != end; ++edge) {
        const std::uint32_t last = rankOfEnd(edge->edge, 1);
        for (auto other = edge + 1; other != end && other->rank <= last; ++other) {
            if (ask(edge->edge, other->edge))
                return true;
        }
    }
    return false;
}
