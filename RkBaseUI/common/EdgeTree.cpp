// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/EdgeTree.h"

#include "common/RankedEdges.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace {

/// How often boxes of a few edges each may cover the outline's own box before another order of the
/// edges is taken.
constexpr double largestCover = 8;
/// Of so many leaves about one is looked at to learn that.
constexpr std::size_t samplingStep = 16;

constexpr int directionBits = 4;
constexpr int offsetBits = 32 - directionBits;

double dot(const QPointF& a, const QPointF& b)
{
    return a.x() * b.x() + a.y() * b.y();
}

double cross(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// The second one is turned round when it points back, so the sum is not shorter than either.
QPointF alignedSum(const QPointF& a, const QPointF& b)
{
    return dot(a, b) >= 0 ? a + b : a - b;
}

QPointF unitVector(const QPointF& vector)
{
    return vector / std::sqrt(dot(vector, vector));
}

} // namespace

/// Grows around intervals.
class EdgeTree::Interval
{
public:
    void add(double middle, double half)
    {
        m_low = std::min(m_low, middle - half);
        m_high = std::max(m_high, middle + half);
    }
    void widen(double by)
    {
        m_low -= by;
        m_high += by;
    }
    double middle() const { return (m_low + m_high) / 2; }
    double half() const { return (m_high - m_low) / 2; }

private:
    double m_low = std::numeric_limits<double>::max();
    double m_high = -std::numeric_limits<double>::max();
};

EdgeTree::EdgeTree(const OutlineEdges& edges, const EdgeBoxes& boxes)
    : m_edges(edges)
    , m_surroundings(boxes)
{
    m_order.reserve(std::size_t(edges.lineCount()));
    for (int edge = 0; edge < edges.count(); ++edge) {
        if (edges.isLine(edge))
            m_order.push_back(edge);
    }
    // Edges that follow one another mostly lie together. Where they surround the others, as in a
    // spiral with straight sides, those of one direction do that lie side by side.
    m_isByDirection = sampledCover() > largestCover;
    if (m_isByDirection)
        orderByDirection();
    std::size_t nodes = 1;
    for (std::size_t leaves = root().end; leaves > 1; leaves = (leaves + 1) / 2)
        nodes = 2 * nodes + 1;
    m_boxes.resize(nodes);
    build(root());
}

/// About how often the boxes of the leaves, as they are ordered, cover the box of all.
double EdgeTree::sampledCover() const
{
    double area = 0;
    // At random, so that what repeats along the outline is not missed.
    std::minstd_rand random;
    for (std::size_t leaf = 0; leaf < root().end; leaf += 1 + random() % (2 * samplingStep - 1)) {
        const Range edges = edgesOf({0, leaf, leaf + 1});
        area += around(edges, unitVector(sumOfVectors(edges))).area();
    }
    return double(samplingStep) * area / around(edgesOf(root()), m_edges.axis()).area();
}

void EdgeTree::orderByDirection()
{
    const double largestOffset = OutlineEdges::largestOffset * m_edges.reach();
    const double offsetCells = double(1 << offsetBits) / (2 * largestOffset);
    RankedEdges ranked;
    RankedEdges scratch;
    ranked.reserve(m_order.size());
    for (const int edge : m_order) {
        const QLineF line = m_edges.line(edge);
        // Directions in the middle of a cell: common ones, along the axes, stay together.
        const double cell = (OutlineEdges::direction(line) + 1) / 4 * (1 << directionBits) + 0.5;
        const double offset = m_edges.offset(line) + largestOffset;
        ranked.push_back(
            {(std::uint32_t(cell) << offsetBits) + std::uint32_t(offset * offsetCells), edge});
    }
    sortByRank(ranked.begin(), ranked.end(), scratch);
    std::transform(ranked.begin(), ranked.end(), m_order.begin(),
                   [](const RankedEdge& edge) { return edge.edge; });
}

/// Gives the sum of the vectors of all its edges.
QPointF EdgeTree::build(const Node& node)
{
    if (node.isLeaf()) {
        const QPointF sum = sumOfVectors(edgesOf(node));
        m_boxes[node.index] = around(edgesOf(node), unitVector(sum));
        return sum;
    }
    const QPointF sum = alignedSum(build(node.lower()), build(node.upper()));
    m_boxes[node.index] =
        around(m_boxes[node.lower().index], m_boxes[node.upper().index], unitVector(sum));
    return sum;
}

