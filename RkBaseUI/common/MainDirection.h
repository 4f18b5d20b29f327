// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>

/// The direction that many vectors have in common, long ones counting more: the axis about which
/// their second moments are least.
class MainDirection
{
public:
    void add(const QPointF& vector)
    {
        m_xx += vector.x() * vector.x();
        m_xy += vector.x() * vector.y();
        m_yy += vector.y() * vector.y();
    }
    void add(const MainDirection& other)
    {
        m_xx += other.m_xx;
        m_xy += other.m_xy;
        m_yy += other.m_yy;
    }

    /// A unit vector; (1, 0) where no direction prevails.
    QPointF unitVector() const;

private:
    double m_xx = 0;
    double m_xy = 0;
    double m_yy = 0;
};
