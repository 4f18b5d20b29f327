// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory_resource>
#include <vector>

/// An edge with its place on some scale.
struct RankedEdge
{
    std::uint32_t rank;
    int edge;
};

using RankedEdges = std::pmr::vector<RankedEdge>;

/// Sorts by rank, in a time in proportion to the edges. What `scratch` holds is lost.
void sortByRank(RankedEdges::iterator begin, RankedEdges::iterator end, RankedEdges& scratch);
