// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/MapGrid.h"

#include "map/MapProjection.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

constexpr double closest = 160; // Pixels.
constexpr double dateLine = 180 * 3600; // Seconds of arc.

/// Seconds of arc that are round as degrees, minutes and seconds are counted.
constexpr std::array<int, 20> steps = {1,     2,     5,     10,     20,     30,    60,
                                       120,   300,   600,   1200,   1800,   3600,  7200,
                                       18000, 36000, 72000, 108000, 216000, 324000};

int stepFor(double pixelsPerSecond)
{
    const auto found = std::find_if(steps.begin(), steps.end(), [&](int seconds) {
        return seconds * pixelsPerSecond >= closest;
    });
    return found == steps.end() ? steps.back() : *found;
}

QString lineText(int seconds, int step, char positive, char negative)
{
    const int size = std::abs(seconds);
    QString text = QStringLiteral("%1\u00b0").arg(size / 3600);
    if (step < 3600)
        text += QStringLiteral("%1\u2032").arg(size / 60 % 60, 2, 10, QLatin1Char('0'));
    if (step < 60)
        text += QStringLiteral("%1\u2033").arg(size % 60, 2, 10, QLatin1Char('0'));
    if (seconds != 0)
        text += QLatin1Char(seconds < 0 ? negative : positive);
    return text;
}

} // namespace

QVector<GridLine> gridLines(const MapView& view)
{
    const QRectF extent = view.extent();
    const QPointF northWest = MapProjection::toDegrees(extent.topLeft()) * 3600;
    const QPointF southEast = MapProjection::toDegrees(extent.bottomRight()) * 3600;
    const int step = stepFor(view.scale / (360 * 3600));

    QVector<GridLine> lines;
    const double west = std::max(northWest.y(), -dateLine);
    const double east = std::min(southEast.y(), dateLine);
    for (int x = int(std::ceil(west / step)) * step; x <= east; x += step) {
        const QPointF place = MapProjection::toPlane(QPointF(0, x / 3600.0));
        lines.append({true, place.x(), lineText(x, step, 'E', 'W')});
    }
    for (int y = int(std::ceil(southEast.x() / step)) * step; y <= northWest.x(); y += step) {
        const QPointF place = MapProjection::toPlane(QPointF(y / 3600.0, 0));
        lines.append({false, place.y(), lineText(y, step, 'N', 'S')});
    }
    return lines;
}
