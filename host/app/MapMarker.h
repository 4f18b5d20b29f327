// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapView.h"

#include <QString>

class QPainter;

/// A mark on the map with a name beside it.
struct MapMarker
{
    enum class Kind { Pin, Here };

    Kind kind = Kind::Pin; ///< A place that was searched for, or where the user is.
    QPointF place; ///< On the plane.
    QString name;

    void draw(QPainter& painter, const MapView& view) const;
};
