// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/OutlineEdges.h"

#include <memory_resource>
#include <vector>

/// Looks for an edge of a closed outline that meets three others, with the answer of the double
/// loop over all pairs of edges with QLineF::intersects, rounding included, but without looking at
/// all pairs.
///
///     const bool crosses = OutlineMeetings(vertices).someEdgeMeetsThree();
///
/// Edges that follow one another are asked only once one of them meets another one: with its two
/// neighbours alone an edge does not meet three.
class OutlineMeetings
{
public:
    /// The outline must outlive this.
    explicit OutlineMeetings(const std::vector<QPointF>& outline)
        : m_edges(outline)
    {
    }

    /// Whether some edge meets at least three others.
    bool someEdgeMeetsThree();

private:
    /// The first two edges that an edge was found to meet; -1 for none.
    struct Partners
    {
        int first = -1;
        int second = -1;
    };

    bool askAllPairs(const AskPair& ask) const;
    bool askNeighbourhoods(const AskPair& ask, std::pmr::memory_resource* memory) const;
    bool ask(int a, int b);
    bool isThird(int edge, int partner, const QPointF& meeting);
    bool askNeighbours(int edge);

    const OutlineEdges m_edges;
    std::vector<Partners> m_partners; ///< by edge; empty until one meets more than its neighbours
};
