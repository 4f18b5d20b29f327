// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <functional>

/// A square of terrain as elevations at posts, which stand in rows and columns with one spacing.
///
/// Metres, x to the east and y to the north; the first post, in the south-west, is the origin. A
/// value, cheap to copy.
///
///     const ElevationModel model(200, 5, [](double x, double y) { return 480 + 0.02 * x; });
///     model.elevation({12.5, 40});
class ElevationModel
{
public:
    /// Elevation above the sea at a place.
    using Surface = std::function<double(double x, double y)>;

    /// @param postsPerSide at least 2
    /// @param spacing above 0
    ElevationModel(int postsPerSide, double spacing, const Surface& surface);

    int postsPerSide() const { return m_postsPerSide; }
    double spacing() const { return m_spacing; }
    /// From the first to the last posts.
    QRectF extent() const;
    double lowest() const { return m_lowest; }
    double highest() const { return m_highest; }

    double post(int column, int row) const { return m_posts[row * m_postsPerSide + column]; }
    /// How much the terrain rises to the east and to the north, metres per metre, at a post.
    QPointF slopeAtPost(int column, int row) const;

    /// Bilinear between the four posts around; beyond the edge that of the nearest place on it.
    double elevation(const QPointF& place) const;
    /// Where the elevation stands between the lowest, 0, and the highest, 1. 0 on level terrain.
    double share(double elevation) const;

private:
    int m_postsPerSide;
    double m_spacing;
    QVector<double> m_posts; ///< Row by row from the south.
    double m_lowest = 0;
    double m_highest = 0;
};
