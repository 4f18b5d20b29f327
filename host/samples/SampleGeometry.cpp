// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleGeometry.h"

#include <QLineF>
#include <QRandomGenerator>
#include <QRectF>
#include <QtMath>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace SampleGeometry {

namespace {

constexpr double metresPerDegreeLat = 110'900; // Mean of the latitudes 20 to 50 degrees.
constexpr double smallestArea = 0.5e6; // Square metres, as the largest.
constexpr double largestArea = 30e6;
constexpr double siteDistance = 15'000; // Metres from the city's centre at most.

double between(QRandomGenerator& random, double low, double high)
{
    return low + (high - low) * random.generateDouble();
}

/// Small values are as frequent per octave as large ones.
double betweenByRatio(QRandomGenerator& random, double low, double high)
{
    return low * std::pow(high / low, random.generateDouble());
}

double cross(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

QPointF direction(double radians)
{
    return {std::cos(radians), std::sin(radians)};
}

bool segmentsMeet(const QPointF& a, const QPointF& b, const QPointF& c, const QPointF& d)
{
    if (std::max(a.x(), b.x()) < std::min(c.x(), d.x())
        || std::max(c.x(), d.x()) < std::min(a.x(), b.x())
        || std::max(a.y(), b.y()) < std::min(c.y(), d.y())
        || std::max(c.y(), d.y()) < std::min(a.y(), b.y()))
        return false;
    return cross(b - a, c - a) * cross(b - a, d - a) <= 0
        && cross(d - c, a - c) * cross(d - c, b - c) <= 0;
}

bool edgesMeet(const QPolygonF& a, const QPolygonF& b)
{
    const QRectF reach = a.boundingRect();
    for (int j = 0; j < b.size(); ++j) {
        const QPointF& from = b[j];
        const QPointF& to = b[(j + 1) % b.size()];
        if (std::max(from.x(), to.x()) < reach.left() || std::min(from.x(), to.x()) > reach.right()
            || std::max(from.y(), to.y()) < reach.top()
            || std::min(from.y(), to.y()) > reach.bottom())
            continue;
        for (int i = 0; i < a.size(); ++i) {
            if (segmentsMeet(a[i], a[(i + 1) % a.size()], from, to))
                return true;
        }
    }
    return false;
}

/// The ring around its centre, turned, and scaled to a size in square metres.
QPolygonF fitted(const QPolygonF& ring, double size, double angle)
{
    const QPointF centre = ring.boundingRect().center();
    const double factor = std::sqrt(size / surface(ring));
    return QTransform()
        .rotateRadians(angle)
        .scale(factor, factor)
        .translate(-centre.x(), -centre.y())
        .map(ring);
}

QPolygonF rectangle(QRandomGenerator& random)
{
    const double length = between(random, 1.0, 2.4);
    return QVector<QPointF>{{0, 0}, {length, 0}, {length, 1}, {0, 1}};
}

QPolygonF ellShape(QRandomGenerator& random)
{
    const double length = between(random, 1.0, 1.8);
    const double x = length * between(random, 0.35, 0.65);
    const double y = between(random, 0.35, 0.65);
    const QPolygonF shape =
        QVector<QPointF>{{0, 0}, {length, 0}, {length, y}, {x, y}, {x, 1}, {0, 1}};
    return random.bounded(2) == 0 ? shape : QTransform::fromScale(-1, 1).map(shape);
}

/// Vertices on an ellipse, so that the polygon is convex.
QPolygonF irregular(QRandomGenerator& random)
{
    const int vertices = random.bounded(5, 9);
    const double flattening = between(random, 0.6, 1.0);
    QPolygonF shape;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 2 * M_PI * (i + between(random, -0.3, 0.3)) / vertices;
        shape << QPointF(std::cos(angle), flattening * std::sin(angle));
    }
    return shape;
}

Area makeBlock(double size, double angle, QRandomGenerator& random)
{
    QPolygonF (*const shapes[])(QRandomGenerator&) = {rectangle, rectangle, ellShape, irregular,
                                                      irregular};
    Area area;
    area.outline = fitted(shapes[random.bounded(5)](random), size, angle);
    area.flightAngle = qRadiansToDegrees(angle);
    return area;
}

/// A corridor along a road, a river or a power line: it swings about one direction, so that it
/// never comes back to itself.
QPolygonF makeCentreLine(double length, double angle, QRandomGenerator& random)
{
    const int steps = random.bounded(6, 12);
    const double swing = between(random, 0.15, 0.7);
    const double wave = between(random, 2.5, 5.5) / steps;
    const double phase = between(random, 0, 2 * M_PI);
    QPolygonF line(QVector<QPointF>{{0, 0}});
    for (int i = 0; i < steps; ++i)
        line << line.last()
                + direction(angle + swing * std::sin(phase + wave * i)) * (length / steps);
    return line.translated(-line.boundingRect().center());
}

/// The side of a line at a distance to its left, with mitred corners.
QPolygonF sideOf(const QPolygonF& line, double distance)
{
    QPolygonF side;
    for (int i = 0; i < line.size(); ++i) {
        const QLineF before(line[std::max(0, i - 1)], line[std::max(1, i)]);
        const QLineF after(line[std::min<int>(i, line.size() - 2)],
                           line[std::min<int>(i + 1, line.size() - 1)]);
        const QPointF left1 = QPointF(-before.dy(), before.dx()) / before.length();
        const QPointF left2 = QPointF(-after.dy(), after.dx()) / after.length();
        const QPointF sum = left1 + left2;
        side << line[i] + sum * (distance / QPointF::dotProduct(sum, left1));
    }
    return side;
}

Area makeStrip(double size, double angle, QRandomGenerator& random)
{
    const double halfWidth = std::sqrt(size) * between(random, 0.07, 0.12);
    Area area;
    area.centreLine = makeCentreLine(size / (2 * halfWidth), angle, random);
    area.outline = sideOf(area.centreLine, halfWidth);
    const QPolygonF right = sideOf(area.centreLine, -halfWidth);
    std::copy(right.crbegin(), right.crend(), std::back_inserter(area.outline));
    area.flightAngle = qRadiansToDegrees(angle);
    return area;
}

Area translated(Area area, const QPointF& offset)
{
    area.outline.translate(offset);
    area.centreLine.translate(offset);
    return area;
}

double extent(const Area& area)
{
    const QRectF box = area.outline.boundingRect();
    return std::hypot(box.width(), box.height()) / 2;
}

/// Whether the project file would place the area where it is: an S-shaped line encloses two parts
/// whose surfaces cancel out, which takes the centroid far away.
bool isWellPlaced(const Area& area, const QPolygonF& boundary)
{
    const QPointF centre = centroid(area.anchor());
    return area.outline.boundingRect().contains(centre)
        && boundary.containsPoint(centre, Qt::OddEvenFill) && liesInside(area.outline, boundary);
}

/// A place for an area beside those that are there, or around the site when it is the first.
QPointF proposePlace(const Area& area, const QVector<Area>& placed, const QPointF& site,
                     QRandomGenerator& random)
{
    if (placed.isEmpty())
        return site;
    const Area& neighbour = placed[random.bounded(int(placed.size()))];
    const double distance = (extent(area) + extent(neighbour)) * between(random, 0.5, 1.1);
    return neighbour.outline.boundingRect().center()
        + direction(between(random, 0, 2 * M_PI)) * distance;
}

} // namespace

