// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/PolygonChecks.h"

#include "common/OutlineMeetings.h"

#include <RkAlgorthm/CRkCreateAirline.h>

#include <utility>

namespace {

bool isPositiveTurn(const QPointF& p, const QPointF& m, const QPointF& q)
{
    return (p.y() - m.y()) * (q.x() - m.x()) - (q.y() - m.y()) * (p.x() - m.x()) > 0.0;
}

} // namespace

bool isConvex(std::vector<QPointF> polygon)
{
    const std::size_t n = polygon.size();
    if (n < 4)
        return true;
    const bool sense = isPositiveTurn(polygon[0], polygon[1], polygon[2]);
    for (std::size_t i = 1; i + 2 < n; ++i) {
        if (isPositiveTurn(polygon[i], polygon[i + 1], polygon[i + 2]) != sense)
            return false;
    }
    return isPositiveTurn(polygon[n - 2], polygon[n - 1], polygon[0]) == sense
        && isPositiveTurn(polygon[n - 1], polygon[0], polygon[1]) == sense;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts are built against the value.
bool isSelfIntersection(std::vector<QPointF> polygon)
{
    return OutlineMeetings(polygon).someEdgeMeetsThree();
}

bool isAreaCanSegment(const std::vector<CRkPoint2D>& polygon, double value)
{
    return IsBlockPloyCanSegment(polygon, value);
}

bool SegmentBlockArea(std::vector<CRkPoint2D> polygon, double value,
                      std::vector<std::vector<CRkPoint2D>>& parts)
{
    CRkCreateAirline airline;
    return airline.SegmentSurveyArea(std::move(polygon), value, parts);
}
