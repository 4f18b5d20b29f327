// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/FoundPlaces.h"

#include <QStringList>

#include <cmath>

std::optional<QPointF> parseLocation(const QString& text)
{
    const QStringList numbers = text.split(QLatin1Char(','));
    if (numbers.size() != 2)
        return std::nullopt;
    bool isLongitude = false;
    bool isLatitude = false;
    const double longitude = numbers[0].toDouble(&isLongitude);
    const double latitude = numbers[1].toDouble(&isLatitude);
    // Written so that what is no number fails as well.
    if (!isLongitude || !isLatitude || !(std::abs(latitude) <= 90) || !(std::abs(longitude) <= 180))
        return std::nullopt;
    return QPointF(latitude, longitude);
}

QVector<FoundPlace> readPlaces(const QMap<QString, QString>& locations)
{
    QVector<FoundPlace> places;
    for (auto place = locations.begin(); place != locations.end(); ++place) {
        if (const auto degrees = parseLocation(place.value()))
            places.append({place.key(), *degrees});
    }
    return places;
}
