// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/BoundaryIndex.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

constexpr double largestCoordinate = 360.0;
constexpr double smallestRise = 1e-9;

constexpr int cellsPerSide = 512;
/// Keeps every outline, widened by the tolerance, inside the grid.
constexpr double gridMargin = 1e-6;
/// An outline whose edges are longer on the whole, in cells, would fill the grid and save nothing.
constexpr int piecesPerCorner = 4;
constexpr int piecesPerPolygon = 4 * cellsPerSide;
constexpr int nothing = -1;

constexpr std::size_t cellAt(int column, int row)
{
    return static_cast<std::size_t>(row) * cellsPerSide + static_cast<std::size_t>(column);
}

/// The ring as the fill rule sees it: closed unless its ends already coincide, by the
/// toolkit's measure.
QPolygonF closed(QPolygonF polygon)
{
    if (!polygon.isEmpty() && polygon.constLast() != polygon.constFirst())
        polygon.append(polygon.constFirst());
    return polygon;
}

bool isPlausible(double coordinate)
{
    return std::abs(coordinate) <= largestCoordinate;
}

} // namespace

BandedPolygon::BandedPolygon(const QPolygonF& polygon)
    : m_ring(closed(polygon))
{
    if (m_ring.isEmpty())
        return;
    const auto lower = [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); };
    const auto [lowest, highest] = std::minmax_element(m_ring.cbegin(), m_ring.cend(), lower);
    m_bottom = lowest->y();
    m_top = highest->y();
    if (m_bottom == m_top)
        return;

    // As many bands as keep the lists short, yet not longer in all than a few times the edges.
    double climb = 0.0;
    for (int edge = 0; edge + 1 < m_ring.size(); ++edge)
        climb += std::abs(m_ring.at(edge + 1).y() - m_ring.at(edge).y());
    const double edgesAtOneHeight = std::max(1.0, climb / (m_top - m_bottom));
    m_bandCount = std::max(1, static_cast<int>(m_ring.size() / edgesAtOneHeight));
    m_bandsPerUnit = m_bandCount / (m_top - m_bottom);

    std::vector<int> sizes(static_cast<std::size_t>(m_bandCount), 0);
    forEachBandOfEdge([&sizes](const Edge&, int band) { ++sizes[static_cast<std::size_t>(band)]; });
    m_bandStart.resize(sizes.size() + 1, 0);
    std::partial_sum(sizes.cbegin(), sizes.cend(), m_bandStart.begin() + 1);
    m_edges.resize(static_cast<std::size_t>(m_bandStart.back()));
    std::vector<int> ends(m_bandStart.cbegin(), m_bandStart.cend() - 1);
    forEachBandOfEdge([this, &ends](const Edge& edge, int band) {
        m_edges[static_cast<std::size_t>(ends[static_cast<std::size_t>(band)]++)] = edge;
    });
}

int BandedPolygon::band(double y) const
{
    return std::min(static_cast<int>((y - m_bottom) * m_bandsPerUnit), m_bandCount - 1);
}

template <typename Visit>
void BandedPolygon::forEachBandOfEdge(Visit visit) const
{
    for (int i = 0; i + 1 < m_ring.size(); ++i) {
        Edge edge{m_ring.at(i), m_ring.at(i + 1)};
        if (edge.high.y() == edge.low.y())
            continue;
        if (edge.high.y() < edge.low.y())
            std::swap(edge.low, edge.high);
        const int last = band(edge.high.y());
        for (int current = band(edge.low.y()); current <= last; ++current)
            visit(edge, current);
    }
}

bool BandedPolygon::contains(const QPointF& point) const
{
    const double y = point.y();
    if (!(y >= m_bottom && y < m_top))
        return false;
    const auto place = static_cast<std::size_t>(band(y));
    bool inside = false;
    for (int listed = m_bandStart[place]; listed < m_bandStart[place + 1]; ++listed) {
        const auto& [low, high] = m_edges[static_cast<std::size_t>(listed)];
        if (y < low.y() || y >= high.y())
            continue;
        const double crossing =
            low.x() + (high.x() - low.x()) / (high.y() - low.y()) * (y - low.y());
        // A point on the edge is decided by the toolkit itself, in whose rounding it lies.
        if (std::abs(crossing - point.x()) <= tolerance)
            return m_ring.containsPoint(point, Qt::OddEvenFill);
        inside ^= crossing < point.x();
    }
    return inside;
}

bool BandedPolygon::isEven(const QPolygonF& polygon)
{
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& point = polygon.at(i);
        const double rise = polygon.at((i + 1) % polygon.size()).y() - point.y();
        if (!isPlausible(point.x()) || !isPlausible(point.y())
            || (rise != 0.0 && std::abs(rise) < smallestRise)) {
            return false;
        }
    }
    return true;
}

BoundaryIndex::BoundaryIndex(const QVector<QPolygonF>& polygons)
    : m_polygons(static_cast<std::size_t>(polygons.size()))
    , m_cells(cellAt(0, cellsPerSide), nothing)
{
    for (int i = 0; i < polygons.size(); ++i) {
        if (BandedPolygon::isEven(polygons.at(i)))
            m_polygons[static_cast<std::size_t>(i)] = BandedPolygon(polygons.at(i));
    }
    setExtent();
    // From the last to the first, because each goes before what its cells hold already.
    std::vector<int> marks(m_cells.size(), nothing);
    for (int i = polygons.size() - 1; i >= 0; --i) {
        if (polygons.at(i).isEmpty())
            continue;
        if (m_polygons[static_cast<std::size_t>(i)].ring().isEmpty() || !markOutline(i, marks))
            m_ungridded.push_back({i, polygons.at(i)});
        else
            addPolygon(i, marks);
    }
    std::reverse(m_ungridded.begin(), m_ungridded.end());
}

