// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/LightDirection.h"

#include <osg/Matrixd>
#include <osg/Quat>
#include <osg/Vec3d>

#include <cmath>

namespace rk {

namespace {

/// The arc sine in degrees. Stored parameters and the hosts that read them use this factor.
float asinDegrees(float sine)
{
    return static_cast<float>(std::asin(sine) * 57.3);
}

float radians(float degrees)
{
    constexpr float pi = 3.1415927F;
    return degrees * pi / 180.0F;
}

QVector3D turned(const osg::Vec3d& start, LightAngles angles)
{
    const osg::Quat rotation = osg::Quat(0, osg::Y_AXIS)
        * osg::Quat(radians(angles.elevation), osg::X_AXIS)
        * osg::Quat(radians(angles.azimuth), osg::Z_AXIS);
    const osg::Vec3d point =
        (osg::Matrixd::translate(start) * osg::Matrixd::rotate(rotation)).getTrans();
    return {static_cast<float>(point.x()), static_cast<float>(point.y()),
            static_cast<float>(point.z())};
}

} // namespace

float lightDistance(double x, double y, double z)
{
    return static_cast<float>(std::hypot(std::hypot(x, y), z));
}

LightAngles lightAngles(double x, double y, double z)
{
    LightAngles angles;
    angles.elevation = asinDegrees(static_cast<float>(z / lightDistance(x, y, z)));
    const float length = lightDistance(x, y, 0);
    if (!(length > 0))
        return angles;
    angles.azimuth = asinDegrees(static_cast<float>(x / length));
    if (y < 0)
        angles.azimuth = 180 - angles.azimuth;
    else if (angles.azimuth < 0)
        angles.azimuth += 360;
    return angles;
}

QVector3D lightPosition(LightAngles angles, float distance)
{
    return turned({0, 0, distance}, angles);
}

QVector3D lightMarker(LightAngles angles, float radius)
{
    return turned({0, radius, 0}, angles);
}

} // namespace rk
