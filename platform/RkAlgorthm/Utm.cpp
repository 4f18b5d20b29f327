// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Utm.h"

#include <GeographicLib/TransverseMercator.hpp>
#include <GeographicLib/UTMUPS.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double falseEasting = 500000;
constexpr double falseNorthingSouth = 10000000;

/// Not-a-number lies in no range.
bool isInUtmRange(const CRkPoint2D& point)
{
    return point.x() >= -80 && point.x() <= 84 && std::abs(point.y()) <= 180;
}

} // namespace

bool LatLng2UTM(const std::vector<CRkPoint2D>& in, std::vector<CRkPoint2D>& out)
{
    using namespace GeographicLib;
    if (in.empty() || !std::all_of(in.begin(), in.end(), isInUtmRange))
        return false;

    const CRkPoint2D& first = in.front();
    // Named as UTM, because latitude 84 itself would belong to the polar projection.
    const int zone = UTMUPS::StandardZone(first.x(), first.y(), UTMUPS::UTM);
    const double centralMeridian = 6 * zone - 183;
    const double falseNorthing = first.x() < 0 ? falseNorthingSouth : 0;

    std::vector<CRkPoint2D> projected;
    projected.reserve(in.size());
    for (const CRkPoint2D& point : in) {
        double x = 0;
        double y = 0;
        TransverseMercator::UTM().Forward(centralMeridian, point.x(), point.y(), x, y);
        // On the equator a quarter of it away from the zone.
        if (!std::isfinite(x) || !std::isfinite(y))
            return false;
        projected.emplace_back(x + falseEasting, y + falseNorthing);
    }
    out = std::move(projected);
    return true;
}
