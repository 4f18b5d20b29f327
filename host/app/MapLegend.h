// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapView.h"

#include <QRect>
#include <QSize>
#include <QString>

class QPainter;

/// What tells the reader of a map where it lies and how large things are.
namespace MapLegend {

/// The most room that the plate takes.
QSize size();

/// A plate with the scale in the middle of the view and, where there are any, coordinates. It
/// stands in the lower left of the rectangle and takes what it needs.
void draw(QPainter& painter, const QRect& rectangle, const MapView& view,
          const QString& coordinates);

/// The same for any view, from the metres on the ground of one pixel.
void drawScale(QPainter& painter, const QRect& rectangle, double metresPerPixel,
               const QString& coordinates);

/// The degrees of the grid's lines along the upper and the left edge, and nothing where something
/// covers the corner between them or below `foot`.
void drawGridTexts(QPainter& painter, const MapView& view, const QRectF& covered, double foot);

} // namespace MapLegend
