// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/MainDirection.h"

#include <QLineF>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

/// Is given two edges, and ends the search when it returns true.
using AskPair = std::function<bool(int, int)>;

/// The edges of a closed outline: edge i leads from vertex i to the next one.
///
/// Two of them can meet only when their surroundings overlap, for which EdgeGrid and EdgeTree look,
/// or when they lie on one line but for rounding, for which CollinearEdges does. OutlineEdges.cpp
/// explains why.
class OutlineEdges
{
public:
    /// An upright rectangle, by its middle, from the centre of the outline, and half its size.
    struct Extent
    {
        double x;
        double y;
        double halfWidth;
        double halfHeight;

        bool overlaps(const Extent& other) const
        {
            return std::abs(x - other.x) <= halfWidth + other.halfWidth
                && std::abs(y - other.y) <= halfHeight + other.halfHeight;
        }
    };

    // OutlineEdges.cpp explains these.
    static constexpr double unit = std::numeric_limits<double>::epsilon() / 2;
    static constexpr double angle = 1 << 20;
    /// By this part of its length an edge is lengthened at both ends, ...
    static constexpr double lengthening = 16 / angle;
    /// ... which makes half of it this part, ...
    static constexpr double lengthenedHalf = 0.5 + lengthening;
    /// ... and by this part of the reach it is widened: twice K u, because the largest distance
    /// from the centre may be twice the reach where the centre has to be rounded.
    static constexpr double widening = 2 * angle * unit;

    /// The vertices are not copied.
    explicit OutlineEdges(const std::vector<QPointF>& vertices);

    /// All edges.
    int count() const { return int(m_vertices.size()); }
    /// Those that can meet others at all: they have a length, and it is a number.
    const std::vector<int>& lines() const { return m_lines; }
    /// Whether some line is so long, short or far away that nothing is provable.
    bool areExtreme() const { return m_areExtreme; }

    int next(int edge) const { return edge + 1 < count() ? edge + 1 : 0; }
    int previous(int edge) const { return edge > 0 ? edge - 1 : count() - 1; }
    QLineF line(int edge) const { return {vertex(edge), vertex(next(edge))}; }

    /// The centre of all lines.
    QPointF centre() const { return m_centre; }
    /// The largest distance of a coordinate from the centre, but for its rounding; above 0.
    double reach() const { return m_reach; }
    /// The direction that they have in common, as a unit vector.
    QPointF mainDirection() const { return m_mainDirection.unitVector(); }
    /// The middle of an edge, from the centre.
    QPointF middle(const QLineF& line) const { return line.p1() - m_centre + vector(line) / 2; }
    /// The direction as a number from -1 to 3, after which it begins anew; the same in both senses.
    static double direction(const QLineF& line);
    /// Where the line, lengthened, crosses the axis through the centre that is steeper to it, by
    /// its sign on one side or the other; at most twice the reach.
    double offset(const QLineF& line) const;
    /// The upright rectangle around an edge that is lengthened a little.
    Extent surroundings(int edge) const;

    /// From the start to the end of an edge.
    static QPointF vector(const QLineF& line) { return {line.dx(), line.dy()}; }
    /// The larger one of |x| and |y|.
    static double size(const QPointF& vector)
    {
        return std::max(std::abs(vector.x()), std::abs(vector.y()));
    }

private:
    const QPointF& vertex(int index) const { return m_vertices[std::size_t(index)]; }

    const std::vector<QPointF>& m_vertices;
    std::vector<int> m_lines;
    bool m_areExtreme = false;
    QPointF m_centre;
    double m_reach = 0;
    MainDirection m_mainDirection;
};

inline OutlineEdges::Extent OutlineEdges::surroundings(int edge) const
{
    const QLineF ends = line(edge);
    const QPointF position = middle(ends);
    const double room = widening * m_reach;
    return {position.x(), position.y(), lengthenedHalf * std::abs(ends.dx()) + room,
            lengthenedHalf * std::abs(ends.dy()) + room};
}
