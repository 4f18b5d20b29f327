// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Gravity.h"

#include <algorithm>
#include <cmath>
#include <limits>

CRkVector3D GetLatLngGravityByLatLng(const std::vector<CRkVector3D>& points)
{
    if (points.empty())
        return CRkVector3D();

    const CRkVector3D& origin = points.front();
    const auto isOrigin = [&](const CRkVector3D& p) {
        return p.x() == origin.x() && p.y() == origin.y();
    };
    const std::size_t count =
        points.size() > 1 && isOrigin(points.back()) ? points.size() - 1 : points.size();

    // Coordinates are taken from the first vertex on: far from (0, 0) the products would cancel
    // out.
    double doubleArea = 0;
    double momentX = 0;
    double momentY = 0;
    double sumX = 0;
    double sumY = 0;
    double extent = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const CRkVector3D& next = points[i + 1 < count ? i + 1 : 0];
        const double ax = points[i].x() - origin.x();
        const double ay = points[i].y() - origin.y();
        const double bx = next.x() - origin.x();
        const double by = next.y() - origin.y();
        const double cross = ax * by - bx * ay;
        doubleArea += cross;
        momentX += cross * (ax + bx);
        momentY += cross * (ay + by);
        sumX += ax;
        sumY += ay;
        extent = std::max({extent, std::abs(ax), std::abs(ay)});
    }

    // What the rounding of the coordinates alone can make out of a ring without area.
    const double magnitude = std::max(std::abs(origin.x()), std::abs(origin.y())) + extent;
    const double noise =
        4 * double(count) * std::numeric_limits<double>::epsilon() * extent * magnitude;
    if (std::abs(doubleArea) <= noise)
        return CRkVector3D(origin.x() + sumX / double(count), origin.y() + sumY / double(count), 0);
    return CRkVector3D(origin.x() + momentX / (3 * doubleArea),
                       origin.y() + momentY / (3 * doubleArea), 0);
}
