// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/EdgeGrid.h"

#include <numeric>

namespace {

constexpr double cellsPerEdge = 0.5;

// On average; beyond that a tree is faster.
constexpr double mostBordersCrossed = 4;
constexpr std::size_t mostCells = 8;
constexpr std::size_t mostCompanions = 32; ///< in the same cell

/// Of more edges the entries could not be counted.
constexpr std::size_t mostEdges = std::size_t(1) << 28;

} // namespace

void EdgeGrid::Axis::add(const Span& other)
{
    span.low = std::min(span.low, other.low);
    span.high = std::max(span.high, other.high);
    travelled += other.length();
}

void EdgeGrid::Axis::divide(double count)
{
    cellsPerUnit = count / span.length();
    cells = cell(span.high) + 1;
}

EdgeGrid::EdgeGrid(const OutlineEdges& edges)
    : m_edges(edges)
    , m_direction(edges.mainDirection())
{
    if (edges.lines().size() <= mostEdges && layOut() && count())
        fill();
}

/// The vertex as it lies along and across the rows.
inline QPointF EdgeGrid::turned(const QPointF& vertex) const
{
    const QPointF position = vertex - m_edges.centre();
    return {position.x() * m_direction.x() + position.y() * m_direction.y(),
            position.y() * m_direction.x() - position.x() * m_direction.y()};
}

inline EdgeGrid::Place EdgeGrid::place(int edge) const
{
    const QLineF line = m_edges.line(edge);
    const QPointF from = turned(line.p1());
    const QPointF to = turned(line.p2());
    // Turned surroundings are a little larger.
    const double room = 2 * OutlineEdges::widening * m_edges.reach();
    const double x = OutlineEdges::lengthening * std::abs(to.x() - from.x()) + room;
    const double y = OutlineEdges::lengthening * std::abs(to.y() - from.y()) + room;
    return {{std::min(from.x(), to.x()) - x, std::max(from.x(), to.x()) + x},
            {std::min(from.y(), to.y()) - y, std::max(from.y(), to.y()) + y}};
}

/// Whether the edges are short enough for the cells.
bool EdgeGrid::layOut()
{
    for (const int edge : m_edges.lines()) {
        const Place edgePlace = place(edge);
        m_columns.add(edgePlace.x);
        m_rows.add(edgePlace.y);
    }
    // Every place shall lie within, however it is rounded next time.
    for (Span* span : {&m_columns.span, &m_rows.span}) {
        span->low -= OutlineEdges::widening * m_edges.reach();
        span->high += OutlineEdges::widening * m_edges.reach();
    }
    // The edges shall cross as many columns as rows.
    const double edges = double(m_edges.lines().size());
    const double cells = edges * cellsPerEdge;
    const double ratio =
        m_columns.span.length() / m_columns.travelled / (m_rows.span.length() / m_rows.travelled);
    const double columns = std::floor(std::clamp(std::sqrt(cells * ratio), 1.0, cells));
    m_columns.divide(columns);
    m_rows.divide(cells / columns);
    return m_columns.travelled * m_columns.cellsPerUnit + m_rows.travelled * m_rows.cellsPerUnit
        < mostBordersCrossed * edges;
}

/// Calls `work` with the cells of every edge; false when these are too many.
template <typename Work>
bool EdgeGrid::forEachCell(Work work) const
{
    std::size_t entries = 0;
    for (const int edge : m_edges.lines()) {
        const Place edgePlace = place(edge);
        const std::size_t left = m_columns.cell(edgePlace.x.low);
        const std::size_t right = m_columns.cell(edgePlace.x.high);
        const std::size_t bottom = m_rows.cell(edgePlace.y.low);
        const std::size_t top = m_rows.cell(edgePlace.y.high);
        entries += (right - left + 1) * (top - bottom + 1);
        if (entries > mostCells * m_edges.lines().size())
            return false;
        for (std::size_t column = left; column <= right; ++column) {
            for (std::size_t row = bottom; row <= top; ++row)
                work(column * m_rows.cells + row, edge);
        }
    }
    return true;
}

/// Counts the entries of the cells; false when these are too many.
bool EdgeGrid::count()
{
    m_begins.resize(std::size_t(m_columns.cells) * m_rows.cells + 1);
    std::size_t companions = 0;
    const bool areFew = forEachCell([&](std::size_t cell, int) { companions += m_begins[cell]++; });
    return areFew && companions <= mostCompanions * m_edges.lines().size();
}

void EdgeGrid::fill()
{
    // The sums are where the cells end; each entry moves its cell's place down, in the end to its
    // begin.
    std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());
    m_entries.resize(m_begins.back());
    forEachCell([&](std::size_t cell, int edge) { m_entries[--m_begins[cell]] = edge; });
}

bool EdgeGrid::anyPair(const AskPair& ask) const
{
    std::vector<OutlineEdges::Extent> extents;
    for (std::size_t cell = 0; cell + 1 < m_begins.size(); ++cell) {
        const int* const entries = m_entries.data() + m_begins[cell];
        const std::size_t size = m_begins[cell + 1] - m_begins[cell];
        if (size < 2 || (size == 2 && m_edges.next(entries[1]) == entries[0]))
            continue;
        extents.clear();
        for (std::size_t i = 0; i < size; ++i) {
            extents.push_back(m_edges.surroundings(entries[i]));
            for (std::size_t j = 0; j < i; ++j) {
                if (extents[i].overlaps(extents[j]) && ask(entries[i], entries[j]))
                    return true;
            }
        }
    }
    return false;
}
