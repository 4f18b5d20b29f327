// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapLegend.h"

#include "app/PlateStyle.h"
#include "map/MapGrid.h"
#include "map/MapProjection.h"
#include "map/ScaleBar.h"

#include <QPainter>

namespace MapLegend {

namespace {

constexpr double longestBar = 110; // Pixels.
constexpr double buttonColumn = 60; // Pixels on the right that are not written on.

const QColor ink(44, 60, 90);
const QColor faint(84, 106, 146);

QFont smallFont(const QPainter& painter, int pixels)
{
    QFont font = painter.font();
    font.setPixelSize(pixels);
    return font;
}

void drawBar(QPainter& painter, const QRectF& plate, const ScaleBar& bar)
{
    const double left = plate.left() + 10;
    const double right = left + bar.pixels;
    const double foot = plate.bottom() - 7;
    painter.setPen(ink);
    painter.drawText(QRectF(left, plate.top(), bar.pixels, plate.height() - 8),
                     Qt::AlignCenter | Qt::TextDontClip, bar.text);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPolyline(
        QPolygonF({{left, foot - 4}, {left, foot}, {right, foot}, {right, foot - 4}}));
}

} // namespace

QSize size()
{
    return {350, 30};
}

void draw(QPainter& painter, const QRect& rectangle, const MapView& view,
          const QString& coordinates)
{
    const double latitude = MapProjection::toDegrees(view.centre).x();
    drawScale(painter, rectangle, MapProjection::metresPerUnit(latitude) / view.scale, coordinates);
}

void drawScale(QPainter& painter, const QRect& rectangle, double metresPerPixel,
               const QString& coordinates)
{
    const ScaleBar bar = scaleBar(metresPerPixel, longestBar);
    QRect plate = rectangle;
    if (coordinates.isEmpty())
        plate.setWidth(int(bar.pixels) + 20);
    PlateStyle::draw(painter, plate);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(smallFont(painter, 12));
    drawBar(painter, plate, bar);
    painter.setPen(faint);
    painter.drawText(plate.adjusted(int(longestBar) + 20, 0, -12, 0),
                     Qt::AlignRight | Qt::AlignVCenter, coordinates);
    painter.restore();
}

void drawGridTexts(QPainter& painter, const MapView& view, const QRectF& covered, double foot)
{
    painter.save();
    painter.setFont(smallFont(painter, 10));
    painter.setPen(faint);
    for (const GridLine& line : gridLines(view)) {
        const QPointF at = view.toScreen(QPointF(line.position, line.position));
        if (line.isMeridian && at.x() > covered.right()
            && at.x() < view.size.width() - buttonColumn - 50)
            painter.drawText(QPointF(at.x() + 4, 13), line.text);
        else if (!line.isMeridian && at.y() > covered.bottom() + 18 && at.y() < foot - 10)
            painter.drawText(QPointF(4, at.y() - 4), line.text);
    }
    painter.restore();
}

} // namespace MapLegend
