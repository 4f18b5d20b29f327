// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QVector3D>

/// Direction of the light of a 3-D view: angles from a point, and points from angles.
///
/// Points are in scene units, x to the right, y to the north, z up; angles are in degrees. The
/// three conversions keep the conventions that hosts have stored parameters with, and are not the
/// inverse of each other: see `lightPosition` and `lightMarker`.
namespace rk {

struct LightAngles
{
    float azimuth = 0; ///< Degrees about the z axis; each function says in which sense.
    float elevation = 0; ///< Degrees; each function says from where.
};

/// Distance of the point from the origin. Infinite beyond the range of a float.
RKBASEUI_EXPORT float lightDistance(double x, double y, double z);

/// The direction from the origin to the point, in single precision: elevation asin(z / r) upwards
/// from the plane of x and y, and azimuth asin(x / l) clockwise from the y axis, with r the
/// distance and l its part in that plane, the azimuth brought to the quadrant of the point. One
/// radian counts as 57.3 degrees, so that straight up is 90.0066 and east as well; the azimuth lies
/// within 0 to 360. On the z axis it is 0. The elevation of the origin is not a number.
RKBASEUI_EXPORT LightAngles lightAngles(double x, double y, double z);

/// Where the light stands: the point (0, 0, distance), turned by the elevation about the x axis and
/// then by the azimuth about the z axis, both counter-clockwise seen from the axis' tip. So
/// elevation 0 is overhead here.
RKBASEUI_EXPORT QVector3D lightPosition(LightAngles angles, float distance);

/// Where a view marks the direction: the point (0, radius, 0), turned in the same way. So
/// elevation 0 is level here.
RKBASEUI_EXPORT QVector3D lightMarker(LightAngles angles, float radius);

} // namespace rk
