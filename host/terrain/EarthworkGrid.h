// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/ElevationModel.h"

#include <QPoint>
#include <QPointF>
#include <QPolygonF>
#include <QTransform>
#include <QVariant>

#include <optional>

/// Squares of one side in rows and columns on a terrain. A value: what moves or turns it gives a
/// new one.
///
/// Corners and cells are counted from 0, columns from the west and rows from the north of a grid
/// that is not turned. In ascending order of their names, the corners of each cell are row by row:
/// first the two of its upper side, then the two of its lower side, west before east.
///
///     std::optional<EarthworkGrid> grid = EarthworkGrid::laid(20, 300, place, model.extent());
///     if (grid)
///         samples = sampled(grid->turned(30).within(model.extent()), model);
struct EarthworkGrid
{
    /// More would make working with the grid slow and its names long.
    static constexpr int mostCellsPerSide = 120;

    double side = 1; ///< Of a cell, metres.
    int columns = 1;
    int rows = 1;
    QPointF centre; ///< Metres.
    double angle = 0; ///< Degrees, counter-clockwise.

    /// A square grid of about the wished width about a place: at least one cell, never more than
    /// `mostCellsPerSide`, and small enough to stay on the terrain however it is turned. Nothing
    /// when not even one cell is that small.
    static std::optional<EarthworkGrid> laid(double side, double wishedWidth, const QPointF& place,
                                             const QRectF& terrain);

    double width() const { return columns * side; }
    double height() const { return rows * side; }

    QPointF corner(int column, int row) const;
    /// In the order of the corners' names around: north-west, north-east, south-east, south-west.
    QPolygonF cell(int column, int row) const;
    QPolygonF outline() const;
    /// From the unit of cells, the origin at the first corner and rows downwards, to metres.
    QTransform transform() const;

    QString cornerName(int column, int row) const;
    QString cellName(int column, int row) const;

    /// Column and row of the cell at a place; nothing beside the grid.
    std::optional<QPoint> cellAt(const QPointF& place) const;
    bool contains(const QPointF& place) const { return cellAt(place).has_value(); }

    EarthworkGrid moved(const QPointF& metres) const;
    EarthworkGrid turned(double degrees) const;
    /// Moved so that all of it is on the terrain, which is large enough.
    EarthworkGrid within(const QRectF& terrain) const;
};

/// What was surveyed of a grid.
struct GridSamples
{
    QVariantMap points; ///< From a corner's name to the list of its x, y and elevation.
    QVariantMap cells; ///< From a cell's name to the QPolygonF of its corners.
};

GridSamples sampled(const EarthworkGrid& grid, const ElevationModel& model);
