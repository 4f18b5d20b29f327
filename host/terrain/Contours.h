// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/ElevationModel.h"

#include <QLineF>
#include <QVector>

/// Lines of one elevation.
struct Contour
{
    double elevation = 0;
    QVector<QLineF> pieces; ///< Metres, in no order.
};

/// The contours at the multiples of the interval that the terrain reaches, ascending; between the
/// posts by linear interpolation along the sides of their squares.
///
/// @param interval metres, above 0
QVector<Contour> contours(const ElevationModel& model, double interval);
