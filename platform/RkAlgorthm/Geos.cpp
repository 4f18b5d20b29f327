// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Geos.h"

#include <algorithm>
#include <cmath>

Geos::Geos()
    : m_context(GEOS_init_r())
{
}

Geos::~Geos()
{
    GEOS_finish_r(m_context);
}

GEOSCoordSequence* Geos::sequence(const std::vector<CRkPoint2D>& points, bool close) const
{
    const std::size_t count = points.size() + (close ? 1 : 0);
    GEOSCoordSequence* const coordinates = GEOSCoordSeq_create_r(m_context, unsigned(count), 2);
    for (std::size_t i = 0; i < count; ++i) {
        const CRkPoint2D& point = points[i < points.size() ? i : 0];
        GEOSCoordSeq_setXY_r(m_context, coordinates, unsigned(i), point.x(), point.y());
    }
    return coordinates;
}

Geos::Geometry Geos::line(const std::vector<CRkPoint2D>& points) const
{
    if (points.size() < 2)
        return own(nullptr);
    return own(GEOSGeom_createLineString_r(m_context, sequence(points, false)));
}

Geos::Geometry Geos::polygon(const std::vector<CRkPoint2D>& ring) const
{
    if (ring.size() < 3)
        return own(nullptr);
    GEOSGeometry* const shell = GEOSGeom_createLinearRing_r(m_context, sequence(ring, true));
    return own(shell ? GEOSGeom_createPolygon_r(m_context, shell, nullptr, 0) : nullptr);
}

std::vector<CRkPoint2D> Geos::ring(const GEOSGeometry* polygon) const
{
    const GEOSGeometry* const shell = GEOSGetExteriorRing_r(m_context, polygon);
    const GEOSCoordSequence* const coordinates =
        shell ? GEOSGeom_getCoordSeq_r(m_context, shell) : nullptr;
    unsigned count = 0;
    if (!coordinates || !GEOSCoordSeq_getSize_r(m_context, coordinates, &count))
        return {};
    std::vector<CRkPoint2D> points;
    for (unsigned i = 0; i + 1 < count; ++i) {
        double x = 0;
        double y = 0;
        GEOSCoordSeq_getXY_r(m_context, coordinates, i, &x, &y);
        points.emplace_back(x, y);
    }
    return points;
}

bool Geos::isValid(const Geometry& geometry) const
{
    return geometry && GEOSisValid_r(m_context, geometry.get()) == 1;
}

double Geos::area(const GEOSGeometry* geometry) const
{
    double area = 0;
    return geometry && GEOSArea_r(m_context, geometry, &area) == 1 ? area : 0;
}

bool areFinite(const std::vector<CRkPoint2D>& points)
{
    return std::all_of(points.begin(), points.end(), [](const CRkPoint2D& point) {
        return std::isfinite(point.x()) && std::isfinite(point.y());
    });
}
