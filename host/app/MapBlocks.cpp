// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapBlocks.h"

#include "map/Clipping.h"
#include "map/MapProjection.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

const QColor accent(58, 136, 244);
const QColor quiet(96, 116, 150);

constexpr double reach = 24; // Pixels around the view that lines must be known for.
constexpr double namedFrom = 36; // Pixels of a block that gets a name.
constexpr double markedBelow = 14; // Pixels of a block that is shown as a mark instead.

QRectF united(const QRectF& a, const QRectF& b)
{
    return a.isNull() ? b : a.united(b);
}

} // namespace

MapBlocks::MapBlocks(const QVector<Block>& blocks)
    : m_blocks(blocks)
{
    for (Block& block : m_blocks)
        block.outline = MapProjection::toPlane(block.outline);
    const auto isLost = [](const Block& block) { return block.outline.isEmpty(); };
    m_blocks.erase(std::remove_if(m_blocks.begin(), m_blocks.end(), isLost), m_blocks.end());
    std::stable_partition(m_blocks.begin(), m_blocks.end(),
                          [](const Block& block) { return !block.isOpened; });
    for (const Block& block : qAsConst(m_blocks)) {
        m_extent = united(m_extent, block.outline.boundingRect());
        if (block.isOpened)
            m_openedExtent = united(m_openedExtent, block.outline.boundingRect());
    }
}

void MapBlocks::draw(QPainter& painter, const MapView& view) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF seen = view.extent();
    QVector<const Block*> shown;
    for (const Block& block : m_blocks) {
        const QRectF extent = block.outline.boundingRect();
        const double margin = reach / view.scale;
        if (extent.adjusted(-margin, -margin, margin, margin).intersects(seen))
            shown.append(&block);
    }
    for (const Block* block : qAsConst(shown))
        drawShape(painter, view, *block);
    for (const Block* block : qAsConst(shown))
        drawName(painter, view, *block);
    painter.restore();
}

void MapBlocks::drawShape(QPainter& painter, const MapView& view, const Block& block)
{
    QPolygonF outline = block.outline;
    for (QPointF& point : outline)
        point = view.toScreen(point);
    const QColor colour = block.isOpened ? accent : quiet;
    const QSizeF size = outline.boundingRect().size();
    if (std::max(size.width(), size.height()) < markedBelow) {
        const double radius = block.isOpened ? 6 : 4;
        painter.setPen(QPen(Qt::white, 2));
        painter.setBrush(colour);
        painter.drawEllipse(outline.boundingRect().center(), radius, radius);
        return;
    }
    const QRectF area = QRectF(QPointF(0, 0), view.size).adjusted(-reach, -reach, reach, reach);
    QColor light = colour;
    light.setAlpha(block.isOpened ? 62 : 34);
    if (!block.isStrip) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(light);
        painter.drawPolygon(clippedRing(outline, area), Qt::OddEvenFill);
        outline.append(outline.first());
    }
    painter.setBrush(Qt::NoBrush);
    const auto stroke = [&](const QColor& ink, double width) {
        painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (const QPolygonF& line : clippedLine(outline, area))
            painter.drawPolyline(line);
    };
    if (block.isStrip)
        stroke(light, 14);
    stroke(QColor(255, 255, 255, 210), block.isOpened ? 5 : 3.5);
    stroke(colour, block.isOpened ? 2.5 : 1.5);
}

void MapBlocks::drawName(QPainter& painter, const MapView& view, const Block& block)
{
    const QRectF extent = block.outline.boundingRect();
    const double size = std::max(extent.width(), extent.height()) * view.scale;
    if (block.name.isEmpty() || (!block.isOpened && size < namedFrom))
        return;
    QFont font = painter.font();
    font.setPixelSize(12);
    font.setWeight(block.isOpened ? QFont::DemiBold : QFont::Normal);
    const QFontMetricsF metrics(font);
    const QString text = metrics.elidedText(block.name, Qt::ElideRight, 220);
    // Below the block's lowest corner, where it does not cover the block.
    const QPointF foot = view.toScreen(
        *std::max_element(block.outline.cbegin(), block.outline.cend(),
                          [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); }));
    QRectF plate(QPointF(0, 0), metrics.size(Qt::TextSingleLine, text) + QSizeF(16, 6));
    plate.moveCenter(foot + QPointF(0, 10 + plate.height() / 2));
    plate.moveTopLeft(plate.topLeft().toPoint());
    painter.setPen(Qt::NoPen);
    painter.setBrush(block.isOpened ? accent : QColor(255, 255, 255, 225));
    painter.drawRoundedRect(plate, 4, 4);
    painter.setFont(font);
    painter.setPen(block.isOpened ? QColor(Qt::white) : QColor(70, 84, 108));
    painter.drawText(plate, Qt::AlignCenter, text);
}
