// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/TerrainCanvas.h"

#include "terrain/Relief.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr int pixelsPerInterval = 5;
constexpr double contourInterval = 5; // Metres.
constexpr int contoursPerIndex = 5;
const QColor ground(16, 26, 52); // Around the terrain.
const QColor contourColour(66, 58, 46, 62);
const QColor indexColour(66, 58, 46, 120);

} // namespace

TerrainCanvas::TerrainCanvas(const ElevationModel& model)
    : m_model(model)
{
}

const QPixmap& TerrainCanvas::picture(const TerrainView& view, double pixelRatio)
{
    const QSize pixels = (view.size * pixelRatio).toSize();
    if (m_view == view && m_picture.size() == pixels && m_picture.devicePixelRatio() == pixelRatio)
        return m_picture;
    if (m_relief.isNull()) {
        m_relief = Relief::image(m_model, pixelsPerInterval);
        m_contours = contours(m_model, contourInterval);
    }
    m_view = view;
    m_picture = QPixmap(pixels);
    m_picture.setDevicePixelRatio(pixelRatio);
    m_picture.fill(ground);
    QPainter painter(&m_picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF extent = m_model.extent();
    const QRectF area(view.toScreen(extent.bottomLeft()), view.toScreen(extent.topRight()));
    painter.drawImage(area, m_relief);
    painter.setTransform(view.transform(), true);
    painter.setClipRect(extent);
    drawContours(painter, pixelRatio);
    return m_picture;
}

/// Pens that ignore the scale of the view ignore that of the screen, too.
void TerrainCanvas::drawContours(QPainter& painter, double pixelRatio) const
{
    for (const Contour& contour : m_contours) {
        const bool isIndex =
            std::lround(contour.elevation / contourInterval) % contoursPerIndex == 0;
        QPen pen(isIndex ? indexColour : contourColour, (isIndex ? 1.2 : 1.0) * pixelRatio);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.drawLines(contour.pieces);
    }
}
