// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QMultiMap>
#include <QPolygonF>
#include <QString>

#include <array>
#include <vector>

/// Earthwork by the square-grid method: squares of one side over the terrain, of which only the
/// heights of the corners count.
///
/// Lengths and elevations are in metres, areas in square metres, volumes in cubic metres. A
/// construction height is terrain elevation minus design elevation: positive where earth is taken
/// away (excavation), negative where it is brought (fill). Volumes have the sign of their heights,
/// so a fill is never positive.
///
/// Each part of a cell is its area in plan times the mean height of its corners; along a side whose
/// ends have different signs, the height is taken as linear and the part ends where it is zero.
/// These are the formulas of manuals of construction surveying for field sheets. How far they are
/// from exact volumes is in docs/earthwork.md.
namespace rk {

/// A surveyed point. The position is in any plane frame, the one of the cells' corners.
struct GridPoint
{
    QString name;
    double x = 0.0;
    double y = 0.0;
    double elevation = 0.0;
};

/// A cell whose corners are the first four points of the polygon, fewer when it has fewer.
struct GridCell
{
    QString name;
    QPolygonF corners;
};

struct Levelling
{
    /// Elevation of the level plane that cuts as much as it fills; 0 without cells.
    double elevation = 0.0;
    /// Cell name to the name of each point on a corner of it; the point found last comes first.
    QMultiMap<QString, QString> pointsOfCells;
};

struct CellVolume
{
    double excavation = 0.0;
    double fill = 0.0; ///< Zero or negative.
};

struct VolumeTotals
{
    double area = 0.0;
    double excavation = 0.0;
    double fill = 0.0; ///< Zero or negative.
};

/// Construction heights of a square's corners, row by row: 0-1 and 2-3 are the rows, 0-2 and 1-3
/// the columns, 0-3 and 1-2 the diagonals.
using CornerHeights = std::array<double, 4>;

/// Levelling elevation from corner weights, (S1 + 2 S2 + 3 S3 + 4 S4) / (4 N): `sums[k - 1]` is Sk,
/// the sum of the elevations of the points that k cells share, N the number of cells. 0 without
/// cells.
RKBASEUI_EXPORT double levellingElevation(const std::array<double, 4>& sums, int cellCount);

/// Which points are on which corners, and the levelling elevation that follows. A point is on a
/// corner when both differences of their coordinates are below 1e-6. Points on no corner, or on
/// more than four, do not count; neither do points with a number that is not finite, which are on
/// no corner. Cells count in any case. Both vectors are in ascending order of the names, which are
/// unique in each. Linear in points plus cells as long as few of them coincide.
RKBASEUI_EXPORT Levelling levelGrid(const std::vector<GridPoint>& points,
                                    const std::vector<GridCell>& cells);

/// Distance from the end of height `h1` of a square's side to the point of height zero, when the
/// other end has height `h2`. The signs are not looked at; one of the heights must not be zero.
RKBASEUI_EXPORT double zeroPointDistance(double h1, double h2, double side);

/// Excavation and fill of a cell: of one of the three kinds below.
RKBASEUI_EXPORT CellVolume cellVolume(const CornerHeights& heights, double side);

/// Volume of a square whose corners all have one sign, with that sign: a prism.
RKBASEUI_EXPORT double volumeOfOneSign(const CornerHeights& heights, double side);

/// Volumes of a square with exactly two corners above zero. Two on a side make two trapezia; two on
/// a diagonal make the triangles at corners 0 and 3, and a hexagon between them. None for any other
/// square.
RKBASEUI_EXPORT CellVolume volumeOfTwoAndTwo(const CornerHeights& heights, double side);

/// Volumes of a square with one corner above zero, or all but one: a triangle and a pentagon. A
/// lone corner of height zero leaves no triangle, and the pentagon the whole square. None where no
/// corner is above zero, or each.
RKBASEUI_EXPORT CellVolume volumeOfOneAndThree(const CornerHeights& heights, double side);

/// Adds a cell to the totals, with the area of a full square.
RKBASEUI_EXPORT void addCell(VolumeTotals& totals, const CellVolume& cell, double side);

} // namespace rk
