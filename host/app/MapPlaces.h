// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/MapMarker.h"
#include "map/FoundPlaces.h"

#include <QObject>

#include <functional>
#include <optional>

class PlaceSearchBox;

/// Finds places for a map, by name or where the user is, and marks the one that was chosen. One
/// question is asked at a time; of those that come up meanwhile the last one counts. The map may be
/// destroyed while an answer is waited for.
class MapPlaces : public QObject
{
    Q_OBJECT

public:
    /// Makes the search box on the map, which lives as long as this does.
    explicit MapPlaces(QWidget* map);

    PlaceSearchBox* box() const { return m_box; }
    bool isAsking() const { return m_isWaiting; }

    /// What is marked, with its name in the language of now; nothing before.
    std::optional<MapMarker> marker() const;

public Q_SLOTS:
    void search(const QString& keyword);
    void locate();
    /// Gives up waiting.
    void dismiss();
    /// Marks a place, and the user's own.
    void showPlace(const FoundPlace& place);
    void showHere(const QPointF& degrees);

Q_SIGNALS:
    /// The map should go there; the marker stands there already.
    void placeChosen();
    void markerChanged();

private:
    /// Asks the service, and gives what is to be done with the answer.
    using Question = std::function<std::function<void()>()>;

    void ask(Question question);
    void answerAll();
    void mark(MapMarker::Kind kind, const FoundPlace& place);
    void unmark();

    PlaceSearchBox* const m_box;
    Question m_question; ///< The one to ask next.
    bool m_isRunning = false; ///< One is being asked.
    bool m_isWaiting = false; ///< Its answer is of interest.
    std::optional<FoundPlace> m_marked;
    MapMarker::Kind m_kind = MapMarker::Kind::Pin;
};
