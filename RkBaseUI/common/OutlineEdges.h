// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

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
/// Two of them can meet only when their surroundings overlap, for which ChainTree and EdgeTree
/// look, or when they lie on one line but for rounding, for which CollinearEdges does.
/// OutlineEdges.cpp explains why.
class OutlineEdges
{
public:
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
    /// Whether the edge can meet others at all: it has a length, and that is a number.
    bool isLine(int edge) const
    {
        const QPointF way = vector(line(edge));
        return std::isfinite(way.x()) && std::isfinite(way.y()) && size(way) > 0;
    }
    /// How many are lines.
    int lineCount() const { return m_lineCount; }
    /// Whether some line is so long, short or far away that nothing is provable.
    bool areExtreme() const { return m_areExtreme; }

    int next(int edge) const { return edge + 1 < count() ? edge + 1 : 0; }
    int previous(int edge) const { return edge > 0 ? edge - 1 : count() - 1; }
    QLineF line(int edge) const { return {vertex(edge), vertex(next(edge))}; }

    /// The centre of all lines.
    QPointF centre() const { return m_centre; }
    /// The largest distance of a coordinate from the centre, but for its rounding; above 0.
    double reach() const { return m_reach; }
    /// A unit vector to which most of them, long ones counting more, are about parallel or square.
    QPointF axis() const;
    /// The middle of an edge, from the centre.
    QPointF middle(const QLineF& line) const { return line.p1() - m_centre + vector(line) / 2; }
    /// The direction as a number from -1 to 3, after which it begins anew; the same in both senses.
    static double direction(const QLineF& line);
    /// Where the line, lengthened, crosses the upright or the level through a certain point near
    /// the centre, whichever is steeper to it; by its sign on one side or the other.
    double offset(const QLineF& line) const;
    /// More than any offset, in reaches: from the centre it is at most twice the reach.
    static constexpr double largestOffset = 3;

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
    int m_lineCount = 0;
    bool m_areExtreme = false;
    QPointF m_centre;
    double m_reach = 0;
    QPointF m_fourfoldSum; ///< of all vectors, squared, with four times their angles
};