void BoundaryIndex::setExtent()
{
    QPointF least(largestCoordinate, largestCoordinate);
    QPointF most(-largestCoordinate, -largestCoordinate);
    for (const BandedPolygon& polygon : m_polygons) {
        for (const QPointF& point : polygon.ring()) {
            least = {std::min(least.x(), point.x()), std::min(least.y(), point.y())};
            most = {std::max(most.x(), point.x()), std::max(most.y(), point.y())};
        }
    }
    const QPointF margin(gridMargin, gridMargin);
    m_origin = least - margin;
    m_end = most + margin;
    m_cellsPerUnit = {cellsPerSide / (m_end.x() - m_origin.x()),
                      cellsPerSide / (m_end.y() - m_origin.y())};
}

int BoundaryIndex::column(double x) const
{
    return std::min(static_cast<int>((x - m_origin.x()) * m_cellsPerUnit.x()), cellsPerSide - 1);
}

int BoundaryIndex::row(double y) const
{
    return std::min(static_cast<int>((y - m_origin.y()) * m_cellsPerUnit.y()), cellsPerSide - 1);
}

QPointF BoundaryIndex::centre(int column, int row) const
{
    return {m_origin.x() + (column + 0.5) / m_cellsPerUnit.x(),
            m_origin.y() + (row + 0.5) / m_cellsPerUnit.y()};
}

BoundaryIndex::CellRange BoundaryIndex::cellsAround(const QPointF& corner,
                                                    const QPointF& opposite) const
{
    // Cell numbers never fall as coordinates rise: no rounding lets a point slip out of the range.
    constexpr double slack = BandedPolygon::tolerance;
    return {column(std::min(corner.x(), opposite.x()) - slack),
            column(std::max(corner.x(), opposite.x()) + slack),
            row(std::min(corner.y(), opposite.y()) - slack),
            row(std::max(corner.y(), opposite.y()) + slack)};
}

bool BoundaryIndex::markOutline(int polygon, std::vector<int>& marks) const
{
    const QPolygonF& ring = m_polygons[static_cast<std::size_t>(polygon)].ring();
    int piecesLeft = piecesPerCorner * ring.size() + piecesPerPolygon;
    for (int i = 0; i < ring.size(); ++i) {
        const QPointF from = ring.at(i);
        const QPointF step = ring.at((i + 1) % ring.size()) - from;
        const CellRange all = cellsAround(from, from + step);
        // A long edge goes in pieces about as long as a cell, to mark no more than it touches.
        const int pieces = std::max(all.right - all.left, all.top - all.bottom) + 1;
        piecesLeft -= pieces;
        if (piecesLeft < 0)
            return false;
        for (int piece = 0; piece < pieces; ++piece) {
            const CellRange cells = cellsAround(from + step * (double(piece) / pieces),
                                                from + step * (double(piece + 1) / pieces));
            for (int row = cells.bottom; row <= cells.top; ++row) {
                for (int column = cells.left; column <= cells.right; ++column)
                    marks[cellAt(column, row)] = polygon;
            }
        }
    }
    return true;
}

void BoundaryIndex::addPolygon(int polygon, const std::vector<int>& marks)
{
    const BandedPolygon& shape = m_polygons[static_cast<std::size_t>(polygon)];
    const QRectF bounds = shape.ring().boundingRect();
    const CellRange range = cellsAround(bounds.topLeft(), bounds.bottomRight());
    for (int row = range.bottom; row <= range.top; ++row) {
        // Neighbours with no outline in them lie on one side of it: one answer serves them all.
        bool known = false;
        bool inside = false;
        for (int column = range.left; column <= range.right; ++column) {
            const std::size_t cell = cellAt(column, row);
            if (marks[cell] == polygon) {
                m_candidates.push_back({polygon, m_cells[cell]});
                m_cells[cell] = static_cast<int>(m_polygons.size() + m_candidates.size()) - 1;
                known = false;
                continue;
            }
            if (!known)
                inside = shape.contains(centre(column, row));
            known = true;
            if (inside)
                m_cells[cell] = polygon;
        }
    }
}

int BoundaryIndex::firstInGrid(const QPointF& point) const
{
    if (!(point.x() >= m_origin.x() && point.x() <= m_end.x() && point.y() >= m_origin.y()
          && point.y() <= m_end.y())) {
        return nothing;
    }
    const int polygonCount = static_cast<int>(m_polygons.size());
    int entry = m_cells[cellAt(column(point.x()), row(point.y()))];
    while (entry >= polygonCount) {
        const Candidate candidate = m_candidates[static_cast<std::size_t>(entry - polygonCount)];
        if (m_polygons[static_cast<std::size_t>(candidate.polygon)].contains(point))
            return candidate.polygon;
        entry = candidate.next;
    }
    return entry;
}

int BoundaryIndex::firstContaining(const QPointF& point) const
{
    const int found = firstInGrid(point);
    for (const auto& [polygon, shape] : m_ungridded) {
        if (found != nothing && polygon > found)
            break;
        if (shape.containsPoint(point, Qt::OddEvenFill))
            return polygon;
    }
    return found;
}
