// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/OutlineDrawing.h"

#include "map/Clipping.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>

namespace {

constexpr double reach = 24; // Pixels around the view that lines must be known for.
constexpr double vertexRadius = 4;
constexpr double crossSize = 9; // Pixels from the middle of the cross to its ends.
constexpr double numberedFrom = 30; // Pixels of a part that gets a number.

const std::array<QColor, 8> partColours = {
    QColor(66, 133, 214),  QColor(238, 146, 48), QColor(52, 168, 122), QColor(214, 84, 120),
    QColor(134, 104, 208), QColor(196, 172, 32), QColor(38, 166, 188), QColor(166, 112, 74)};

QPolygonF onScreen(QPolygonF polygon, const MapView& view)
{
    for (QPointF& point : polygon)
        point = view.toScreen(point);
    return polygon;
}

QRectF reachOf(const MapView& view)
{
    return QRectF(QPointF(0, 0), view.size).adjusted(-reach, -reach, reach, reach);
}

void fillRing(QPainter& painter, const QPolygonF& ring, const MapView& view, QColor colour,
              int alpha)
{
    colour.setAlpha(alpha);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(clippedRing(ring, reachOf(view)), Qt::WindingFill);
}

void strokeLine(QPainter& painter, const QPolygonF& line, const MapView& view, const QPen& pen)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    for (const QPolygonF& piece : clippedLine(line, reachOf(view)))
        painter.drawPolyline(piece);
}

QPen roundPen(const QColor& colour, double width)
{
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPolygonF closedRing(QPolygonF ring)
{
    if (!ring.isEmpty())
        ring.append(ring.first());
    return ring;
}

/// Where a body of that shape would balance.
QPointF balance(const QPolygonF& ring)
{
    const QPointF origin = ring.first();
    QPointF sum;
    double twice = 0;
    for (int i = 1; i < ring.size(); ++i) {
        const QPointF a = ring[i - 1] - origin;
        const QPointF b = ring[i] - origin;
        const double cross = a.x() * b.y() - b.x() * a.y();
        sum += (a + b) * cross;
        twice += cross;
    }
    return twice == 0 ? ring.boundingRect().center() : origin + sum / (3 * twice);
}

void drawNumber(QPainter& painter, const QPolygonF& ring, int number)
{
    const QSizeF size = ring.boundingRect().size();
    if (std::min(size.width(), size.height()) < numberedFrom)
        return;
    QFont font = painter.font();
    font.setPixelSize(12);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    const QString text = QString::number(number);
    const QFontMetricsF metrics(font);
    QRectF plate(0, 0, std::max(20.0, metrics.horizontalAdvance(text) + 12), 20);
    plate.moveCenter(balance(ring));
    plate.moveTopLeft(plate.topLeft().toPoint());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 225));
    painter.drawRoundedRect(plate, 10, 10);
    painter.setPen(QColor(26, 38, 62));
    painter.drawText(plate, Qt::AlignCenter, text);
}

void drawParts(QPainter& painter, const QVector<QPolygonF>& parts, const MapView& view)
{
    QVector<QPolygonF> rings;
    for (const QPolygonF& part : parts)
        rings.append(onScreen(part, view));
    for (int i = 0; i < rings.size(); ++i)
        fillRing(painter, rings[i], view, OutlineDrawing::partColour(i), 120);
    for (const QPolygonF& ring : qAsConst(rings))
        strokeLine(painter, closedRing(ring), view, roundPen(Qt::white, 1.6));
    for (int i = 0; i < rings.size(); ++i)
        drawNumber(painter, rings[i], i + 1);
}

} // namespace

QColor OutlineDrawing::colour() const
{
    if (!mood)
        return {58, 136, 244};
    switch (*mood) {
    case OutlineTexts::Mood::Good:
        return {28, 148, 92};
    case OutlineTexts::Mood::Doubtful:
        return {214, 128, 16};
    case OutlineTexts::Mood::Bad:
        return {214, 48, 56};
    case OutlineTexts::Mood::Plain:
        break;
    }
    return {58, 136, 244};
}

QColor OutlineDrawing::partColour(int part)
{
    return partColours[size_t(part) % partColours.size()];
}

void OutlineDrawing::draw(QPainter& painter, const MapView& view,
                          const std::optional<QPointF>& cursor) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPolygonF ring = onScreen(vertices, view);
    const QColor ink = colour();
    if (!parts.isEmpty())
        drawParts(painter, parts, view);
    else if (ring.size() > 2)
        fillRing(painter, ring, view, ink, isClosed ? 60 : 26);
    const QPolygonF line = isClosed ? closedRing(ring) : ring;
    strokeLine(painter, line, view, roundPen(QColor(255, 255, 255, 215), 5));
    strokeLine(painter, line, view, roundPen(ink, 2.4));
    if (!isClosed && cursor && !ring.isEmpty()) {
        QPen pen = roundPen(ink, 1.6);
        pen.setDashPattern({3, 3});
        strokeLine(painter, QVector<QPointF>{ring.last(), *cursor}, view, pen);
    }
    if (!isClosed && !cursor) {
        const QPointF middle(view.size.width() / 2, view.size.height() / 2);
        painter.setPen(roundPen(ink, 1.6));
        painter.drawLine(middle - QPointF(crossSize, 0), middle + QPointF(crossSize, 0));
        painter.drawLine(middle - QPointF(0, crossSize), middle + QPointF(0, crossSize));
    }
    painter.setPen(QPen(ink, 2));
    painter.setBrush(Qt::white);
    for (const QPointF& vertex : ring)
        painter.drawEllipse(vertex, vertexRadius, vertexRadius);
    painter.restore();
}
