// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/MapProjection.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace MapProjection {

namespace {

constexpr double equator = 2 * M_PI * 6378137.0; // Metres.

} // namespace

QPointF toPlane(const QPointF& degrees)
{
    const double latitude = qDegreesToRadians(qBound(-northernmost, degrees.x(), northernmost));
    return {degrees.y() / 360 + 0.5, 0.5 - std::asinh(std::tan(latitude)) / (2 * M_PI)};
}

QPolygonF toPlane(const QPolygonF& degrees)
{
    QPolygonF plane;
    plane.reserve(degrees.size());
    for (const QPointF& point : degrees) {
        if (std::isfinite(point.x()) && std::isfinite(point.y()))
            plane.append(toPlane(point));
    }
    return plane;
}

QPointF toDegrees(const QPointF& plane)
{
    return {qRadiansToDegrees(std::atan(std::sinh((0.5 - plane.y()) * 2 * M_PI))),
            (plane.x() - 0.5) * 360};
}

double metresPerUnit(double latitude)
{
    return equator * std::cos(qDegreesToRadians(latitude));
}

} // namespace MapProjection
