// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "CRkPoint2D.h"

#include <geos_c.h>

#include <memory>
#include <vector>

/// The geometry engine with its handle, for one operation; geometries must not outlive it. It stays
/// silent about failures, which show as null geometries.
class Geos
{
public:
    struct Deleter
    {
        GEOSContextHandle_t context = nullptr;
        void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
    };
    using Geometry = std::unique_ptr<GEOSGeometry, Deleter>;

    Geos();
    ~Geos();
    Geos(const Geos&) = delete;
    Geos& operator=(const Geos&) = delete;

    GEOSContextHandle_t context() const { return m_context; }

    /// Takes over what a function of the engine made.
    Geometry own(GEOSGeometry* geometry) const { return Geometry(geometry, Deleter{m_context}); }

    /// Null for fewer than 2 points.
    Geometry line(const std::vector<CRkPoint2D>& points) const;
    /// The polygon of an open ring; null for fewer than 3 points.
    Geometry polygon(const std::vector<CRkPoint2D>& ring) const;
    /// The open outer ring of a polygon.
    std::vector<CRkPoint2D> ring(const GEOSGeometry* polygon) const;

    /// Whether the geometry is there and its rings neither cross nor touch themselves.
    bool isValid(const Geometry& geometry) const;
    /// 0 when it fails.
    double area(const GEOSGeometry* geometry) const;

private:
    GEOSCoordSequence* sequence(const std::vector<CRkPoint2D>& points, bool close) const;

    GEOSContextHandle_t m_context;
};

/// Whether every coordinate of every point is finite.
bool areFinite(const std::vector<CRkPoint2D>& points);
