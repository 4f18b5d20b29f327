// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapView.h"
#include "map/OutlineTexts.h"

#include <QColor>
#include <QPolygonF>
#include <QVector>

#include <optional>

class QPainter;

/// An outline that is being drawn, or has been, as it lies on the map.
struct OutlineDrawing
{
    QPolygonF vertices; ///< On the plane.
    bool isClosed = false;
    std::optional<OutlineTexts::Mood> mood; ///< Of its check; none before.
    QVector<QPolygonF> parts; ///< On the plane; shown in place of the colour of the mood.

    /// @param cursor where the next vertex would be, on the screen
    void draw(QPainter& painter, const MapView& view, const std::optional<QPointF>& cursor) const;

    /// Green for a good outline, amber for a doubtful one, red for a bad one; blue before.
    QColor colour() const;
    /// Each part's own; neighbours differ.
    static QColor partColour(int part);
};
