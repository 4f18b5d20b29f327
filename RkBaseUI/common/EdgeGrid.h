// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/OutlineEdges.h"

#include <cstdint>
#include <vector>

/// Pairs of edges whose surroundings overlap, found by sorting the edges into half as many cells of
/// a grid. The grid is turned to lie along the edges, and its cells are as long and as wide as
/// suits them.
///
///     const EdgeGrid grid(edges);
///     const bool found = grid.isFit() && grid.anyPair(ask);
class EdgeGrid
{
public:
    /// The edges must outlive this.
    explicit EdgeGrid(const OutlineEdges& edges);

    /// Whether few edges share a cell and few cells an edge; otherwise the grid holds nothing.
    bool isFit() const { return !m_entries.empty(); }

    /// Asks the pairs, some more than once; true when one of them gives that. Only for a grid that
    /// is fit.
    bool anyPair(const AskPair& ask) const;

private:
    /// From the lowest to the highest value.
    struct Span
    {
        double low = std::numeric_limits<double>::max();
        double high = -std::numeric_limits<double>::max();

        double length() const { return high - low; }
    };
    /// Where an edge's surroundings are, turned.
    struct Place
    {
        Span x;
        Span y;
    };
    /// The columns or the rows.
    struct Axis
    {
        Span span;
        double travelled = 0; ///< by all edges together
        std::uint32_t cells = 1;
        double cellsPerUnit = 1;

        void add(const Span& other);
        void divide(double count);
        /// Less than `cells` for every value in the span.
        std::uint32_t cell(double value) const
        {
            return std::uint32_t((value - span.low) * cellsPerUnit);
        }
    };

    QPointF turned(const QPointF& vertex) const;
    Place place(int edge) const;
    bool layOut();
    template <typename Work>
    bool forEachCell(Work work) const;
    bool count();
    void fill();

    const OutlineEdges& m_edges;
    QPointF m_direction; ///< of the rows
    Axis m_columns;
    Axis m_rows;
    /// Where the entries of each cell begin, column by column, and where the last one's end.
    std::vector<std::uint32_t> m_begins;
    std::vector<int> m_entries;
};
