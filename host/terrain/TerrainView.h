// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

/// The part of a terrain that a rectangle of the screen shows, north at the top. A value: what
/// moves or zooms it gives a new one.
struct TerrainView
{
    static constexpr double smallestScale = 0.05; ///< Pixels to a metre.
    static constexpr double largestScale = 40;

    QPointF centre; ///< Metres, shown in the middle.
    double scale = 1; ///< Pixels to a metre.
    QSizeF size; ///< Of the screen's rectangle, pixels.

    QPointF toScreen(const QPointF& place) const;
    QPointF toTerrain(const QPointF& screen) const;
    /// From metres to pixels.
    QTransform transform() const;

    /// What is shown moves by so many pixels on the screen.
    TerrainView moved(const QPointF& pixels) const;
    /// Nearer for a factor above 1, within the limits of the scale; the terrain stays where it is
    /// at a point of the screen.
    TerrainView zoomed(double factor, const QPointF& fixed) const;
    /// The area in the middle, as small as it fills the rectangle.
    TerrainView filledBy(const QRectF& area) const;
    /// The area in the middle, as large as it fits with so many pixels free on each side.
    TerrainView showing(const QRectF& area, double margin) const;
    /// The centre brought back into the area.
    TerrainView within(const QRectF& area) const;
};

bool operator==(const TerrainView& a, const TerrainView& b);
inline bool operator!=(const TerrainView& a, const TerrainView& b)
{
    return !(a == b);
}
