// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/AntennaHeight.h"

#include <cmath>

namespace rk {

namespace {

constexpr double squaredRadius = antennaRadius * antennaRadius;
static_assert(squaredRadius == 0.016900000000000002, "A slant height of 0.13 gives exactly zero.");

} // namespace

std::optional<double> antennaEdgeHeight(double slantHeight)
{
    const double squaredHeight = slantHeight * slantHeight - squaredRadius;
    if (squaredHeight < 0)
        return std::nullopt;
    // In single precision, so that heights agree to the last digit with those in older projects.
    return std::sqrt(static_cast<float>(squaredHeight));
}

std::optional<double> antennaHeight(double slantHeight, double offsetP, double offsetG)
{
    const std::optional<double> edgeHeight = antennaEdgeHeight(slantHeight);
    if (!edgeHeight)
        return std::nullopt;
    return *edgeHeight + (offsetG + offsetP);
}

} // namespace rk
