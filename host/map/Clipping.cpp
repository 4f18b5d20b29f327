// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/Clipping.h"

#include <QLineF>

#include <algorithm>
#include <optional>

namespace {

/// The part of a segment inside the rectangle, after Liang and Barsky.
std::optional<QLineF> clippedSegment(const QPointF& a, const QPointF& b, const QRectF& rectangle)
{
    double from = 0;
    double to = 1;
    const QPointF d = b - a;
    const auto cut = [&](double step, double room) {
        if (step == 0)
            return room >= 0;
        if (step < 0)
            from = std::max(from, room / step);
        else
            to = std::min(to, room / step);
        return from <= to;
    };
    const bool isInside = cut(-d.x(), a.x() - rectangle.left())
        && cut(d.x(), rectangle.right() - a.x()) && cut(-d.y(), a.y() - rectangle.top())
        && cut(d.y(), rectangle.bottom() - a.y());
    if (!isInside)
        return std::nullopt;
    return QLineF(from > 0 ? a + from * d : a, to < 1 ? a + to * d : b);
}

/// What a ring keeps of one half of the plane, after Sutherland and Hodgman. `depth` is how far a
/// point lies inside the half.
template <typename Depth>
QPolygonF clippedToHalf(const QPolygonF& ring, Depth depth)
{
    QPolygonF kept;
    kept.reserve(ring.size());
    for (int i = 0; i < ring.size(); ++i) {
        const QPointF& a = ring[i == 0 ? ring.size() - 1 : i - 1];
        const QPointF& b = ring[i];
        const double depthA = depth(a);
        const double depthB = depth(b);
        if ((depthA < 0) != (depthB < 0))
            kept.append(a + (b - a) * (depthA / (depthA - depthB)));
        if (depthB >= 0)
            kept.append(b);
    }
    return kept;
}

} // namespace

QVector<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& rectangle)
{
    QVector<QPolygonF> parts;
    for (int i = 1; i < line.size(); ++i) {
        const auto segment = clippedSegment(line[i - 1], line[i], rectangle);
        if (!segment)
            continue;
        if (parts.isEmpty() || parts.last().last() != segment->p1())
            parts.append(QPolygonF(QVector<QPointF>{segment->p1()}));
        parts.last().append(segment->p2());
    }
    return parts;
}

QPolygonF clippedRing(const QPolygonF& ring, const QRectF& rectangle)
{
    if (rectangle.contains(ring.boundingRect()))
        return ring;
    QPolygonF kept =
        clippedToHalf(ring, [&](const QPointF& p) { return p.x() - rectangle.left(); });
    kept = clippedToHalf(kept, [&](const QPointF& p) { return rectangle.right() - p.x(); });
    kept = clippedToHalf(kept, [&](const QPointF& p) { return p.y() - rectangle.top(); });
    return clippedToHalf(kept, [&](const QPointF& p) { return rectangle.bottom() - p.y(); });
}
