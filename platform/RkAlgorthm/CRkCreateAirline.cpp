// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkCreateAirline.h"

#include "Geos.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Ring = std::vector<CRkPoint2D>;

/// What rounding may add to or take from an area, relative to it.
constexpr double areaTolerance = 1e-9;
constexpr double maxSlices = 10000;

/// Coordinates along a direction and to its left, from a point of the plane on.
class Frame
{
public:
    Frame(const CRkPoint2D& origin, const CRkPoint2D& from, const CRkPoint2D& to)
        : m_origin(origin)
    {
        const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
        m_x = (to.x() - from.x()) / length;
        m_y = (to.y() - from.y()) / length;
    }

    CRkPoint2D fromPlane(const CRkPoint2D& point) const
    {
        const double x = point.x() - m_origin.x();
        const double y = point.y() - m_origin.y();
        return CRkPoint2D(x * m_x + y * m_y, y * m_x - x * m_y);
    }
    CRkPoint2D toPlane(double along, double across) const
    {
        return CRkPoint2D(m_origin.x() + along * m_x - across * m_y,
                          m_origin.y() + along * m_y + across * m_x);
    }

private:
    CRkPoint2D m_origin;
    double m_x = 1;
    double m_y = 0;
};

/// The direction of the long side of the smallest rectangle around the polygon.
Frame longestDirection(const Geos& geos, const Geos::Geometry& polygon, const CRkPoint2D& origin)
{
    const Geos::Geometry rectangle =
        geos.own(GEOSMinimumRotatedRectangle_r(geos.context(), polygon.get()));
    const Ring corners = rectangle ? geos.ring(rectangle.get()) : Ring();
    if (corners.size() != 4)
        return Frame(origin, CRkPoint2D(0, 0), CRkPoint2D(1, 0));
    const auto side = [&](std::size_t i) {
        return std::hypot(corners[i + 1].x() - corners[i].x(), corners[i + 1].y() - corners[i].y());
    };
    const std::size_t longest = side(1) > side(0) ? 1 : 0;
    return Frame(origin, corners[longest], corners[longest + 1]);
}

/// The mean over an edge of its x, taken no larger than `limit`.
double meanBelow(double x0, double x1, double limit)
{
    const double low = std::min(x0, x1);
    const double high = std::max(x0, x1);
    if (high <= limit)
        return (low + high) / 2;
    if (low >= limit)
        return limit;
    const double share = (limit - low) / (high - low);
    return share * (low + limit) / 2 + (1 - share) * limit;
}

/// The area of the part of the polygon with x below the limit, by Green's theorem.
double areaBelow(const Ring& ring, double limit)
{
    double area = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CRkPoint2D& next = ring[i + 1 < ring.size() ? i + 1 : 0];
        area += meanBelow(ring[i].x(), next.x(), limit) * (next.y() - ring[i].y());
    }
    return std::abs(area);
}

/// Where cuts across x divide the polygon into that many slices of equal area.
std::vector<double> cutPositions(const Ring& ring, int slices)
{
    const auto byX = [](const CRkPoint2D& a, const CRkPoint2D& b) { return a.x() < b.x(); };
    const auto [first, last] = std::minmax_element(ring.begin(), ring.end(), byX);
    const double end = last->x();
    const double total = areaBelow(ring, end);

    constexpr int bisections = 60; // to the last digit of a double
    std::vector<double> cuts;
    double start = first->x();
    for (int slice = 1; slice < slices; ++slice) {
        double low = start;
        double high = end;
        for (int i = 0; i < bisections; ++i) {
            const double middle = low + (high - low) / 2;
            (areaBelow(ring, middle) < total * slice / slices ? low : high) = middle;
        }
        cuts.push_back(high);
        start = high;
    }
    return cuts;
}

