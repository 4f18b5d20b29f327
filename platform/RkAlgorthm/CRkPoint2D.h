// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// A point of the plane. What x and y mean, and their unit, is up to the user of the point.
class CRkPoint2D
{
public:
    constexpr CRkPoint2D() = default;
    constexpr CRkPoint2D(double x, double y)
        : m_x(x)
        , m_y(y)
    {
    }

    constexpr double x() const { return m_x; }
    constexpr double y() const { return m_y; }
    void setX(double x) { m_x = x; }
    void setY(double y) { m_y = y; }

private:
    double m_x = 0;
    double m_y = 0;
};

/// Exact comparison of both coordinates.
constexpr bool operator==(const CRkPoint2D& a, const CRkPoint2D& b)
{
    return a.x() == b.x() && a.y() == b.y();
}

constexpr bool operator!=(const CRkPoint2D& a, const CRkPoint2D& b)
{
    return !(a == b);
}
