// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/ElevationModel.h"

#include <algorithm>
#include <cmath>

ElevationModel::ElevationModel(int postsPerSide, double spacing, const Surface& surface)
    : m_postsPerSide(postsPerSide)
    , m_spacing(spacing)
{
    m_posts.reserve(postsPerSide * postsPerSide);
    for (int row = 0; row < postsPerSide; ++row) {
        for (int column = 0; column < postsPerSide; ++column)
            m_posts.append(surface(column * spacing, row * spacing));
    }
    const auto [lowest, highest] = std::minmax_element(m_posts.cbegin(), m_posts.cend());
    m_lowest = *lowest;
    m_highest = *highest;
}

QRectF ElevationModel::extent() const
{
    const double side = (m_postsPerSide - 1) * m_spacing;
    return {0, 0, side, side};
}

QPointF ElevationModel::slopeAtPost(int column, int row) const
{
    const int last = m_postsPerSide - 1;
    const int west = std::max(column - 1, 0);
    const int east = std::min(column + 1, last);
    const int south = std::max(row - 1, 0);
    const int north = std::min(row + 1, last);
    return {(post(east, row) - post(west, row)) / ((east - west) * m_spacing),
            (post(column, north) - post(column, south)) / ((north - south) * m_spacing)};
}

double ElevationModel::elevation(const QPointF& place) const
{
    const double last = m_postsPerSide - 1;
    const double x = qBound(0.0, place.x() / m_spacing, last);
    const double y = qBound(0.0, place.y() / m_spacing, last);
    const int column = std::min(int(x), m_postsPerSide - 2);
    const int row = std::min(int(y), m_postsPerSide - 2);
    const double right = x - column;
    const double up = y - row;
    const double south = post(column, row) * (1 - right) + post(column + 1, row) * right;
    const double north = post(column, row + 1) * (1 - right) + post(column + 1, row + 1) * right;
    return south * (1 - up) + north * up;
}

double ElevationModel::share(double elevation) const
{
    return m_highest > m_lowest ? (elevation - m_lowest) / (m_highest - m_lowest) : 0.0;
}
