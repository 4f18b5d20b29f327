// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/OutlineEdges.h"
#include "common/RankedEdges.h"

#include <memory_resource>

/// Pairs of edges on one line but for rounding, at any distance, found by sorting by offset and
/// direction.
class CollinearEdges
{
public:
    /// The edges must outlive this.
    explicit CollinearEdges(const OutlineEdges& edges,
                            std::pmr::memory_resource* memory = std::pmr::get_default_resource());

    /// Asks the pairs that rounding may let meet, some more than once; true when one of them gives
    /// that.
    bool anyPair(const AskPair& ask);

private:
    using Iterator = RankedEdges::iterator;

    bool areParallel(int a, int b) const;
    bool areAllParallel(Iterator begin, Iterator end) const;
    bool anyOfOneOffset(Iterator begin, Iterator end, const AskPair& ask);
    bool anyEquallyDirected(Iterator begin, Iterator end, const AskPair& ask);
    bool anyOfOneRun(Iterator begin, Iterator end, const AskPair& ask);
    bool anySideBySide(Iterator begin, Iterator end, const AskPair& ask);

    const OutlineEdges& m_edges;
    RankedEdges m_ranked;
    RankedEdges m_scratch;
};
