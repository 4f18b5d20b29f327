// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QStringList>

/// Geographic coordinates in decimal degrees, and the same in degrees, minutes and seconds. The
/// functions keep no state and may be called from any thread.
namespace rk {

/// An angle in three parts, each with the sign of the whole: -39.5 degrees are -39, -30 and 0.
struct DegreesMinutesSeconds
{
    double degrees; ///< A whole number.
    double minutes; ///< A whole number, between -60 and 60.
    double seconds; ///< Between -60 and 60.
};

/// Splits decimal degrees of any size. Degrees and minutes are cut off and not rounded, so that a
/// number that is a little below a whole minute has almost 60 seconds: 1.0166666666666666 gives 1,
/// 0 and 59.99999999999979. Infinity and not-a-number give minutes and seconds that are no numbers.
RKBASEUI_EXPORT DegreesMinutesSeconds toDegreesMinutesSeconds(double decimalDegrees);

/// The three parts as texts, with a decimal point in every locale: degrees and minutes as whole
/// numbers, seconds with at most 6 significant digits, "28.4424". Seconds below 0.0001 have an
/// exponent, "5.1e-12", and seconds that are almost 60 read "60".
RKBASEUI_EXPORT QStringList toTexts(const DegreesMinutesSeconds& angle);

/// Whether the numbers are a place on the earth in degrees: the latitude from -90 to 90 and the
/// longitude from -180 to 180, all bounds included. Not-a-number is none.
RKBASEUI_EXPORT bool isGeographic(double latitude, double longitude);

} // namespace rk
