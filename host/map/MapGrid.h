// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapView.h"

#include <QString>
#include <QVector>

/// One line of the grid of degrees.
struct GridLine
{
    bool isMeridian;
    double position; ///< On the plane: x of a meridian, y of a parallel.
    QString text; ///< "104°", "30°15'", "30°15'20\"", with the letter of the hemisphere.
};

/// The meridians and parallels that a view shows, at round distances of 160 to some 500 pixels.
QVector<GridLine> gridLines(const MapView& view);
