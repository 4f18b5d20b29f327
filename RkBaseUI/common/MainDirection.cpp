// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/MainDirection.h"

#include <cmath>
#include <limits>

QPointF MainDirection::unitVector() const
{
    // The larger eigenvector of the sums, which are scaled because their squares may overflow.
    const double scale = 1 / (m_xx + m_yy);
    const double half = (m_xx - m_yy) * scale / 2;
    const double xy = m_xy * scale;
    const double root = std::sqrt(half * half + xy * xy);
    const QPointF vector = half >= 0 ? QPointF(half + root, xy) : QPointF(xy, root - half);
    const double length = std::sqrt(vector.x() * vector.x() + vector.y() * vector.y());
    // Where no direction prevails, what is left may be too small to be divided.
    return length > std::numeric_limits<double>::epsilon() ? vector / length : QPointF(1, 0);
}
