// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QMatrix4x4>
#include <QSizeF>
#include <QVector3D>

/// A camera that goes around the origin and looks at it. A value: what moves it gives a new one.
struct OrbitCamera
{
    static constexpr double nearest = 350;
    static constexpr double farthest = 4000;
    static constexpr double lowest = 8; ///< Degrees.
    static constexpr double steepest = 88;

    double azimuth = 205; ///< Degrees clockwise from the north, of the camera seen from the origin.
    double tilt = 34; ///< Degrees above the level.
    double distance = 1850; ///< From the origin, metres.

    QVector3D eye() const;
    QMatrix4x4 view() const;
    /// @param size of the picture
    /// @param covered so much of its right edge something else stands over; what is seen keeps to
    ///        the middle of the rest
    QMatrix4x4 projection(const QSizeF& size, double covered) const;

    OrbitCamera turned(double azimuthDegrees, double tiltDegrees) const;
    /// Nearer for a factor above 1.
    OrbitCamera zoomed(double factor) const;
};
