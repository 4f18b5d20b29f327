// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/TerrainView.h"

#include <algorithm>

namespace {

double limited(double scale)
{
    return qBound(TerrainView::smallestScale, scale, TerrainView::largestScale);
}

} // namespace

QTransform TerrainView::transform() const
{
    return QTransform(scale, 0, 0, -scale, size.width() / 2 - centre.x() * scale,
                      size.height() / 2 + centre.y() * scale);
}

QPointF TerrainView::toScreen(const QPointF& place) const
{
    return transform().map(place);
}

QPointF TerrainView::toTerrain(const QPointF& screen) const
{
    return transform().inverted().map(screen);
}

TerrainView TerrainView::moved(const QPointF& pixels) const
{
    return {centre + QPointF(-pixels.x(), pixels.y()) / scale, scale, size};
}

TerrainView TerrainView::zoomed(double factor, const QPointF& fixed) const
{
    TerrainView view = *this;
    view.scale = limited(scale * factor);
    view.centre += toTerrain(fixed) - view.toTerrain(fixed);
    return view;
}

TerrainView TerrainView::filledBy(const QRectF& area) const
{
    return {area.center(),
            limited(std::max(size.width() / area.width(), size.height() / area.height())), size};
}

TerrainView TerrainView::showing(const QRectF& area, double margin) const
{
    const double width = std::max(1.0, size.width() - 2 * margin);
    const double height = std::max(1.0, size.height() - 2 * margin);
    return {area.center(), limited(std::min(width / area.width(), height / area.height())), size};
}

TerrainView TerrainView::within(const QRectF& area) const
{
    const QPointF nearest(qBound(area.left(), centre.x(), area.right()),
                          qBound(area.top(), centre.y(), area.bottom()));
    return {nearest, scale, size};
}

bool operator==(const TerrainView& a, const TerrainView& b)
{
    return a.centre == b.centre && a.scale == b.scale && a.size == b.size;
}
