// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Naming the city of a million random points inside the country, against the literal scan of all
// boundaries and against GEOS, and whether all give the same names. The literal scan takes minutes
// for all points, so it answers an evenly spread sample, and its time is scaled up; "--all" lets it
// answer every point.

#include "Bench.h"

#include <RkBaseUI/RkCityCategory.h>

#include <QCoreApplication>
#include <QRandomGenerator>

#include <geos_c.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int pointCount = 1000000;
constexpr int sampleStep = 200;
constexpr int runs = 9;

using Boundaries = QList<QPair<QPolygonF, QString>>;

std::vector<QPointF> pointsInside(const RkCityCategory& catalogue)
{
    QRectF country;
    for (const auto& boundary : catalogue.cityBoundaries())
        country |= boundary.first.boundingRect();
    const QString nowhere = catalogue.GetCityName(PointLatLng(0, -150));
    QRandomGenerator random(1);
    std::vector<QPointF> points;
    points.reserve(pointCount);
    while (points.size() < pointCount) {
        const QPointF point(country.left() + random.generateDouble() * country.width(),
                            country.top() + random.generateDouble() * country.height());
        if (catalogue.GetCityName(PointLatLng(point.x(), point.y())) != nowhere)
            points.push_back(point);
    }
    return points;
}

/// Corners and middles of edges of every boundary.
std::vector<QPointF> pointsOnEdges(const Boundaries& boundaries)
{
    std::vector<QPointF> points;
    for (const auto& boundary : boundaries) {
        const QPolygonF& polygon = boundary.first;
        for (int i = 0; i + 1 < polygon.size(); ++i) {
            points.push_back(polygon.at(i));
            points.push_back((polygon.at(i) + polygon.at(i + 1)) / 2);
        }
    }
    return points;
}

QString literalName(const Boundaries& boundaries, const QPointF& point)
{
    for (const auto& boundary : boundaries) {
        if (boundary.first.containsPoint(point, Qt::OddEvenFill))
            return boundary.second;
    }
    return RkCityCategory::tr("N/A");
}

QString name(const RkCityCategory& catalogue, const QPointF& point)
{
    return catalogue.GetCityName(PointLatLng(point.x(), point.y()));
}

/// Prepared polygons behind a tree of their boxes.
class GeosLookup
{
public:
    explicit GeosLookup(const Boundaries& boundaries)
        : m_context(GEOS_init_r())
        , m_tree(GEOSSTRtree_create_r(m_context, 10))
        , m_entries(std::size_t(boundaries.size()))
    {
        for (int i = 0; i < boundaries.size(); ++i) {
            QPolygonF ring = boundaries.at(i).first;
            if (!ring.isClosed())
                ring.append(ring.first());
            GEOSCoordSequence* sequence =
                GEOSCoordSeq_create_r(m_context, unsigned(ring.size()), 2);
            for (int corner = 0; corner < ring.size(); ++corner)
                GEOSCoordSeq_setXY_r(m_context, sequence, unsigned(corner), ring.at(corner).x(),
                                     ring.at(corner).y());
            Entry& entry = m_entries[std::size_t(i)];
            entry.geometry = GEOSGeom_createPolygon_r(
                m_context, GEOSGeom_createLinearRing_r(m_context, sequence), nullptr, 0);
            entry.prepared = GEOSPrepare_r(m_context, entry.geometry);
            entry.index = i;
            GEOSSTRtree_insert_r(m_context, m_tree, entry.geometry, &entry);
        }
    }
    ~GeosLookup()
    {
        GEOSSTRtree_destroy_r(m_context, m_tree);
        for (const Entry& entry : m_entries) {
            GEOSPreparedGeom_destroy_r(m_context, entry.prepared);
            GEOSGeom_destroy_r(m_context, entry.geometry);
        }
        GEOS_finish_r(m_context);
    }
    Q_DISABLE_COPY(GeosLookup)

