// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// The part of the plane (see MapProjection) that a rectangle of the screen shows. A value: what
/// moves or zooms it gives a new one.
///
///     view = view.zoomed(2, cursor);
///     painter.drawEllipse(view.toScreen(place), 3, 3);
struct MapView
{
    /// The whole earth in 512 pixels, and a pixel of some 15 centimetres.
    static constexpr double smallestScale = 512;
    static constexpr double largestScale = 256.0 * (1 << 20);

    QPointF centre{0.5, 0.5}; ///< On the plane, shown in the middle.
    double scale = smallestScale; ///< Pixels to a unit of the plane.
    QSizeF size; ///< Of the screen's rectangle, pixels.

    QPointF toScreen(const QPointF& plane) const;
    QPointF toPlane(const QPointF& screen) const;
    /// What is shown, on the plane.
    QRectF extent() const;

    /// What is shown moves by so many pixels on the screen.
    MapView moved(const QPointF& pixels) const;
    /// Nearer for a factor above 1, within the limits of the scale; the plane stays where it is at
    /// a point of the screen.
    MapView zoomed(double factor, const QPointF& fixed) const;
    /// The area in the middle and as large as it fits, with so many pixels free on each side. An
    /// area without width and height keeps the scale.
    MapView showing(const QRectF& area, double margin) const;
    /// The centre brought back into the area.
    MapView within(const QRectF& area) const;
    /// The view on the way to another one of the same size, `progress` from 0 to 1: the scale
    /// changes evenly to the eye, and one point of the plane stays where it is.
    MapView towards(const MapView& goal, double progress) const;
};

bool operator==(const MapView& a, const MapView& b);
inline bool operator!=(const MapView& a, const MapView& b)
{
    return !(a == b);
}
