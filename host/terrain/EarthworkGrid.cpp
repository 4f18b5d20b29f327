// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/EarthworkGrid.h"

#include <algorithm>
#include <cmath>

namespace {

/// Leading zeros, because names are ordered as texts.
QString name(char kind, int column, int row, int digits)
{
    return QStringLiteral("%1%2-%3")
        .arg(QLatin1Char(kind))
        .arg(row + 1, digits, 10, QLatin1Char('0'))
        .arg(column + 1, digits, 10, QLatin1Char('0'));
}

int digitsOf(const EarthworkGrid& grid)
{
    return std::max(grid.columns, grid.rows) + 1 < 100 ? 2 : 3;
}

} // namespace

std::optional<EarthworkGrid> EarthworkGrid::laid(double side, double wishedWidth,
                                                 const QPointF& place, const QRectF& terrain)
{
    // Turned by 45 degrees it is as wide as its diagonal.
    const double widest = std::min(terrain.width(), terrain.height()) / std::sqrt(2.0);
    if (!(side > 0) || side > widest)
        return std::nullopt;
    const double most = std::min<double>(mostCellsPerSide, std::floor(widest / side));
    const int cells = int(qBound(1.0, std::round(wishedWidth / side), most));
    return EarthworkGrid{side, cells, cells, place, 0}.within(terrain);
}

QTransform EarthworkGrid::transform() const
{
    return QTransform()
        .translate(centre.x(), centre.y())
        .rotate(angle)
        .scale(side, -side)
        .translate(-columns / 2.0, -rows / 2.0);
}

QPointF EarthworkGrid::corner(int column, int row) const
{
    return transform().map(QPointF(column, row));
}

QPolygonF EarthworkGrid::cell(int column, int row) const
{
    const QTransform toMetres = transform();
    QPolygonF polygon;
    for (const QPointF& corner : {QPointF(0, 0), QPointF(1, 0), QPointF(1, 1), QPointF(0, 1)})
        polygon.append(toMetres.map(QPointF(column, row) + corner));
    return polygon;
}

QPolygonF EarthworkGrid::outline() const
{
    return QPolygonF({corner(0, 0), corner(columns, 0), corner(columns, rows), corner(0, rows)});
}

QString EarthworkGrid::cornerName(int column, int row) const
{
    return name('P', column, row, digitsOf(*this));
}

QString EarthworkGrid::cellName(int column, int row) const
{
    return name('C', column, row, digitsOf(*this));
}

std::optional<QPoint> EarthworkGrid::cellAt(const QPointF& place) const
{
    const QPointF at = transform().inverted().map(place);
    const QPoint cell(int(std::floor(at.x())), int(std::floor(at.y())));
    if (!QRect(0, 0, columns, rows).contains(cell))
        return std::nullopt;
    return cell;
}

EarthworkGrid EarthworkGrid::moved(const QPointF& metres) const
{
    EarthworkGrid grid = *this;
    grid.centre += metres;
    return grid;
}

EarthworkGrid EarthworkGrid::turned(double degrees) const
{
    EarthworkGrid grid = *this;
    grid.angle = std::remainder(angle + degrees, 360);
    return grid;
}

EarthworkGrid EarthworkGrid::within(const QRectF& terrain) const
{
    const QRectF bounds = outline().boundingRect();
    const auto shift = [](double low, double high, double first, double last) {
        return low < first ? first - low : high > last ? last - high : 0.0;
    };
    return moved({shift(bounds.left(), bounds.right(), terrain.left(), terrain.right()),
                  shift(bounds.top(), bounds.bottom(), terrain.top(), terrain.bottom())});
}

GridSamples sampled(const EarthworkGrid& grid, const ElevationModel& model)
{
    GridSamples samples;
    for (int row = 0; row <= grid.rows; ++row) {
        for (int column = 0; column <= grid.columns; ++column) {
            const QPointF place = grid.corner(column, row);
            samples.points.insert(samples.points.constEnd(), grid.cornerName(column, row),
                                  QVariantList{place.x(), place.y(), model.elevation(place)});
            if (row < grid.rows && column < grid.columns)
                samples.cells.insert(samples.cells.constEnd(), grid.cellName(column, row),
                                     grid.cell(column, row));
        }
    }
    return samples;
}