    /// The first boundary that has the point in it or on its edge, -1 when none has.
    int first(const QPointF& point) const
    {
        GEOSGeometry* const geometry =
            GEOSGeom_createPointFromXY_r(m_context, point.x(), point.y());
        Query query = {m_context, geometry, -1};
        GEOSSTRtree_query_r(m_context, m_tree, geometry, ask, &query);
        GEOSGeom_destroy_r(m_context, geometry);
        return query.found;
    }

private:
    struct Entry
    {
        GEOSGeometry* geometry = nullptr;
        const GEOSPreparedGeometry* prepared = nullptr;
        int index = 0;
    };
    struct Query
    {
        GEOSContextHandle_t context;
        const GEOSGeometry* point;
        int found;
    };

    static void ask(void* item, void* data)
    {
        const Entry& entry = *static_cast<const Entry*>(item);
        Query& query = *static_cast<Query*>(data);
        if ((query.found < 0 || entry.index < query.found)
            && GEOSPreparedIntersects_r(query.context, entry.prepared, query.point) == 1) {
            query.found = entry.index;
        }
    }

    GEOSContextHandle_t m_context;
    GEOSSTRtree* m_tree;
    std::vector<Entry> m_entries;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bool all = QCoreApplication::arguments().contains("--all");
    const RkCityCategory& catalogue = RkCityCategory::instance();
    const Boundaries& boundaries = catalogue.cityBoundaries();
    if (boundaries.isEmpty()) {
        std::fprintf(stderr, "the catalogue beside the program cannot be read\n");
        return 1;
    }
    const double first = bench::medianSeconds(1, [&] { name(catalogue, {0, 0}); });
    std::printf("the first question, which builds the index: %.3f ms\n", first * 1e3);
    const std::vector<QPointF> points = pointsInside(catalogue);
    const std::vector<QPointF> edgePoints = pointsOnEdges(boundaries);
    const std::size_t step = all ? 1 : sampleStep;

    std::vector<QString> names;
    for (const QPointF& point : points)
        names.push_back(name(catalogue, point));
    long letters = 0; // used below, so that no answer can be left out
    const double ours = bench::medianSeconds(runs, [&] {
        for (const QPointF& point : points)
            letters += name(catalogue, point).size();
    });

    long different = 0;
    const double literal = double(step) * bench::medianSeconds(all ? 1 : runs, [&] {
                               different = 0;
                               for (std::size_t i = 0; i < points.size(); i += step)
                                   different += literalName(boundaries, points[i]) != names[i];
                           });
    long differentOnEdges = 0;
    for (std::size_t i = 0; i < edgePoints.size(); i += step)
        differentOnEdges +=
            literalName(boundaries, edgePoints[i]) != name(catalogue, edgePoints[i]);

    const GeosLookup geos(boundaries);
    std::vector<int> found(points.size());
    const auto askGeos = [&] {
        for (std::size_t i = 0; i < points.size(); ++i)
            found[i] = geos.first(points[i]);
    };
    askGeos(); // prepared geometries build their own index at the first question
    const double floor = bench::medianSeconds(runs, askGeos);
    long differentFromGeos = 0;
    for (std::size_t i = 0; i < points.size(); ++i)
        differentFromGeos += found[i] < 0 || names[i] != boundaries.at(found[i]).second;

    bool met = bench::report(all ? "city of a point / literal scan"
                                 : "city of a point / literal scan (sampled)",
                             pointCount, ours, literal, 1.0 / 200);
    met =
        bench::report("city of a point / GEOS prepared, STRtree", pointCount, ours, floor, 1.0 / 5)
        && met;
    std::printf("other names than the literal scan: %ld of %zu random points, %ld of %zu on "
                "corners and edges; "
                "than GEOS: %ld of %d\n",
                different, points.size() / step, differentOnEdges,
                (edgePoints.size() + step - 1) / step, differentFromGeos, pointCount);
    return met && letters > pointCount && different == 0 && differentOnEdges == 0 ? 0 : 1;
}
