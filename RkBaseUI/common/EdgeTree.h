// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/EdgeBoxes.h"
#include "common/OutlineEdges.h"

#include <algorithm>
#include <cstddef>
#include <vector>

/// Pairs of edges whose surroundings overlap, found in a tree of rectangles, each turned to lie
/// along its edges: for edges that are long and close together.
class EdgeTree
{
public:
    /// The edges and their boxes must outlive this.
    EdgeTree(const OutlineEdges& edges, const EdgeBoxes& boxes);

    /// Whether the edges are taken by direction instead of as they follow one another.
    bool isByDirection() const { return m_isByDirection; }

    /// Asks the pairs, each once; true when one of them gives that.
    bool anyPair(const AskPair& ask) const;

private:
    class Interval;
    /// A rectangle in any direction: centre, unit vector, half extents along it and across.
    struct Box
    {
        QPointF centre;
        QPointF direction;
        double along;
        double across;

        double area() const { return along * across; }
    };
    /// A range of leaves with its box, m_boxes[index].
    struct Node
    {
        std::size_t index;
        std::size_t begin;
        std::size_t end;

        bool isLeaf() const { return end - begin == 1; }
        Node lower() const { return {2 * index + 1, begin, begin + (end - begin) / 2}; }
        Node upper() const { return {2 * index + 2, begin + (end - begin) / 2, end}; }
    };
    /// Of m_order.
    struct Range
    {
        std::size_t begin;
        std::size_t end;
    };

    static constexpr std::size_t leafSize = 3;

    Node root() const { return {0, 0, (m_order.size() + leafSize - 1) / leafSize}; }
    /// The edges of a leaf; the last one may have fewer than the others.
    Range edgesOf(const Node& node) const
    {
        return {node.begin * leafSize, std::min(node.end * leafSize, m_order.size())};
    }
    void orderByDirection();
    double sampledCover() const;
    QPointF build(const Node& node);
    QPointF sumOfVectors(const Range& range) const;
    Box around(const Range& range, const QPointF& direction) const;
    static Box around(const Box& a, const Box& b, const QPointF& direction);
    static Box box(const QPointF& direction, const Interval& along, const Interval& across);
    static bool areApart(const Box& a, const Box& b);

    bool anyWithin(const Node& node, const AskPair& ask) const;
    bool anyBetween(const Node& a, const Node& b, const AskPair& ask) const;
    bool anyOfLeaves(const Node& a, const Node& b, const AskPair& ask) const;

    const OutlineEdges& m_edges;
    const EdgeBoxes& m_surroundings;
    bool m_isByDirection = false;
    std::vector<int> m_order;
    std::vector<Box> m_boxes; ///< a binary tree, root first
};