/// The outline and the cuts as one set of lines that meet in common vertices only.
Geos::Geometry nodedLines(const Geos& geos, Ring polygon, const Frame& frame, const Ring& inFrame,
                          int slices)
{
    const auto byY = [](const CRkPoint2D& a, const CRkPoint2D& b) { return a.y() < b.y(); };
    const auto [lowest, highest] = std::minmax_element(inFrame.begin(), inFrame.end(), byY);
    const double overhang = highest->y() - lowest->y();

    std::vector<GEOSGeometry*> lines;
    polygon.push_back(polygon.front());
    lines.push_back(geos.line(polygon).release());
    for (const double cut : cutPositions(inFrame, slices)) {
        lines.push_back(geos.line({frame.toPlane(cut, lowest->y() - overhang),
                                   frame.toPlane(cut, highest->y() + overhang)})
                            .release());
    }
    const Geos::Geometry all = geos.own(GEOSGeom_createCollection_r(
        geos.context(), GEOS_MULTILINESTRING, lines.data(), unsigned(lines.size())));
    return geos.own(all ? GEOSUnaryUnion_r(geos.context(), all.get()) : nullptr);
}

bool contains(const Geos& geos, const GEOSPreparedGeometry* polygon, const GEOSGeometry* face)
{
    const Geos::Geometry inside = geos.own(GEOSPointOnSurface_r(geos.context(), face));
    return inside && GEOSPreparedIntersects_r(geos.context(), polygon, inside.get()) == 1;
}

/// The faces between the lines that lie in the polygon.
std::vector<Ring> facesInside(const Geos& geos, const Geos::Geometry& lines,
                              const Geos::Geometry& polygon)
{
    const GEOSGeometry* const source = lines.get();
    const Geos::Geometry faces =
        geos.own(source ? GEOSPolygonize_r(geos.context(), &source, 1) : nullptr);
    if (!faces)
        return {};
    const GEOSPreparedGeometry* const prepared = GEOSPrepare_r(geos.context(), polygon.get());
    std::vector<Ring> rings;
    const int count = GEOSGetNumGeometries_r(geos.context(), faces.get());
    for (int i = 0; i < count; ++i) {
        const GEOSGeometry* const face = GEOSGetGeometryN_r(geos.context(), faces.get(), i);
        if (contains(geos, prepared, face))
            rings.push_back(geos.ring(face));
    }
    GEOSPreparedGeom_destroy_r(geos.context(), prepared);
    return rings;
}

double meanAlong(const Frame& frame, const Ring& ring)
{
    double sum = 0;
    for (const CRkPoint2D& point : ring)
        sum += frame.fromPlane(point).x();
    return sum / double(ring.size());
}

bool coverPolygon(const Geos& geos, const std::vector<Ring>& parts, double area, double limit)
{
    double sum = 0;
    for (const Ring& part : parts) {
        const Geos::Geometry geometry = geos.polygon(part);
        const double partArea = geos.area(geometry.get());
        if (!geos.isValid(geometry) || partArea > limit * (1 + areaTolerance))
            return false;
        sum += partArea;
    }
    return std::abs(sum - area) <= areaTolerance * area;
}

} // namespace

bool IsBlockPloyCanSegment(const std::vector<CRkPoint2D>& polygon, double value)
{
    if (!(value > 0) || !areFinite(polygon))
        return false;
    const Geos geos;
    const Geos::Geometry geometry = geos.polygon(polygon);
    return geos.isValid(geometry) && geos.area(geometry.get()) > value;
}

bool CRkCreateAirline::SegmentSurveyArea(std::vector<CRkPoint2D> polygon, double value,
                                         std::vector<std::vector<CRkPoint2D>>& parts)
{
    parts.clear();
    if (!IsBlockPloyCanSegment(polygon, value))
        return false;

    const Geos geos;
    const Geos::Geometry geometry = geos.polygon(polygon);
    const double area = geos.area(geometry.get());
    const double wanted = std::max(std::ceil(area / value * (1 - areaTolerance)), 2.0);
    if (!(wanted <= maxSlices))
        return false;

    const Frame frame = longestDirection(geos, geometry, polygon.front());
    Ring inFrame;
    for (const CRkPoint2D& point : polygon)
        inFrame.push_back(frame.fromPlane(point));

    const Geos::Geometry lines = nodedLines(geos, polygon, frame, inFrame, int(wanted));
    std::vector<Ring> found = facesInside(geos, lines, geometry);
    if (!coverPolygon(geos, found, area, value))
        return false;
    std::sort(found.begin(), found.end(), [&](const Ring& a, const Ring& b) {
        return meanAlong(frame, a) < meanAlong(frame, b);
    });
    parts = std::move(found);
    return true;
}
