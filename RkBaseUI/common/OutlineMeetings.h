// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QLineF>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

/// Looks for an edge of a closed outline that meets three others, with the answer of the double
/// loop over all pairs of edges with QLineF::intersects, rounding included, but without looking at
/// all pairs.
///
///     const bool crosses = OutlineMeetings(vertices).someEdgeMeetsThree();
///
/// Two edges are asked when one of two things holds; for all others it is provable that rounding
/// cannot make them meet (see OutlineMeetings.cpp):
/// - their surroundings overlap, each being the edge lengthened a little at both ends. A tree of
///   rectangles, each turned to lie along its edges, finds those pairs;
/// - they lie on one line but for rounding, at any distance. Sorting by direction and offset finds
///   those.
class OutlineMeetings
{
public:
    explicit OutlineMeetings(const std::vector<QPointF>& outline);

    /// Whether some edge meets at least three others.
    bool someEdgeMeetsThree();

private:
    /// An edge that can meet others at all.
    struct Edge
    {
        QLineF line;
        double dx;
        double dy;
        double x; ///< its middle, from the centre of the outline
        double y;

        /// The larger one of |dx| and |dy|.
        double length() const { return std::max(std::abs(dx), std::abs(dy)); }
    };
    /// The first two edges that an edge was found to meet; -1 for none.
    struct Partners
    {
        int first = -1;
        int second = -1;
    };
    /// A rectangle in any direction: centre, unit vector, half extents along it and across.
    struct Box
    {
        double x;
        double y;
        double ux;
        double uy;
        double along;
        double across;

        double area() const { return along * across; }
    };
    /// Sums over edges that give their main direction.
    struct Directions
    {
        double xx = 0;
        double xy = 0;
        double yy = 0;
    };
    /// A range of m_order with its box, m_boxes[index].
    struct Node
    {
        std::size_t index;
        int begin;
        int end;

        bool isLeaf() const { return end - begin <= leafSize; }
        Node lower() const { return {2 * index + 1, begin, begin + (end - begin) / 2}; }
        Node upper() const { return {2 * index + 2, begin + (end - begin) / 2, end}; }
    };
    /// An edge as an infinite line: its direction as a number from -1 to 3, cyclic, and its
    /// distance from the centre.
    struct Line
    {
        double direction;
        double offset;
        int edge;
    };
    using LineIterator = std::vector<Line>::iterator;

    static constexpr int leafSize = 4;

    bool askAllPairs();
    /// Asks the pairs whose surroundings overlap.
    bool askNeighbourhoods();
    bool askCollinear();
    bool askOnOneLine(LineIterator begin, LineIterator end);
    bool askOfOneDirection(LineIterator begin, LineIterator end);
    bool askSideBySide(LineIterator begin, LineIterator end);

    void orderByDirection();
    Directions build(const Node& node);
    void buildLeaf(const Node& node);
    void buildInner(const Node& node);
    static void turnInto(Box& box, const Directions& directions);
    bool areApart(const Box& a, const Box& b) const;
    bool askWithin(const Node& node);
    bool askBetween(const Node& a, const Node& b);
    bool askIfNear(int a, int b);

    bool ask(int a, int b);
    bool isThird(int edge, int partner, const QPointF& meeting);

    std::vector<Line> lines() const;
    bool areParallel(const Line& a, const Line& b) const;

    std::vector<Edge> m_edges;
    std::vector<Partners> m_partners; ///< by edge
    bool m_isExtreme = false; ///< coordinates for which nothing is provable
    QPointF m_centre;
    double m_reach = 0; ///< largest distance of a coordinate from the centre
    std::vector<int> m_order;
    std::vector<Box> m_boxes; ///< a binary tree, root first
    double m_leafArea = 0; ///< of all boxes without a child
};
