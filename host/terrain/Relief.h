// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/ElevationModel.h"

#include <QColor>
#include <QImage>

/// Terrain in the colours of a map: green and low to pale and high, lit from the north-west.
namespace Relief {

/// @param share of the way from the lowest to the highest; beyond 0 and 1 as at these
QColor elevationColour(double share);

/// How bright the ground is, 0 to 1, for a slope in metres per metre to the east and to the north.
double hillshade(const QPointF& slope);

/// North at the top; the outer posts lie on the image's edges.
///
/// @param pixelsPerInterval along a side between two posts, above 0
QImage image(const ElevationModel& model, int pixelsPerInterval);

} // namespace Relief
