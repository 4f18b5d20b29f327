// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>
#include <QVector>

/// A place of the city catalogue. The name is in both languages: "Chengdu 成都市".
struct Place
{
    QString name;
    double latitude = 0; ///< degrees, as is the longitude
    double longitude = 0;
};

/// Finds provinces and cities by a part of their Latin or Chinese name. Needs an application object
/// when it is made; may be asked from any thread.
///
///     const PlaceSearch search;
///     const QVector<Place> found = search.find("成都");
class PlaceSearch
{
public:
    /// Reads the catalogue beside the executable; without it nothing is ever found.
    PlaceSearch();

    /// The places whose name has every word of the keyword in it, whatever the case, by name. None
    /// for a keyword without a word.
    QVector<Place> find(const QString& keyword) const;

private:
    QVector<Place> m_places;
};
