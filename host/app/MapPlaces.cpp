// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapPlaces.h"

#include "app/HostSettings.h"
#include "app/PlaceSearchBox.h"
#include "app/PlaceService.h"
#include "map/MapProjection.h"
#include "map/PlaceNames.h"

#include <QPointer>
#include <QTimer>

MapPlaces::MapPlaces(QWidget* map)
    : QObject(map)
    , m_box(new PlaceSearchBox(map))
{
    connect(m_box, &PlaceSearchBox::searchWanted, this, &MapPlaces::search);
    connect(m_box, &PlaceSearchBox::dismissed, this, &MapPlaces::dismiss);
    connect(m_box, &PlaceSearchBox::cleared, this, &MapPlaces::unmark);
    connect(m_box, &PlaceSearchBox::placePicked, this, &MapPlaces::showPlace);
}

std::optional<MapMarker> MapPlaces::marker() const
{
    if (!m_marked)
        return std::nullopt;
    const bool isChinese = HostSettings::language().startsWith(QLatin1String("zh"));
    return MapMarker{m_kind, MapProjection::toPlane(m_marked->degrees),
                     m_kind == MapMarker::Kind::Here ? tr("You are here")
                                                     : nameInLanguage(m_marked->name, isChinese)};
}

void MapPlaces::search(const QString& keyword)
{
    m_box->showNote(PlaceSearchBox::Note::Searching);
    ask([this, keyword]() -> std::function<void()> {
        const PlaceService::SearchResult result = PlaceService::search(keyword);
        return [this, keyword, result] {
            if (result.isAnswered)
                m_box->showPlaces(keyword, result.places);
            else
                m_box->showNote(PlaceSearchBox::Note::NoSearch);
        };
    });
}

void MapPlaces::locate()
{
    m_box->showNote(PlaceSearchBox::Note::Locating);
    ask([this]() -> std::function<void()> {
        const std::optional<QPointF> place = PlaceService::location();
        return [this, place] {
            if (place)
                showHere(*place);
            else
                m_box->showNote(PlaceSearchBox::Note::NoLocation);
        };
    });
}

void MapPlaces::dismiss()
{
    m_question = nullptr;
    m_isWaiting = false;
}

/// The question waits in an event loop of its own. It is asked from the main one, so that none of
/// the events that brought it up is on its way then and needs what may be destroyed meanwhile.
void MapPlaces::ask(Question question)
{
    m_question = std::move(question);
    m_isWaiting = true;
    if (m_isRunning)
        return; // The running one goes on to this.
    m_isRunning = true;
    QTimer::singleShot(0, this, &MapPlaces::answerAll);
}

void MapPlaces::answerAll()
{
    const QPointer<MapPlaces> self(this);
    while (m_question) {
        const Question question = std::move(m_question);
        m_question = nullptr;
        const std::function<void()> show = question();
        if (!self)
            return;
        if (m_question || !m_isWaiting)
            continue; // Nobody waits for this answer any more.
        m_isWaiting = false;
        show();
    }
    m_isRunning = false;
}

void MapPlaces::showPlace(const FoundPlace& place)
{
    mark(MapMarker::Kind::Pin, place);
}

void MapPlaces::showHere(const QPointF& degrees)
{
    mark(MapMarker::Kind::Here, {QString(), degrees});
}

void MapPlaces::mark(MapMarker::Kind kind, const FoundPlace& place)
{
    dismiss();
    m_box->showNote(PlaceSearchBox::Note::None);
    m_kind = kind;
    m_marked = place;
    emit markerChanged();
    emit placeChosen();
}

void MapPlaces::unmark()
{
    m_marked.reset();
    emit markerChanged();
}
