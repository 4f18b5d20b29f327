// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/MapOutlines.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <tuple>
#include <unordered_map>

namespace {

using Place = std::pair<double, double>;

Place placeOf(const QPointF& point)
{
    return {point.x(), point.y()};
}

struct PlaceHash
{
    size_t operator()(const Place& place) const
    {
        return std::hash<double>()(place.first) * 31 + std::hash<double>()(place.second);
    }
};

double distance(const QPointF& point, const QPointF& a, const QPointF& b)
{
    const QPointF d = b - a;
    const double square = QPointF::dotProduct(d, d);
    const double share =
        square > 0 ? qBound(0.0, QPointF::dotProduct(point - a, d) / square, 1.0) : 0.0;
    const QPointF away = point - (a + share * d);
    return std::hypot(away.x(), away.y());
}

/// The ring without its repeated start and without points that stand twice in a row.
QPolygonF openRing(const QPolygonF& ring)
{
    QPolygonF open;
    open.reserve(ring.size());
    for (const QPointF& point : ring) {
        if (open.isEmpty() || placeOf(open.last()) != placeOf(point))
            open.append(point);
    }
    while (open.size() > 1 && placeOf(open.last()) == placeOf(open.first()))
        open.removeLast();
    return open;
}

bool touch(const QRectF& a, const QRectF& b)
{
    // Not intersects(): a straight border has an extent without width or height.
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom()
        && b.top() <= a.bottom();
}

} // namespace

std::vector<float> prominences(const QPolygonF& line)
{
    constexpr float always = std::numeric_limits<float>::infinity();
    struct Span
    {
        int first, last;
        float limit;
    };
    std::vector<float> result(size_t(line.size()), always);
    std::vector<Span> spans = {{0, int(line.size()) - 1, always}};
    while (!spans.empty()) {
        const Span span = spans.back();
        spans.pop_back();
        if (span.last - span.first < 2)
            continue;
        double farthest = -1;
        int middle = span.first;
        for (int i = span.first + 1; i < span.last; ++i) {
            const double away = distance(line[i], line[span.first], line[span.last]);
            if (away > farthest) {
                farthest = away;
                middle = i;
            }
        }
        // A point goes with the one that was found before it, whatever stands out behind that.
        const float limit = std::min(span.limit, float(farthest));
        result[size_t(middle)] = limit;
        spans.push_back({span.first, middle, limit});
        spans.push_back({middle, span.last, limit});
    }
    return result;
}

/// Cuts rings where borders meet.
class MapOutlines::Builder
{
public:
    explicit Builder(MapOutlines& outlines)
        : m_outlines(outlines)
    {
    }

    void addNeighbours(const QPolygonF& ring)
    {
        for (int i = 0; i < ring.size(); ++i) {
            const Place a = placeOf(ring[i]);
            const Place b = placeOf(ring[(i + 1) % ring.size()]);
            m_places[a].add(b);
            m_places[b].add(a);
        }
    }

    void addCity(const QPolygonF& ring, int city, int province)
    {
        CityRing cut;
        cut.province = province;
        cut.extent = ring.boundingRect();
        const int start = startOf(ring);
        QPolygonF stretch(QVector<QPointF>{ring[start]});
        for (int i = 1; i <= ring.size(); ++i) {
            const QPointF& point = ring[(start + i) % ring.size()];
            stretch.append(point);
            if (i == ring.size() || isMeeting(point)) {
                cut.stretches.push_back(stretchOf(stretch, city, province));
                stretch = QPolygonF(QVector<QPointF>{point});
            }
        }
        m_outlines.m_cities.push_back(std::move(cut));
    }

    void finish()
    {
        for (size_t i = 0; i < m_owners.size(); ++i) {
            const Owners& owners = m_owners[i];
            Border& border = m_outlines.m_borders[i];
            border.isCut = owners.isTwiceOfOne;
            border.kind = owners.count == 1 ? BorderKind::Outer
                : owners.isOfOneProvince    ? BorderKind::City
                                            : BorderKind::Province;
        }
    }

private:
    /// The first two places next to a place; more than these are only counted.
    struct Neighbours
    {
        Place first, second;
        int count = 0;

