// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapMarker.h"

#include "app/PlateStyle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double pinHeight = 34; // Pixels from the tip to the top.
constexpr double pinRadius = 11;
constexpr double haloRadius = 22;
constexpr double dotRadius = 7;
constexpr double longestName = 240; // Pixels.

const QColor pinColour(229, 72, 77);
const QColor hereColour(58, 136, 244);

void drawPin(QPainter& painter, const QPointF& tip)
{
    const QPointF centre = tip - QPointF(0, pinHeight - pinRadius);
    const QRectF head(centre - QPointF(pinRadius, pinRadius), QSizeF(2 * pinRadius, 2 * pinRadius));
    QPainterPath path(tip);
    path.cubicTo(tip + QPointF(-7, -10), centre + QPointF(-pinRadius, 7),
                 head.topLeft() + QPointF(0, pinRadius));
    path.arcTo(head, 180, -180);
    path.cubicTo(centre + QPointF(pinRadius, 7), tip + QPointF(7, -10), tip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(9, 2, 38, 46));
    painter.drawEllipse(tip, 6, 2.4); // Its shadow on the ground.
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(pinColour);
    painter.drawPath(path);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, 4, 4);
}

void drawHere(QPainter& painter, const QPointF& place)
{
    QColor halo = hereColour;
    halo.setAlpha(46);
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(place, haloRadius, haloRadius);
    painter.setPen(QPen(Qt::white, 2.5));
    painter.setBrush(hereColour);
    painter.drawEllipse(place, dotRadius, dotRadius);
}

} // namespace

void MapMarker::draw(QPainter& painter, const MapView& view) const
{
    const QPointF at = view.toScreen(place);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (kind == Kind::Pin)
        drawPin(painter, at);
    else
        drawHere(painter, at);
    QFont font = painter.font();
    font.setPixelSize(13);
    font.setWeight(QFont::DemiBold);
    const QFontMetricsF metrics(font);
    const QString text = metrics.elidedText(name, Qt::ElideRight, longestName);
    QRectF plate(QPointF(), metrics.size(Qt::TextSingleLine, text) + QSizeF(18, 8));
    const double above = kind == Kind::Pin ? pinHeight + 6 : haloRadius + 6;
    plate.moveCenter(at - QPointF(0, above + plate.height() / 2));
    plate.moveTopLeft(plate.topLeft().toPoint()); // Or the text would be blurred.
    PlateStyle::draw(painter, plate);
    painter.setFont(font);
    painter.setPen(QColor(26, 38, 62));
    painter.drawText(plate, Qt::AlignCenter, text);
    painter.restore();
}
