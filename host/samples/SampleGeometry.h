// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QVector>

class QRandomGenerator;

/// Survey areas of plausible shape and size inside a city.
namespace SampleGeometry {

/// One survey area on the plane of its city: metres, x to the east, y to the north.
struct Area
{
    QPolygonF outline; ///< Open ring.
    QPolygonF centreLine; ///< Of a strip; empty for an area.
    double flightAngle = 0; ///< Direction of the flight lines, degrees against the x axis.

    bool isStrip() const { return !centreLine.isEmpty(); }
    /// What a project file holds of it: the centre line of a strip, the ring of an area.
    const QPolygonF& anchor() const { return isStrip() ? centreLine : outline; }
};

/// A plane around a point of the earth that is true to scale near it.
class LocalPlane
{
public:
    /// @param origin x latitude, y longitude, degrees
    explicit LocalPlane(const QPointF& origin);

    /// Metres to degrees, as x latitude, y longitude; and back.
    QPointF toDegrees(const QPointF& metres) const;
    QPointF toMetres(const QPointF& degrees) const;
    QPolygonF toDegrees(const QPolygonF& metres) const;
    QPolygonF toMetres(const QPolygonF& degrees) const;

private:
    QPointF m_origin;
    double m_metresPerDegreeLng;
};

/// Size of a ring in square metres.
double surface(const QPolygonF& ring);

/// Whether the ring lies inside the boundary altogether, under the odd-even rule: no edge meets an
/// edge of the boundary and the first vertex is inside. Both in the same coordinates.
bool liesInside(const QPolygonF& ring, const QPolygonF& boundary);

/// The centroid of what a ring encloses; of a line, of what it encloses with the chord between its
/// ends. The mean of the vertices when that is nothing.
QPointF centroid(const QPolygonF& ring);

/// Whether two rings have a point in common.
bool overlap(const QPolygonF& a, const QPolygonF& b);

/// Up to `count` areas that lie inside the boundary (metres) and do not overlap, near each other
/// and not far from the plane's origin. The first of a corridor is a strip, of the others now and
/// then one. At least one comes out unless the boundary has no room for half a square kilometre
/// around the origin. The centroid of what the file holds lies near each area and inside the
/// boundary too.
QVector<Area> placeAreas(int count, bool isCorridor, const QPolygonF& boundary,
                         QRandomGenerator& random);

} // namespace SampleGeometry