        void add(const Place& place)
        {
            if ((count > 0 && place == first) || (count > 1 && place == second))
                return;
            if (count < 2)
                (count == 0 ? first : second) = place;
            ++count;
        }
    };
    struct Owners
    {
        int city;
        int province;
        int count = 0;
        bool isOfOneProvince = true;
        bool isTwiceOfOne = false;
    };
    /// Two ends and the point after the first, which no other stretch has.
    using Key = std::tuple<Place, Place, Place>;

    bool isMeeting(const QPointF& point) const { return m_places.at(placeOf(point)).count != 2; }

    /// A point of the ring where borders meet; where there is none, the one that every city with
    /// this ring finds.
    int startOf(const QPolygonF& ring) const
    {
        int lowest = 0;
        for (int i = 0; i < ring.size(); ++i) {
            if (isMeeting(ring[i]))
                return i;
            if (placeOf(ring[i]) < placeOf(ring[lowest]))
                lowest = i;
        }
        return lowest;
    }

    static bool isBackwards(const QPolygonF& stretch)
    {
        const int last = int(stretch.size()) - 1;
        const auto ends = std::make_pair(placeOf(stretch[0]), placeOf(stretch[1]));
        return std::make_pair(placeOf(stretch[last]), placeOf(stretch[last - 1])) < ends;
    }

    Stretch stretchOf(QPolygonF stretch, int city, int province)
    {
        const bool isReversed = isBackwards(stretch);
        if (isReversed)
            std::reverse(stretch.begin(), stretch.end());
        const Key key = {placeOf(stretch[0]), placeOf(stretch[1]), placeOf(stretch.last())};
        const auto [found, isNew] = m_known.emplace(key, int(m_owners.size()));
        if (isNew) {
            Border border;
            border.prominence = prominences(stretch);
            border.extent = stretch.boundingRect();
            border.points = std::move(stretch);
            m_outlines.m_borders.push_back(std::move(border));
            m_owners.push_back({city, province});
        }
        Owners& owners = m_owners[size_t(found->second)];
        owners.isTwiceOfOne |= owners.count > 0 && owners.city == city;
        owners.isOfOneProvince &= owners.province == province;
        ++owners.count;
        return {found->second, isReversed};
    }

    MapOutlines& m_outlines;
    std::unordered_map<Place, Neighbours, PlaceHash> m_places;
    std::map<Key, int> m_known;
    std::vector<Owners> m_owners; ///< Of each border.
};

MapOutlines::MapOutlines(const QVector<City>& cities)
{
    Builder builder(*this);
    QVector<QPolygonF> rings;
    for (const City& city : cities) {
        rings.append(openRing(city.ring));
        builder.addNeighbours(rings.last());
        m_extent |= rings.last().boundingRect();
    }
    for (int i = 0; i < rings.size(); ++i) {
        if (rings[i].size() > 2)
            builder.addCity(rings[i], i, cities[i].province);
        else
            m_cities.emplace_back();
    }
    builder.finish();
}

QVector<int> MapOutlines::citiesIn(const QRectF& area) const
{
    QVector<int> found;
    for (int i = 0; i < cityCount(); ++i) {
        if (!m_cities[size_t(i)].stretches.empty() && touch(m_cities[size_t(i)].extent, area))
            found.append(i);
    }
    return found;
}

QVector<int> MapOutlines::bordersIn(const QRectF& area) const
{
    QVector<int> found;
    for (size_t i = 0; i < m_borders.size(); ++i) {
        if (!m_borders[i].isCut && touch(m_borders[i].extent, area))
            found.append(int(i));
    }
    return found;
}

QPolygonF MapOutlines::border(int index, double tolerance) const
{
    const Border& border = m_borders[size_t(index)];
    QPolygonF line;
    for (int i = 0; i < border.points.size(); ++i) {
        if (border.prominence[size_t(i)] >= tolerance)
            line.append(border.points[i]);
    }
    return line;
}

QPolygonF MapOutlines::city(int index, double tolerance) const
{
    QPolygonF ring;
    for (const Stretch& stretch : m_cities[size_t(index)].stretches) {
        QPolygonF line = border(stretch.border, tolerance);
        if (stretch.isReversed)
            std::reverse(line.begin(), line.end());
        if (!ring.isEmpty())
            ring.removeLast(); // The next stretch begins there.
        ring += line;
    }
    return ring;
}
