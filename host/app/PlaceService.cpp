// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/PlaceService.h"

#include <RkAlgorthm/PointLatLng.h>
#include <RkBaseUI/WebService.h>

#include <QElapsedTimer>
#include <QUrl>

#include <cmath>

namespace PlaceService {

namespace {

constexpr int searchLimit = 5000; // Milliseconds that the search waits.

} // namespace

SearchResult search(const QString& keyword)
{
    QElapsedTimer timer;
    timer.start();
    // The search puts the keyword into the address as it stands.
    const QMap<QString, QString> locations =
        GetSearchRet(QString::fromLatin1(QUrl::toPercentEncoding(keyword)));
    const bool isAnswered =
        !locations.isEmpty() || (timer.elapsed() < searchLimit && location().has_value());
    return {readPlaces(locations), isAnswered};
}

std::optional<QPointF> location()
{
    PointLatLng place;
    if (!GetCurLatLng(place) || !(std::abs(place.Lat()) <= 90) || !(std::abs(place.Lng()) <= 180))
        return std::nullopt;
    return QPointF(place.Lat(), place.Lng());
}

} // namespace PlaceService
