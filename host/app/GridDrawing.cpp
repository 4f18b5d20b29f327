// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GridDrawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

const QColor accent(58, 136, 244);
const QColor ink(22, 30, 50);
constexpr double textMargin = 3; // Pixels beside a volume in its cell.

/// Between the cells, on the screen.
QVector<QLineF> innerLines(const EarthworkGrid& grid, const QTransform& toScreen)
{
    QVector<QLineF> lines;
    for (int column = 1; column < grid.columns; ++column)
        lines.append(toScreen.map(QLineF(column, 0, column, grid.rows)));
    for (int row = 1; row < grid.rows; ++row)
        lines.append(toScreen.map(QLineF(0, row, grid.columns, row)));
    return lines;
}

QPen outlinePen(const QColor& colour, double width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

/// Whether an upright rectangle has room in the middle of a cell with such sides.
bool hasRoom(const QSizeF& rectangle, double side, double angle)
{
    const double cosine = std::abs(std::cos(qDegreesToRadians(angle)));
    const double sine = std::abs(std::sin(qDegreesToRadians(angle)));
    return rectangle.width() * cosine + rectangle.height() * sine <= side
        && rectangle.width() * sine + rectangle.height() * cosine <= side;
}

void drawOutline(QPainter& painter, const QPolygonF& outline, bool isMovable)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(outlinePen(QColor(9, 2, 38, 110), 4.5));
    painter.drawPolygon(outline);
    painter.setPen(outlinePen(isMovable ? accent : QColor(Qt::white), 2));
    painter.drawPolygon(outline);
    if (!isMovable)
        return;
    painter.setBrush(Qt::white);
    for (const QPointF& corner : outline)
        painter.drawEllipse(corner, 4, 4);
}

QStringList textsOf(const CutAndFill& volume)
{
    QStringList texts;
    for (const double part : {volume.cut, volume.fill}) {
        const QString text = volumeText(part);
        if (text != QLatin1String("0"))
            texts.append(text);
    }
    return texts.isEmpty() ? QStringList(QStringLiteral("0")) : texts;
}

} // namespace

void GridDrawing::clear()
{
    *this = {};
}

void GridDrawing::setVolumes(const EarthworkGrid& grid, const QHash<QString, CutAndFill>& volumes)
{
    clear();
    m_columns = grid.columns;
    m_largest = largestNet(volumes);
    m_colours = QImage(grid.columns, grid.rows, QImage::Format_ARGB32);
    m_colours.fill(Qt::transparent);
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            const auto found = volumes.constFind(grid.cellName(column, row));
            if (found == volumes.constEnd())
                addCell(std::nullopt);
            else
                addCell(*found);
            if (m_volumes.last())
                m_colours.setPixelColor(column, row,
                                        volumeColour(found->net(), m_largest > 0 ? m_largest : 1));
        }
    }
}

void GridDrawing::addCell(const std::optional<CutAndFill>& volume)
{
    m_volumes.append(volume);
    m_texts.append(volume ? textsOf(*volume) : QStringList());
    m_mostLines = std::max(m_mostLines, m_texts.last().size());
    for (const QString& text : qAsConst(m_texts.last())) {
        if (text.size() > m_longestText.size())
            m_longestText = text;
    }
}

std::optional<CutAndFill> GridDrawing::volume(const QPoint& cell) const
{
    return m_volumes.value(cell.y() * m_columns + cell.x());
}

void GridDrawing::draw(QPainter& painter, const EarthworkGrid& grid, const TerrainView& view,
                       bool isMovable) const
{
    const QTransform toScreen = grid.transform() * view.transform();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setTransform(toScreen, true);
    const QRectF cells(0, 0, grid.columns, grid.rows);
    if (hasVolumes())
        painter.drawImage(cells, m_colours);
    else
        painter.fillRect(cells, QColor(255, 255, 255, isMovable ? 46 : 78));
    painter.restore();

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isDense = grid.side * view.scale < 6;
    painter.setPen(QPen(hasVolumes() ? QColor(255, 255, 255, isDense ? 60 : 150)
                                     : QColor(40, 60, 110, isDense ? 70 : 130),
                        1));
    painter.drawLines(innerLines(grid, toScreen));
    drawOutline(painter, view.transform().map(grid.outline()), isMovable);
    if (hasVolumes())
        drawTexts(painter, grid, view);
    painter.restore();
}

/// Upright, however the grid is turned, and only where all texts have room in their cells.
void GridDrawing::drawTexts(QPainter& painter, const EarthworkGrid& grid,
                            const TerrainView& view) const
{
    QFont font = painter.font();
    font.setPixelSize(11);
    font.setWeight(QFont::DemiBold);
    const QFontMetricsF metrics(font);
    const double lineHeight = metrics.height() - 2;
    const double width = metrics.horizontalAdvance(m_longestText);
    if (!hasRoom({width, m_mostLines * lineHeight}, grid.side * view.scale - 2 * textMargin,
                 grid.angle))
        return;
    painter.setFont(font);
    painter.setPen(ink);
    const QRectF window(QPointF(), view.size);
    const QTransform toScreen = grid.transform() * view.transform();
    for (int i = 0; i < m_texts.size(); ++i) {
        const QStringList& texts = m_texts[i];
        const QPoint cell(i % m_columns, i / m_columns);
        const QPointF middle = toScreen.map(cell + QPointF(0.5, 0.5));
        if (!window.contains(middle))
            continue;
        QRectF line(middle.x() - width / 2, middle.y() - lineHeight * texts.size() / 2, width,
                    lineHeight);
        for (const QString& text : texts) {
            painter.drawText(line, Qt::AlignCenter | Qt::TextDontClip, text);
            line.translate(0, lineHeight);
        }
    }
}
