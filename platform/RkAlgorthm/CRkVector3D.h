// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// A vector of space. Outlines use it for places: x latitude, y longitude in degrees, z 0.
class CRkVector3D
{
public:
    constexpr CRkVector3D() = default;
    constexpr CRkVector3D(double x, double y, double z)
        : m_x(x)
        , m_y(y)
        , m_z(z)
    {
    }

    constexpr double x() const { return m_x; }
    constexpr double y() const { return m_y; }
    constexpr double z() const { return m_z; }
    void setX(double x) { m_x = x; }
    void setY(double y) { m_y = y; }
    void setZ(double z) { m_z = z; }

private:
    double m_x = 0;
    double m_y = 0;
    double m_z = 0;
};

/// Exact comparison of the three coordinates.
constexpr bool operator==(const CRkVector3D& a, const CRkVector3D& b)
{
    return a.x() == b.x() && a.y() == b.y() && a.z() == b.z();
}

constexpr bool operator!=(const CRkVector3D& a, const CRkVector3D& b)
{
    return !(a == b);
}
