// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/MapView.h"

#include <algorithm>
#include <cmath>

namespace {

double limited(double scale)
{
    return qBound(MapView::smallestScale, scale, MapView::largestScale);
}

} // namespace

QPointF MapView::toScreen(const QPointF& plane) const
{
    return (plane - centre) * scale + QPointF(size.width(), size.height()) / 2;
}

QPointF MapView::toPlane(const QPointF& screen) const
{
    return (screen - QPointF(size.width(), size.height()) / 2) / scale + centre;
}

QRectF MapView::extent() const
{
    return {toPlane(QPointF(0, 0)), size / scale};
}

MapView MapView::moved(const QPointF& pixels) const
{
    return {centre - pixels / scale, scale, size};
}

MapView MapView::zoomed(double factor, const QPointF& fixed) const
{
    MapView view = *this;
    view.scale = limited(scale * factor);
    view.centre += toPlane(fixed) - view.toPlane(fixed);
    return view;
}

MapView MapView::showing(const QRectF& area, double margin) const
{
    MapView view = *this;
    view.centre = area.center();
    const double width = std::max(1.0, size.width() - 2 * margin);
    const double height = std::max(1.0, size.height() - 2 * margin);
    if (area.width() > 0 || area.height() > 0)
        view.scale = limited(std::min(width / area.width(), height / area.height()));
    return view;
}

MapView MapView::within(const QRectF& area) const
{
    const QPointF nearest(qBound(area.left(), centre.x(), area.right()),
                          qBound(area.top(), centre.y(), area.bottom()));
    return {nearest, scale, size};
}

MapView MapView::towards(const MapView& goal, double progress) const
{
    if (progress >= 1)
        return goal;
    MapView view = *this;
    view.scale = scale * std::pow(goal.scale / scale, progress);
    // The centre goes straight; how far it must be for one point to stay depends on the scale.
    const bool isZoom = std::abs(goal.scale / scale - 1) > 1e-6;
    const double share =
        isZoom ? (1 / view.scale - 1 / scale) / (1 / goal.scale - 1 / scale) : progress;
    view.centre += (goal.centre - centre) * share;
    return view;
}

bool operator==(const MapView& a, const MapView& b)
{
    return a.centre == b.centre && a.scale == b.scale && a.size == b.size;
}
