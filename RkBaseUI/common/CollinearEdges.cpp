// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/CollinearEdges.h"

namespace {

// With these cells, edges that are nearly parallel are at most in neighbouring ones, and so are
// nearly parallel edges that are nearly on one line. The directions make a circle.
constexpr double directionCells = 1 << 30;
constexpr double offsetCells = 1 << 28; ///< in a reach
static_assert(OutlineEdges::widening * directionCells < 0.5);
static_assert(8 * OutlineEdges::widening * offsetCells <= 0.5);

/// For the same with K = 32 (see OutlineEdges.cpp).
constexpr double largeLengthening = 1.0 / 2;
constexpr double sameDirection = 48 * OutlineEdges::unit;

/// Whether the second one of two ranks is in the same cell as the first or in the next.
bool follows(const RankedEdge& first, const RankedEdge& second)
{
    return second.rank - first.rank <= 1;
}

/// Calls `work` with every longest run of at least two edges that follow one another, until it
/// gives true.
template <typename Work>
bool anyRun(const std::vector<RankedEdge>& edges, Work work)
{
    for (auto begin = edges.begin(); begin != edges.end();) {
        auto end = begin + 1;
        while (end != edges.end() && follows(*(end - 1), *end))
            ++end;
        if (end - begin > 1 && work(begin, end))
            return true;
        begin = end;
    }
    return false;
}

} // namespace

bool CollinearEdges::anyPair(const AskPair& ask) const
{
    std::vector<RankedEdge> edges;
    edges.reserve(m_edges.lines().size());
    for (const int edge : m_edges.lines()) {
        const double direction = OutlineEdges::direction(m_edges.line(edge));
        edges.push_back({std::uint32_t(std::uint64_t((direction + 1) * directionCells)), edge});
    }
    sortByRank(edges);
    if (follows(edges.back(), edges.front())) {
        // No run may be broken where the circle begins.
        const auto gap = std::adjacent_find(
            edges.begin(), edges.end(),
            [](const RankedEdge& a, const RankedEdge& b) { return !follows(a, b); });
        if (gap != edges.end())
            std::rotate(edges.begin(), gap + 1, edges.end());
    }
    return anyRun(edges,
                  [&](Iterator begin, Iterator end) { return anyOfOneDirection(begin, end, ask); });
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

bool CollinearEdges::anyOfOneDirection(Iterator begin, Iterator end, const AskPair& ask) const
{
    const bool areAllParallel = std::all_of(begin + 1, end, [&](const RankedEdge& other) {
        return areParallel(begin->edge, other.edge);
    });
    if (areAllParallel)
        return false;

    std::vector<RankedEdge> edges(begin, end);
    for (RankedEdge& edge : edges) {
        // Its sign changes where the directions begin anew.
        const double offset = std::abs(m_edges.offset(m_edges.line(edge.edge)));
        edge.rank = std::uint32_t(offset / m_edges.reach() * offsetCells);
    }
    sortByRank(edges);
    return anyRun(edges, [&](Iterator first, Iterator last) {
        return anyEquallyDirected(first, last, ask) || anySideBySide(first, last, ask);
    });
}

/// Asks the pairs whose directions differ by rounding alone.
bool CollinearEdges::anyEquallyDirected(Iterator begin, Iterator end, const AskPair& ask) const
{
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
        double direction = OutlineEdges::direction(line);
        if (std::abs(direction - first) > 2) // On the other side of where they begin anew.
            direction += direction < first ? 4 : -4;
        edges.push_back({direction, OutlineEdges::size(OutlineEdges::vector(line)), ranked->edge});
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
bool CollinearEdges::anySideBySide(Iterator begin, Iterator end, const AskPair& ask) const
{
    struct Piece
    {
        double low;
        double high;
        int edge;
    };
    const QPointF first = OutlineEdges::vector(m_edges.line(begin->edge));
    const bool isFlat = std::abs(first.x()) >= std::abs(first.y());
    std::vector<Piece> pieces;
    for (auto ranked = begin; ranked != end; ++ranked) {
        const QLineF line = m_edges.line(ranked->edge);
        const auto [low, high] =
            isFlat ? std::minmax({line.x1(), line.x2()}) : std::minmax({line.y1(), line.y2()});
        const double more = largeLengthening * OutlineEdges::size(OutlineEdges::vector(line))
            + OutlineEdges::widening * m_edges.reach();
        pieces.push_back({low - more, high + more, ranked->edge});
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const Piece& a, const Piece& b) { return a.low < b.low; });
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece) {
        for (auto other = piece + 1; other != pieces.end() && other->low <= piece->high; ++other) {
            if (!areParallel(piece->edge, other->edge) && ask(piece->edge, other->edge))
                return true;
        }
    }
    return false;
}
