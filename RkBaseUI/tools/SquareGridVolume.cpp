// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/SquareGridVolume.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace rk {

namespace {

constexpr double tolerance = 1e-6; // Metres, in each coordinate.

/// Finds the points at a place. They lie in buckets much wider than the tolerance, so that nearly
/// every place has one bucket to look into, and much narrower than any cell.
class PointIndex
{
public:
    explicit PointIndex(const std::vector<GridPoint>& points);

    /// Appends the indices of the points at the place, in no order.
    void collect(const QPointF& place, std::vector<int>& found) const;

private:
    static constexpr int none = -1;

    /// A power of two of buckets to the metre: bucket borders are exact.
    static double bucketOf(double coordinate) { return std::floor(coordinate * 65536.0); }

    std::size_t slotOf(double column, double row) const
    {
        const std::hash<double> hash;
        return (hash(column) * 31 + hash(row)) & (m_first.size() - 1);
    }
    void collectFrom(double column, double row, const QPointF& place,
                     std::vector<int>& found) const;

    const std::vector<GridPoint>& m_points;
    std::vector<int> m_first; ///< By slot: the first of its points.
    std::vector<int> m_next; ///< By point: the next in its slot.
};

PointIndex::PointIndex(const std::vector<GridPoint>& points)
    : m_points(points)
    , m_next(points.size(), none)
{
    std::size_t slots = 1;
    while (slots < 2 * points.size())
        slots *= 2;
    m_first.resize(slots, none);
    for (std::size_t i = points.size(); i-- > 0;) {
        const GridPoint& point = points[i];
        if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.elevation))
            continue;
        int& first = m_first[slotOf(bucketOf(point.x), bucketOf(point.y))];
        m_next[i] = first;
        first = int(i);
    }
}

void PointIndex::collect(const QPointF& place, std::vector<int>& found) const
{
    // A little wider than the tolerance, so that rounding loses none.
    constexpr double reach = 1.5 * tolerance;
    const double left = bucketOf(place.x() - reach);
    const double right = bucketOf(place.x() + reach);
    const double bottom = bucketOf(place.y() - reach);
    const double top = bucketOf(place.y() + reach);
    collectFrom(left, bottom, place, found);
    if (right != left)
        collectFrom(right, bottom, place, found);
    if (top != bottom)
        collectFrom(left, top, place, found);
    if (right != left && top != bottom)
        collectFrom(right, top, place, found);
}

void PointIndex::collectFrom(double column, double row, const QPointF& place,
                             std::vector<int>& found) const
{
    for (int i = m_first[slotOf(column, row)]; i != none; i = m_next[std::size_t(i)]) {
        const GridPoint& point = m_points[std::size_t(i)];
        // Slots are shared by buckets, which must not give a point twice.
        if (bucketOf(point.x) == column && bucketOf(point.y) == row
            && std::fabs(point.x - place.x()) < tolerance
            && std::fabs(point.y - place.y()) < tolerance)
            found.push_back(i);
    }
}

/// Two corners above zero on one side: `b` and `c` are the distances of the zero points from it.
CellVolume trapezia(double b, double c, double sumAbove, double sumBelow, double side)
{
    return {(b + c) * side * sumAbove / 8, (2 * side - b - c) * side * sumBelow / 8};
}

} // namespace

double levellingElevation(const std::array<double, 4>& sums, int cellCount)
{
    if (cellCount == 0)
        return 0.0;
    return (sums[0] + 2 * sums[1] + 3 * sums[2] + 4 * sums[3]) / (4.0 * cellCount);
}

