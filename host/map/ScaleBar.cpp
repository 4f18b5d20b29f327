// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/ScaleBar.h"

#include <cmath>

namespace {

QString degreesText(double value, QChar positive, QChar negative)
{
    return QStringLiteral("%1\u00b0 %2")
        .arg(std::abs(value), 0, 'f', 5)
        .arg(value < 0 ? negative : positive);
}

} // namespace

ScaleBar scaleBar(double metresPerPixel, double longest)
{
    const double most = metresPerPixel * longest;
    const double power = std::pow(10, std::floor(std::log10(most)));
    const double metres = power * (most >= 5 * power ? 5 : most >= 2 * power ? 2 : 1);
    const QString text = metres >= 1000 ? QStringLiteral("%1 km").arg(metres / 1000)
                                        : QStringLiteral("%1 m").arg(metres);
    return {metres, metres / metresPerPixel, text};
}

QString coordinateText(double latitude, double longitude)
{
    return degreesText(latitude, QLatin1Char('N'), QLatin1Char('S')) + QStringLiteral("  ")
        + degreesText(std::remainder(longitude, 360), QLatin1Char('E'), QLatin1Char('W'));
}