LocalPlane::LocalPlane(const QPointF& origin)
    : m_origin(origin)
    , m_metresPerDegreeLng(111'320 * std::cos(qDegreesToRadians(origin.x())))
{
}

QPointF LocalPlane::toDegrees(const QPointF& metres) const
{
    return {m_origin.x() + metres.y() / metresPerDegreeLat,
            m_origin.y() + metres.x() / m_metresPerDegreeLng};
}

QPointF LocalPlane::toMetres(const QPointF& degrees) const
{
    return {(degrees.y() - m_origin.y()) * m_metresPerDegreeLng,
            (degrees.x() - m_origin.x()) * metresPerDegreeLat};
}

QPolygonF LocalPlane::toDegrees(const QPolygonF& metres) const
{
    QPolygonF degrees;
    degrees.reserve(metres.size());
    for (const QPointF& point : metres)
        degrees << toDegrees(point);
    return degrees;
}

QPolygonF LocalPlane::toMetres(const QPolygonF& degrees) const
{
    QPolygonF metres;
    metres.reserve(degrees.size());
    for (const QPointF& point : degrees)
        metres << toMetres(point);
    return metres;
}

double surface(const QPolygonF& ring)
{
    double twice = 0;
    for (int i = 0; i < ring.size(); ++i)
        twice += cross(ring[i] - ring[0], ring[(i + 1) % ring.size()] - ring[0]);
    return std::abs(twice) / 2;
}

QPointF centroid(const QPolygonF& ring)
{
    QPointF mean;
    for (const QPointF& vertex : ring)
        mean += vertex / ring.size();
    double weights = 0;
    QPointF sum;
    for (int i = 0; i < ring.size(); ++i) {
        const QPointF a = ring[i] - mean;
        const QPointF b = ring[(i + 1) % ring.size()] - mean;
        weights += cross(a, b);
        sum += (a + b) * cross(a, b);
    }
    return weights == 0 ? mean : mean + sum / (3 * weights);
}

bool liesInside(const QPolygonF& ring, const QPolygonF& boundary)
{
    return !ring.isEmpty() && boundary.containsPoint(ring.first(), Qt::OddEvenFill)
        && !edgesMeet(ring, boundary);
}

bool overlap(const QPolygonF& a, const QPolygonF& b)
{
    return edgesMeet(a, b) || a.containsPoint(b.first(), Qt::OddEvenFill)
        || b.containsPoint(a.first(), Qt::OddEvenFill);
}

QVector<Area> placeAreas(int count, bool isCorridor, const QPolygonF& boundary,
                         QRandomGenerator& random)
{
    const double angle = between(random, 0, M_PI);
    const double usualSize = betweenByRatio(random, 0.8e6, 22e6);
    const int attempts = 120;

    QVector<Area> placed;
    QPointF site;
    for (int i = 0; i < count; ++i) {
        const bool isStrip =
            isCorridor ? i == 0 || random.bounded(2) == 0 : i > 0 && random.bounded(8) == 0;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            // What finds no room shrinks and moves towards the centre.
            const double patience = 1 - double(attempt) / attempts;
            const double size =
                qBound(smallestArea, usualSize * between(random, 0.6, 1.6) * patience, largestArea);
            const double turned = angle + between(random, -0.12, 0.12);
            const Area area =
                isStrip ? makeStrip(size, turned, random) : makeBlock(size, turned, random);
            if (placed.isEmpty())
                site = direction(between(random, 0, 2 * M_PI))
                    * between(random, 0, siteDistance * patience);
            const Area there = translated(area, proposePlace(area, placed, site, random));
            const bool isFree =
                std::none_of(placed.cbegin(), placed.cend(), [&](const Area& other) {
                    return overlap(there.outline, other.outline);
                });
            if (isFree && isWellPlaced(there, boundary)) {
                placed.append(there);
                break;
            }
        }
    }
    return placed;
}

} // namespace SampleGeometry
