// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QPolygonF>

/// The Mercator projection of the sphere, as maps on screens use it. Degrees are WGS84 with x
/// latitude and y longitude; on the plane x runs from 0 at 180 degrees west to 1 at 180 degrees
/// east, and y from 0 in the north to 1 in the south.
namespace MapProjection {

/// The latitude at which the plane is as high as wide. What lies beyond is drawn there.
constexpr double northernmost = 85.051128779806592;

QPointF toPlane(const QPointF& degrees);
/// Point by point; points that are no finite numbers are left out.
QPolygonF toPlane(const QPolygonF& degrees);
QPointF toDegrees(const QPointF& plane);

/// Metres on the ground of one unit of the plane at a latitude in degrees.
double metresPerUnit(double latitude);

} // namespace MapProjection
