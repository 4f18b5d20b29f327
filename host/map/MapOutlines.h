// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QVector>

#include <vector>

/// Which borders a stretch of line belongs to.
enum class BorderKind {
    City, ///< Between two cities of one province.
    Province,
    Outer ///< Of one city alone: the coast and the border of the country.
};

/// The outlines of many cities, cut where borders meet, so that each stretch of border is there
/// once however many cities it belongs to: it is drawn once, and neighbours stay neighbours when
/// it is simplified. Coordinates are those of the plane (see MapProjection).
///
///     const MapOutlines outlines(cities);
///     for (int i : outlines.bordersIn(view.extent()))
///         painter.drawPolyline(outlines.border(i, 0.5 / view.scale));
///
/// Simplification is that of Douglas and Peucker. How far each point stands out is computed once,
/// so that a simplified line costs no more than reading it.
class MapOutlines
{
public:
    struct City
    {
        QPolygonF ring; ///< Neighbours share their vertices exactly. Closed or not.
        int province = 0; ///< Any number from -1 on.
    };

    MapOutlines() = default;
    explicit MapOutlines(const QVector<City>& cities);

    /// Of all cities; empty when there are none.
    QRectF extent() const { return m_extent; }
    int cityCount() const { return int(m_cities.size()); }
    int province(int city) const { return m_cities[size_t(city)].province; }

    /// The indices of what may be seen in an area.
    QVector<int> citiesIn(const QRectF& area) const;
    QVector<int> bordersIn(const QRectF& area) const;

    /// The city's closed ring, from which nothing is left out that stands out by `tolerance` or
    /// more.
    QPolygonF city(int index, double tolerance) const;
    BorderKind borderKind(int border) const { return m_borders[size_t(border)].kind; }
    /// The same of a stretch of border.
    QPolygonF border(int index, double tolerance) const;

private:
    class Builder;

    struct Border
    {
        QPolygonF points;
        /// The tolerance up to which the point stays; infinite at both ends.
        std::vector<float> prominence;
        QRectF extent;
        BorderKind kind = BorderKind::Outer;
        /// A cut that joins two rings of a city to one, there and back: no border at all.
        bool isCut = false;
    };
    /// One stretch of a city's ring.
    struct Stretch
    {
        int border;
        bool isReversed;
    };
    struct CityRing
    {
        std::vector<Stretch> stretches;
        QRectF extent;
        int province = -1;
    };

    std::vector<Border> m_borders;
    std::vector<CityRing> m_cities;
    QRectF m_extent;
};

/// For each point of a line the largest tolerance with which the simplification of Douglas and
/// Peucker keeps it; infinite for the two ends.
std::vector<float> prominences(const QPolygonF& line);
