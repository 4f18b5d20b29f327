// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPolygonF>
#include <QVector>

#include <vector>

/// A polygon prepared for many containment questions: its edges are listed by bands of y, and a
/// question looks at the edges of one band only.
///
/// Only an even polygon may be banded (see `isEven`).
class BandedPolygon
{
public:
    BandedPolygon() = default;
    explicit BandedPolygon(const QPolygonF& polygon);

    /// Exactly `polygon.containsPoint(point, Qt::OddEvenFill)`.
    bool contains(const QPointF& point) const;

    /// The polygon with its start repeated at the end, unless it ends there already.
    const QPolygonF& ring() const { return m_ring; }

    /// Whether rounding cannot reach far: all coordinates are plausible degrees (within 360), and
    /// the ring never rises or falls by less than 1e-9. Then a computed crossing lies on its edge,
    /// give or take `tolerance`, and no edge is passed over as nearly horizontal, so that a point
    /// that the edges do not surround has an even number of crossings.
    static bool isEven(const QPolygonF& polygon);

    /// Degrees; far above all rounding of an even polygon, far below any boundary's precision.
    static constexpr double tolerance = 1e-11;

private:
    struct Edge
    {
        QPointF low;
        QPointF high;
    };

    int band(double y) const;
    /// Calls `visit(edge, band)` for every band that an edge of the ring crosses.
    template <typename Visit>
    void forEachBandOfEdge(Visit visit) const;

    QPolygonF m_ring;
    double m_bottom = 0.0;
    double m_top = 0.0;
    double m_bandsPerUnit = 0.0;
    int m_bandCount = 0;
    /// Where the edges of each band start in m_edges, and one more for the end.
    std::vector<int> m_bandStart;
    std::vector<Edge> m_edges;
};

/// Finds the first polygon of a list that contains a point. The answer is always that of asking
/// `QPolygonF::containsPoint` with `Qt::OddEvenFill` polygon by polygon, for any polygons and any
/// point, not-a-number and points on edges included; it only comes sooner.
///
///     const BoundaryIndex index({first, second});
///     const int found = index.firstContaining({39.9, 116.4}); // 0, 1 or -1
///
/// A grid lies over the polygons. Each cell knows, in the order of the list, the polygons that have
/// a piece of outline in it, up to the first one that contains the whole cell; only the former are
/// asked.
class BoundaryIndex
{
public:
    BoundaryIndex() = default;
    explicit BoundaryIndex(const QVector<QPolygonF>& polygons);

    /// The index of the polygon in the list, -1 when none contains the point.
    int firstContaining(const QPointF& point) const;

private:
    /// A polygon to be asked in one cell. `next` is the cell's next entry.
    struct Candidate
    {
        int polygon;
        int next;
    };
    struct Ungridded
    {
        int polygon;
        QPolygonF shape;
    };
    struct CellRange
    {
        int left, right, bottom, top;
    };

    void setExtent();
    void addPolygon(int polygon, const std::vector<int>& marks);
    /// Notes in `marks` every cell that the outline may touch. False when that is more than is
    /// sensible.
    bool markOutline(int polygon, std::vector<int>& marks) const;
    int firstInGrid(const QPointF& point) const;
    int column(double x) const;
    int row(double y) const;
    QPointF centre(int column, int row) const;
    CellRange cellsAround(const QPointF& corner, const QPointF& opposite) const;

    QPointF m_origin;
    QPointF m_end{-1.0, -1.0}; ///< before the origin: a grid without cells covers no point
    QPointF m_cellsPerUnit;
    std::vector<BandedPolygon> m_polygons;
    /// Per cell its first entry: -1 is "nothing more", an index into m_polygons "that one contains
    /// the whole cell", and anything above an index into m_candidates, counted from the number of
    /// polygons.
    std::vector<int> m_cells;
    std::vector<Candidate> m_candidates;
    /// The polygons that the grid does not hold, in order; always asked one by one.
    std::vector<Ungridded> m_ungridded;
};