QPointF EdgeTree::sumOfVectors(const Range& range) const
{
    QPointF sum;
    for (std::size_t i = range.begin; i < range.end; ++i)
        sum = alignedSum(sum, OutlineEdges::vector(m_edges.line(m_order[i])));
    return sum;
}

/// The box around the surroundings of the edges.
EdgeTree::Box EdgeTree::around(const Range& range, const QPointF& direction) const
{
    constexpr double half = OutlineEdges::lengthenedHalf;
    Interval along;
    Interval across;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const QLineF line = m_edges.line(m_order[i]);
        const QPointF vector = OutlineEdges::vector(line);
        const QPointF middle = m_edges.middle(line);
        along.add(dot(direction, middle), half * std::abs(dot(direction, vector)));
        across.add(cross(direction, middle), half * std::abs(cross(direction, vector)));
    }
    for (Interval* interval : {&along, &across})
        interval->widen(OutlineEdges::widening * m_edges.reach());
    return box(direction, along, across);
}

/// The box around two others.
EdgeTree::Box EdgeTree::around(const Box& a, const Box& b, const QPointF& direction)
{
    Interval along;
    Interval across;
    for (const Box& part : {a, b}) {
        const double cosine = std::abs(dot(direction, part.direction));
        const double sine = std::abs(cross(direction, part.direction));
        along.add(dot(direction, part.centre), part.along * cosine + part.across * sine);
        across.add(cross(direction, part.centre), part.along * sine + part.across * cosine);
    }
    return box(direction, along, across);
}

EdgeTree::Box EdgeTree::box(const QPointF& direction, const Interval& along, const Interval& across)
{
    const QPointF normal(-direction.y(), direction.x());
    return {along.middle() * direction + across.middle() * normal, direction, along.half(),
            across.half()};
}

/// Whether a side of one of the rectangles separates them.
bool EdgeTree::areApart(const Box& a, const Box& b)
{
    const QPointF way = b.centre - a.centre;
    const double cosine = std::abs(dot(a.direction, b.direction));
    const double sine = std::abs(cross(a.direction, b.direction));
    return std::abs(dot(a.direction, way)) > a.along + b.along * cosine + b.across * sine
        || std::abs(cross(a.direction, way)) > a.across + b.along * sine + b.across * cosine
        || std::abs(dot(b.direction, way)) > b.along + a.along * cosine + a.across * sine
        || std::abs(cross(b.direction, way)) > b.across + a.along * sine + a.across * cosine;
}

bool EdgeTree::anyPair(const AskPair& ask) const
{
    return anyWithin(root(), ask);
}

bool EdgeTree::anyWithin(const Node& node, const AskPair& ask) const
{
    if (node.isLeaf())
        return anyOfLeaves(node, node, ask);
    return anyWithin(node.lower(), ask) || anyWithin(node.upper(), ask)
        || anyBetween(node.lower(), node.upper(), ask);
}

bool EdgeTree::anyBetween(const Node& a, const Node& b, const AskPair& ask) const
{
    if (areApart(m_boxes[a.index], m_boxes[b.index]))
        return false;
    if (a.isLeaf() && b.isLeaf())
        return anyOfLeaves(a, b, ask);
    if (a.isLeaf())
        return anyBetween(a, b.lower(), ask) || anyBetween(a, b.upper(), ask);
    if (b.isLeaf())
        return anyBetween(a.lower(), b, ask) || anyBetween(a.upper(), b, ask);
    return anyBetween(a.lower(), b.lower(), ask) || anyBetween(a.lower(), b.upper(), ask)
        || anyBetween(a.upper(), b.lower(), ask) || anyBetween(a.upper(), b.upper(), ask);
}

bool EdgeTree::anyOfLeaves(const Node& a, const Node& b, const AskPair& ask) const
{
    const Range edgesA = edgesOf(a);
    const Range edgesB = edgesOf(b);
    for (std::size_t i = edgesA.begin; i < edgesA.end; ++i) {
        const EdgeBoxes::Box& box = m_surroundings[std::size_t(m_order[i])];
        for (std::size_t j = a.index == b.index ? i + 1 : edgesB.begin; j < edgesB.end; ++j) {
            if (box.overlaps(m_surroundings[std::size_t(m_order[j])])
                && ask(m_order[i], m_order[j]))
                return true;
        }
    }
    return false;
}
