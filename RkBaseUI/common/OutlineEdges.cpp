// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/OutlineEdges.h"

// Why it is enough to ask neighbours and collinear edges.
//
// For edges e = p + s a and f = q - t b (0 <= s, t <= 1), QLineF::intersects computes D = a x b
// and, with c = p - q, the parameters s = (b x c) / D and t = (a x c) / D, and wants both in [0,
// 1]. Swapping e and f swaps s and t exactly, so a pair meets or does not, whichever is asked. (Qt
// must be built so that each product is rounded before it is added; for x86-64 that is the rule.)
//
// Below, |v| is the larger coordinate of v, u = 2^-53, k = |D| / (|a| |b|) (nearly the sine of the
// angle), r = u / k, and M the largest coordinate, taken from the centre of the outline. Rounding
// changes D by at most 2.02 u |a| |b|, b x c by 2.02 u |b| |c| and a x c by 2.02 u |a| |c|, besides
// a relative rounding of the results, which moves s and t by a few u only, as long as nothing over-
// or underflows, for which coordinates are at most 1e100 and edges at least 1e-100 long.
//
// Let k >= K u with K >= 32, and both computed parameters be in [0, 1]. Then the true crossing O of
// the two lines lies beyond the end of e by at most 2.03 r |a| + 2.02 r |c|, and beyond that of f
// by the same with b. As c = -(s a + t b), |c| <= 1.22 (|a| + |b|). Now either k |a| <= K u |b| /
// 4: then e lies within K u M of the line of f, and its end not further than 15 / K |b| beyond the
// end of f. Or the same holds with e and f swapped. Or neither, and O is at most 15 / K |a| beyond
// the end of e and 15 / K |b| beyond that of f. In each case the edges, lengthened by 16 / K of
// themselves at both ends and widened by K u M, overlap.
//
// This is used twice. With K = 2^20, `angle`, the edges are lengthened by 2^-16 only, so that few
// of them overlap that do not meet, even where the edges are long and close together. What remains
// are pairs with k < K u: their directions differ by not much more than that, and the distances of
// their two lines from the centre, or from a point near it, by less than 8 K u M, because |b x c|
// is at most |D| but for rounding. Of these, with K = 32, only those can meet that overlap when
// lengthened by a half, or whose directions differ by less than 38 u.
namespace {

constexpr double largestCoordinate = 1e100;
constexpr double shortestEdge = 1e-100;

/// The vector with four times its angle and the square of its length.
QPointF fourfold(const QPointF& vector)
{
    const double cosine = vector.x() * vector.x() - vector.y() * vector.y();
    const double sine = 2 * vector.x() * vector.y();
    const double scale = 1 / (vector.x() * vector.x() + vector.y() * vector.y());
    // Multiplied in this order, as squares of squares may overflow.
    return {(cosine * scale) * cosine - (sine * scale) * sine, 2 * (cosine * scale) * sine};
}

} // namespace

OutlineEdges::OutlineEdges(const std::vector<QPointF>& vertices)
    : m_vertices(vertices)
{
    QPointF low(largestCoordinate, largestCoordinate);
    QPointF high = -low;
    for (int i = 0; i < count(); ++i) {
        const QLineF edge = line(i);
        if (!isLine(i))
            continue;
        ++m_lineCount;
        m_fourfoldSum += fourfold(vector(edge));
        m_areExtreme = m_areExtreme || size(vector(edge)) < shortestEdge;
        for (const QPointF& end : {edge.p1(), edge.p2()}) {
            low = QPointF(std::min(low.x(), end.x()), std::min(low.y(), end.y()));
            high = QPointF(std::max(high.x(), end.x()), std::max(high.y(), end.y()));
        }
    }
    m_areExtreme = m_areExtreme || std::max(size(low), size(high)) > largestCoordinate;
    m_centre = (low + high) / 2;
    m_reach = size(high - low) / 2;
}

QPointF OutlineEdges::axis() const
{
    const double toAxis = std::atan2(m_fourfoldSum.y(), m_fourfoldSum.x()) / 4;
    return {std::cos(toAxis), std::sin(toAxis)};
}

double OutlineEdges::direction(const QLineF& line)
{
    return std::abs(line.dx()) >= std::abs(line.dy()) ? line.dy() / line.dx()
                                                      : 2 - line.dx() / line.dy();
}

double OutlineEdges::offset(const QLineF& line) const
{
    // From the centre itself, the spokes of a star and the sides of what is symmetrical would have
    // the same offset.
    const QPointF position = middle(line) - m_reach * QPointF(0.0618, 0.1382);
    return (position.x() * line.dy() - position.y() * line.dx())
        / (std::abs(line.dx()) >= std::abs(line.dy()) ? line.dx() : line.dy());
}