Levelling levelGrid(const std::vector<GridPoint>& points, const std::vector<GridCell>& cells)
{
    Levelling levelling;
    const PointIndex index(points);
    std::vector<std::size_t> cellsOfPoint(points.size(), 0);
    std::vector<int> found;
    // From the last name to the first: what is put before all others needs no search in the map.
    for (auto cell = cells.rbegin(); cell != cells.rend(); ++cell) {
        found.clear();
        for (int corner = 0; corner < qMin(4, cell->corners.size()); ++corner)
            index.collect(cell->corners.at(corner), found);
        std::sort(found.begin(), found.end());
        for (const int i : found) {
            ++cellsOfPoint[std::size_t(i)];
            levelling.pointsOfCells.insert(levelling.pointsOfCells.constBegin(), cell->name,
                                           points[std::size_t(i)].name);
        }
    }

    std::array<double, 4> sums{};
    for (std::size_t i = points.size(); i-- > 0;) {
        const std::size_t count = cellsOfPoint[i];
        if (count >= 1 && count <= sums.size())
            sums[count - 1] += points[i].elevation;
    }
    levelling.elevation = levellingElevation(sums, int(cells.size()));
    return levelling;
}

double zeroPointDistance(double h1, double h2, double side)
{
    return side * std::fabs(h1) / (std::fabs(h1) + std::fabs(h2));
}

CellVolume cellVolume(const CornerHeights& heights, double side)
{
    switch (std::count_if(heights.begin(), heights.end(), [](double h) { return h > 0; })) {
    case 4:
        return {volumeOfOneSign(heights, side), 0.0};
    case 0:
        return {0.0, volumeOfOneSign(heights, side)};
    case 2:
        return volumeOfTwoAndTwo(heights, side);
    default:
        return volumeOfOneAndThree(heights, side);
    }
}

double volumeOfOneSign(const CornerHeights& heights, double side)
{
    return side * side * (heights[0] + heights[1] + heights[2] + heights[3]) / 4;
}

CellVolume volumeOfTwoAndTwo(const CornerHeights& heights, double side)
{
    if (std::count_if(heights.begin(), heights.end(), [](double h) { return h > 0; }) != 2)
        return {};
    const auto [h0, h1, h2, h3] = heights;
    const auto z = [&](std::size_t from, std::size_t to) {
        return zeroPointDistance(heights[from], heights[to], side);
    };
    if (h0 > 0 && h1 > 0)
        return trapezia(z(1, 3), z(0, 2), h0 + h1, h2 + h3, side);
    if (h1 > 0 && h3 > 0)
        return trapezia(z(3, 2), z(1, 0), h1 + h3, h0 + h2, side);
    if (h2 > 0 && h3 > 0)
        return trapezia(z(2, 0), z(3, 1), h2 + h3, h0 + h1, side);
    if (h0 > 0 && h2 > 0)
        return trapezia(z(2, 3), z(0, 1), h0 + h2, h1 + h3, side);

    const double p = z(3, 1) * z(3, 2);
    const double q = z(0, 1) * z(0, 2);
    const double triangles = q * h0 / 6 + p * h3 / 6;
    const double hexagon = (2 * side * side - p - q) * (h1 + h2) / 12;
    return h0 > 0 ? CellVolume{triangles, hexagon} : CellVolume{hexagon, triangles};
}

CellVolume volumeOfOneAndThree(const CornerHeights& heights, double side)
{
    static constexpr std::size_t neighbours[4][2] = {{1, 2}, {0, 3}, {0, 3}, {1, 2}};

    const auto isAbove = [](double h) { return h > 0; };
    const bool isLoneAbove = std::count_if(heights.begin(), heights.end(), isAbove) < 2;
    const auto lone = std::size_t(std::find_if(heights.begin(), heights.end(),
                                               [&](double h) { return isAbove(h) == isLoneAbove; })
                                  - heights.begin());
    if (lone == heights.size())
        return {};

    double sumOfOthers = 0.0;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        if (i != lone)
            sumOfOthers += heights[i];
    }
    const double b = zeroPointDistance(heights[lone], heights[neighbours[lone][0]], side);
    const double c = zeroPointDistance(heights[lone], heights[neighbours[lone][1]], side);
    const double triangle = b * c * heights[lone] / 6;
    const double pentagon = (2 * side * side - b * c) * sumOfOthers / 10;
    return triangle > 0 ? CellVolume{triangle, pentagon} : CellVolume{pentagon, triangle};
}

void addCell(VolumeTotals& totals, const CellVolume& cell, double side)
{
    totals.area += side * side;
    totals.excavation += cell.excavation;
    totals.fill += cell.fill;
}

} // namespace rk
