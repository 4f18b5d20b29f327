// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/OrbitCamera.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr float fieldOfView = 38; // Degrees, over the height.
constexpr double widest = 1.45; // Width to height of the picture from which on the height counts.
constexpr float middle = 0.1F; // The origin is above the middle: what is near looks larger.
constexpr double mostCovered = 0.6; // Of the width; with more nothing would be seen.
constexpr float nearPlane = 20;
constexpr float farPlane = 9000;

} // namespace

QVector3D OrbitCamera::eye() const
{
    const double around = qDegreesToRadians(azimuth);
    const double up = qDegreesToRadians(tilt);
    return QVector3D(float(std::sin(around) * std::cos(up)), float(std::cos(around) * std::cos(up)),
                     float(std::sin(up)))
        * float(distance);
}

QMatrix4x4 OrbitCamera::view() const
{
    QMatrix4x4 matrix;
    matrix.lookAt(eye(), {0, 0, 0}, {0, 0, 1});
    return matrix;
}

QMatrix4x4 OrbitCamera::projection(const QSizeF& size, double covered) const
{
    const double width = std::max(1.0, size.width());
    const double height = std::max(1.0, size.height());
    const double share = std::min(covered / width, mostCovered);
    const double free = width * (1 - share) / height;
    QMatrix4x4 matrix;
    matrix.translate(float(-share), middle);
    matrix.scale(float(std::min(1.0, free / widest)));
    matrix.perspective(fieldOfView, float(width / height), nearPlane, farPlane);
    return matrix;
}

OrbitCamera OrbitCamera::turned(double azimuthDegrees, double tiltDegrees) const
{
    return {std::remainder(azimuth + azimuthDegrees, 360),
            qBound(lowest, tilt + tiltDegrees, steepest), distance};
}

OrbitCamera OrbitCamera::zoomed(double factor) const
{
    return {azimuth, tilt, qBound(nearest, distance / factor, farthest)};
}
