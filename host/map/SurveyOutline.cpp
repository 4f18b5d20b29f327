// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/SurveyOutline.h"

#include "map/MapProjection.h"

#include <RkAlgorthm/Utm.h>
#include <RkBaseUI/PolygonChecks.h>

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace SurveyOutline {

namespace {

using Ring = std::vector<CRkPoint2D>;

constexpr double exactEnough = 1e-4; // Metres.
constexpr int mostSteps = 40;

/// On the UTM plane of the first point; empty where it does not reach.
Ring toUtm(const QPolygonF& degrees)
{
    Ring ring;
    for (const QPointF& point : degrees)
        ring.emplace_back(point.x(), point.y());
    return LatLng2UTM(ring, ring) ? ring : Ring();
}

std::vector<QPointF> toPoints(const Ring& ring)
{
    std::vector<QPointF> points;
    for (const CRkPoint2D& point : ring)
        points.emplace_back(point.x(), point.y());
    return points;
}

double areaOf(const Ring& ring)
{
    double twice = 0;
    // From the first vertex, since UTM's numbers are large.
    for (size_t i = 2; i < ring.size(); ++i) {
        twice += (ring[i - 1].x() - ring[0].x()) * (ring[i].y() - ring[0].y())
            - (ring[i].x() - ring[0].x()) * (ring[i - 1].y() - ring[0].y());
    }
    return std::abs(twice) / 2;
}

double perimeterOf(const std::vector<QPointF>& ring)
{
    double sum = QLineF(ring.back(), ring.front()).length();
    for (size_t i = 1; i < ring.size(); ++i)
        sum += QLineF(ring[i - 1], ring[i]).length();
    return sum;
}

Splitting splittingOf(const Ring& ring, const Check& check, double largestPart)
{
    if (isAreaCanSegment(ring, largestPart))
        return Splitting::Possible;
    if (check.crossesItself)
        return Splitting::Crossing;
    return check.area > 0 && check.area <= largestPart ? Splitting::SmallEnough
                                                       : Splitting::Overlapping;
}

/// The degrees of points on the UTM plane of `origin`, whose own place there is the first of them.
/// Both that plane and the map's keep angles, so the way that is still missing on one is, but for
/// a slight turn, the way on the other, and going it time and again leads there. Empty where it
/// does not.
QPolygonF toDegrees(const Ring& utm, const QPointF& origin)
{
    QPolygonF plane(int(utm.size()));
    plane.fill(MapProjection::toPlane(origin));
    for (int step = 0; step < mostSteps; ++step) {
        QPolygonF degrees(plane.size());
        std::transform(plane.cbegin(), plane.cend(), degrees.begin(),
                       [](const QPointF& point) { return MapProjection::toDegrees(point); });
        degrees.first() = origin;
        const Ring reached = toUtm(degrees);
        if (reached.empty())
            return {};
        double farthest = 0;
        for (int i = 0; i < plane.size(); ++i) {
            const QPointF missing(utm[size_t(i)].x() - reached[size_t(i)].x(),
                                  utm[size_t(i)].y() - reached[size_t(i)].y());
            farthest = std::max(farthest, std::hypot(missing.x(), missing.y()));
            plane[i] +=
                QPointF(missing.x(), -missing.y()) / MapProjection::metresPerUnit(degrees[i].x());
        }
        if (farthest < exactEnough)
            return degrees;
    }
    return {};
}

} // namespace

std::optional<Check> check(const QPolygonF& outline, double largestPart)
{
    const Ring ring = toUtm(outline);
    if (ring.size() < 3)
        return std::nullopt;
    const std::vector<QPointF> points = toPoints(ring);
    Check check;
    check.isConvex = isConvex(points);
    check.crossesItself = isSelfIntersection(points);
    check.area = areaOf(ring);
    check.perimeter = perimeterOf(points);
    check.splitting = splittingOf(ring, check, largestPart);
    return check;
}

Parts split(const QPolygonF& outline, double largestPart)
{
    const Ring ring = toUtm(outline);
    std::vector<Ring> rings;
    if (ring.empty() || !SegmentBlockArea(ring, largestPart, rings))
        return {};
    Ring all = {ring.front()};
    for (const Ring& part : rings)
        all.insert(all.end(), part.begin(), part.end());
    const QPolygonF degrees = toDegrees(all, outline.first());
    if (degrees.isEmpty())
        return {};
    Parts parts;
    int begin = 1;
    for (const Ring& part : rings) {
        parts.outlines.append(QPolygonF(degrees.mid(begin, int(part.size()))));
        parts.largest = std::max(parts.largest, areaOf(part));
        begin += int(part.size());
    }
    return parts;
}

} // namespace SurveyOutline
