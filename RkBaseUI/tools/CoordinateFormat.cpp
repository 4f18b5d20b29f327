// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/CoordinateFormat.h"

#include <cmath>

namespace rk {

DegreesMinutesSeconds toDegreesMinutesSeconds(double decimalDegrees)
{
    const double degrees = std::trunc(decimalDegrees);
    const double allMinutes = (decimalDegrees - degrees) * 60;
    const double minutes = std::trunc(allMinutes);
    return {degrees, minutes, (allMinutes - minutes) * 60};
}

QStringList toTexts(const DegreesMinutesSeconds& angle)
{
    return {QString::number(angle.degrees, 'f', 0), QString::number(angle.minutes, 'f', 0),
            QString::number(angle.seconds, 'g', 6)};
}

bool isGeographic(double latitude, double longitude)
{
    return latitude >= -90 && latitude <= 90 && longitude >= -180 && longitude <= 180;
}

} // namespace rk
