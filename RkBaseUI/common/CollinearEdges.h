// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/OutlineEdges.h"
#include "common/RankedEdges.h"

#include <vector>

/// Pairs of edges on one line but for rounding, at any distance, found by sorting by direction and
/// offset.
class CollinearEdges
{
public:
    /// The edges must outlive this.
    explicit CollinearEdges(const OutlineEdges& edges)
        : m_edges(edges)
    {
    }

    /// Asks the pairs that rounding may let meet, some more than once; true when one of them gives
    /// that.
    bool anyPair(const AskPair& ask) const;

private:
    using Iterator = std::vector<RankedEdge>::const_iterator;

    bool areParallel(int a, int b) const;
    bool anyOfOneDirection(Iterator begin, Iterator end, const AskPair& ask) const;
    bool anyEquallyDirected(Iterator begin, Iterator end, const AskPair& ask) const;
    bool anySideBySide(Iterator begin, Iterator end, const AskPair& ask) const;

    const OutlineEdges& m_edges;
};
