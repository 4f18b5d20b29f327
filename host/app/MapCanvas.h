// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapOutlines.h"
#include "map/MapView.h"
#include "map/PlaceNames.h"

#include <QFont>
#include <QPixmap>
#include <QVector>

#include <optional>

class QPainter;

/// The map below everything that a project puts on it: land, borders, the grid of degrees and the
/// names of places. It is kept as a picture of what was shown last: a map that has moved is that
/// picture moved, and only what has come into view is drawn.
///
///     painter.drawPixmap(0, 0, canvas.picture(view, devicePixelRatioF()));
class MapCanvas
{
public:
    /// Reads the city catalogue, whose provinces and cities it shows.
    MapCanvas();

    /// What the catalogue covers, on the plane; the whole plane when the catalogue is empty.
    QRectF extent() const;

    /// A draft is drawn quickly, for a view that is left at once.
    enum class Quality { Draft, Fine };

    /// The picture of a view, `pixelRatio` pixels of the screen to one of the view.
    const QPixmap& picture(const MapView& view, double pixelRatio, Quality quality = Quality::Fine);

    /// Writes the names in the language of the texts anew.
    void renewNames(bool isChinese, const QFont& font);

    /// Writes no name close to a point of the plane, where something else stands.
    void leaveFree(const std::optional<QPointF>& place);

private:
    /// A name as it is put on the map, made when it is first needed.
    struct Plate
    {
        QSizeF size;
        QPixmap picture;
    };

    void draw(const QRect& rectangle);
    void drawLand(QPainter& painter, const QRectF& rectangle) const;
    void drawGrid(QPainter& painter) const;
    void drawBorders(QPainter& painter, const QRectF& rectangle) const;
    double tolerance() const;
    void drawNames(QPainter& painter, const QRectF& rectangle);
    QFont fontOf(const PlaceName& name) const;
    const QPixmap& plate(int name);

    MapOutlines m_outlines;
    QVector<PlaceName> m_catalogueNames;
    QVector<PlaceName> m_names; ///< The same in one language.
    QVector<Plate> m_plates; ///< Of the names.
    QFont m_font;
    QVector<int> m_chosen; ///< The names to show at the scale of the picture.
    std::optional<QPointF> m_free; ///< On the plane.
    MapView m_view;
    Quality m_quality = Quality::Fine;
    QPixmap m_picture;
};
