// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/CutAndFill.h"

#include <algorithm>
#include <cmath>

namespace {

const QColor cutColour(224, 98, 62);
const QColor fillColour(58, 124, 220);
const QColor evenColour(250, 247, 238);

} // namespace

QHash<QString, CutAndFill> readVolumes(const QVariant& volumes)
{
    QHash<QString, CutAndFill> cells;
    const QVariantMap map = volumes.toMap();
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        const QVariantList pair = it.value().toList();
        if (pair.size() < 2)
            continue;
        const CutAndFill cell = {pair[0].toDouble(), pair[1].toDouble()};
        if (std::isfinite(cell.cut) && std::isfinite(cell.fill))
            cells.insert(it.key(), cell);
    }
    return cells;
}

double largestNet(const QHash<QString, CutAndFill>& volumes)
{
    double largest = 0;
    for (const CutAndFill& cell : volumes)
        largest = std::max(largest, std::abs(cell.net()));
    return largest;
}

QColor volumeColour(double net, double largest)
{
    // The root tells small volumes apart, too.
    const double share = std::sqrt(std::min(1.0, std::abs(net) / largest));
    const QColor& full = net > 0 ? cutColour : fillColour;
    const auto mixed = [share](int even, int strong) {
        return int(std::lround(even + (strong - even) * share));
    };
    return {mixed(evenColour.red(), full.red()), mixed(evenColour.green(), full.green()),
            mixed(evenColour.blue(), full.blue()), mixed(150, 215)};
}

QString volumeText(double volume)
{
    const double size = std::abs(volume);
    const int decimals = size < 9.95 ? 1 : 0;
    const QString digits = QString::number(size, 'f', decimals);
    if (digits.toDouble() == 0)
        return QStringLiteral("0");
    return (volume < 0 ? QStringLiteral("\u2212") : QStringLiteral("+")) + digits;
}
