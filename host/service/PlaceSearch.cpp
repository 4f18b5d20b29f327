// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/PlaceSearch.h"

#include <RkBaseUI/RkCityCategory.h>

#include <QStringList>

#include <algorithm>

PlaceSearch::PlaceSearch()
{
    const QMap<QString, PointLatLng>& centres = RkCityCategory::instance().centreByName();
    for (auto centre = centres.begin(); centre != centres.end(); ++centre)
        m_places.append({centre.key(), centre->Lat(), centre->Lng()});
}

QVector<Place> PlaceSearch::find(const QString& keyword) const
{
    const QStringList words = keyword.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<Place> found;
    if (words.isEmpty())
        return found;
    for (const Place& place : m_places) {
        const auto isInName = [&place](const QString& word) {
            return place.name.contains(word, Qt::CaseInsensitive);
        };
        if (std::all_of(words.begin(), words.end(), isInName))
            found.append(place);
    }
    return found;
}
