// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// The ruler in the corner of a map.
struct ScaleBar
{
    double metres = 0; ///< 1, 2 or 5 times a power of ten.
    double pixels = 0; ///< The length of so many metres.
    QString text; ///< "200 m", "5 km".
};

/// The longest bar that is not longer than `longest` pixels.
///
/// @param metresPerPixel above 0
ScaleBar scaleBar(double metresPerPixel, double longest);

/// A place as "30.66012° N  104.06310° E", rounded to five digits, which is a metre.
///
/// @param latitude,longitude degrees; a longitude beyond 180 is taken once around the earth
QString coordinateText(double latitude, double longitude);
