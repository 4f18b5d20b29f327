// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/FoundPlaces.h"

/// The web service as the map asks it. Both calls wait for the answer in an event loop of their
/// own, so whatever events can delete must not be used across them.
namespace PlaceService {

struct SearchResult
{
    QVector<FoundPlace> places;
    bool isAnswered = false; ///< Always where there are places.
};

/// The places that match the keyword, whatever characters it has. Whether an empty answer is one is
/// found out by asking for something that every service knows, unless the time was up: 5 seconds
/// for the search, and 3 more where it was empty.
SearchResult search(const QString& keyword);

/// Where the user is, degrees, x latitude, y longitude. Nothing when there is no answer within 3
/// seconds or it is no place on the earth.
std::optional<QPointF> location();

} // namespace PlaceService
