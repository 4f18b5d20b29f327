// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

/// An edge with its place on some scale.
struct RankedEdge
{
    std::uint32_t rank;
    int edge;
};

/// Sorts by rank, in a time in proportion to the edges.
void sortByRank(std::vector<RankedEdge>& edges);
