// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"
#include "app/HostWindow.h"
#include "app/MapPanel.h"
#include "app/MapPlaces.h"
#include "app/OutlinePlate.h"
#include "app/PlaceSearchBox.h"
#include "map/MapProjection.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>

#include <memory>

namespace {

using GalleryParts::Window;

const QString keyword = QStringLiteral("Cheng");

Window newWindow()
{
    return std::make_unique<HostWindow>();
}

MapPanel& mapOf(QWidget& window)
{
    return *static_cast<HostWindow&>(window).map();
}

PlaceSearchBox& boxOf(QWidget& window)
{
    return *mapOf(window).places()->box();
}

void waitForRest(const MapPanel& map)
{
    const QDeadlineTimer deadline(2000);
    while (map.isMoving() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

/// As a service would send them, with both languages in each name.
QVector<FoundPlace> somePlaces()
{
    const auto name = [](const char* text) { return QString::fromUtf8(text); };
    return {{name("Chengde \u627f\u5fb7\u5e02"), {40.9515, 117.9634}},
            {name("Chengdu \u6210\u90fd\u5e02"), {30.6600, 104.0633}},
            {name("Chengmai \u6f84\u8fc8\u53bf"), {19.7385, 110.0073}}};
}

void showPlaces(QWidget& window)
{
    boxOf(window).setKeyword(keyword);
    boxOf(window).setFocus();
    boxOf(window).showPlaces(keyword, somePlaces());
}

void showNoneFound(QWidget& window)
{
    const QString nowhere = QStringLiteral("Atlantis");
    boxOf(window).setKeyword(nowhere);
    boxOf(window).showPlaces(nowhere, {});
}

void showNoService(QWidget& window)
{
    boxOf(window).setKeyword(keyword);
    boxOf(window).showNote(PlaceSearchBox::Note::NoSearch);
}

void showPicked(QWidget& window)
{
    showPlaces(window);
    auto* list = boxOf(window).findChild<QListWidget*>();
    emit list->itemClicked(list->item(1));
    waitForRest(mapOf(window));
}

void showLocated(QWidget& window)
{
    mapOf(window).places()->showHere(QPointF(39.91, 116.40));
    waitForRest(mapOf(window));
}

void click(MapPanel& map, const QPointF& place)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, map.mapToGlobal(place.toPoint()), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&map, &event);
    }
}

/// Draws an outline near Chengdu, its vertices as shares of the map's size, and presses a button.
void drawOutline(QWidget& window, const QVector<QPointF>& shares, const char* button)
{
    MapPanel& map = mapOf(window);
    MapView view = map.view();
    view.centre = MapProjection::toPlane(QPointF(30.62, 104.16));
    view.scale = 3.4e6;
    map.setView(view);
    map.findChild<QToolButton*>(QStringLiteral("outline"))->click();
    for (const QPointF& share : shares)
        click(map, {share.x() * map.width(), share.y() * map.height()});
    if (!button)
        return;
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&map, &enter);
    map.findChild<QPushButton*>(QLatin1String(button))->click();
}

QVector<QPointF> convexOutline()
{
    return {{0.48, 0.24}, {0.72, 0.22}, {0.86, 0.48}, {0.74, 0.78}, {0.50, 0.72}};
}

QVector<QPointF> bentOutline()
{
    return {{0.46, 0.24}, {0.68, 0.20}, {0.64, 0.46}, {0.86, 0.54}, {0.80, 0.80}, {0.50, 0.74}};
}

QVector<QPointF> crossingOutline()
{
    return {{0.46, 0.26}, {0.84, 0.72}, {0.86, 0.30}, {0.50, 0.76}};
}

void drawUnfinished(QWidget& window)
{
    drawOutline(window, convexOutline().mid(0, 4), nullptr);
    MapPanel& map = mapOf(window);
    const QPoint at(int(0.52 * map.width()), int(0.66 * map.height()));
    QMouseEvent move(QEvent::MouseMove, at, map.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&map, &move);
}

void checkConvex(QWidget& window)
{
    drawOutline(window, convexOutline(), "check");
}

void checkBent(QWidget& window)
{
    drawOutline(window, bentOutline(), "check");
}

void checkCrossing(QWidget& window)
{
    drawOutline(window, crossingOutline(), "check");
}

void splitBent(QWidget& window)
{
    mapOf(window).findChild<OutlinePlate*>()->setLargestPart(2e6);
    drawOutline(window, bentOutline(), "segment");
}

} // namespace

QVector<Gallery::Entry> galleryService()
{
    return {
        {QStringLiteral("map-search"), newWindow, showPlaces},
        {QStringLiteral("map-search-none"), newWindow, showNoneFound},
        {QStringLiteral("map-search-no-service"), newWindow, showNoService},
        {QStringLiteral("map-place"), newWindow, showPicked},
        {QStringLiteral("map-located"), newWindow, showLocated},
        {QStringLiteral("map-outline-drawing"), newWindow, drawUnfinished},
        {QStringLiteral("map-outline-convex"), newWindow, checkConvex},
        {QStringLiteral("map-outline-bent"), newWindow, checkBent},
        {QStringLiteral("map-outline-crossing"), newWindow, checkCrossing},
        {QStringLiteral("map-outline-segmented"), newWindow, splitBent},
    };
}
