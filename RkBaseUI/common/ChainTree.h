// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/EdgeBoxes.h"
#include "common/OutlineEdges.h"

#include <cstddef>
#include <memory_resource>
#include <optional>
#include <vector>

/// Pairs of edges whose surroundings overlap, found in a tree of boxes around chains of edges that
/// follow one another, and boxes around boxes: for edges that mostly lie near those before and
/// after them.
class ChainTree
{
public:
    /// The boxes must outlive this.
    explicit ChainTree(const EdgeBoxes& boxes,
                       std::pmr::memory_resource* memory = std::pmr::get_default_resource());

    /// Asks the pairs, each once; true when one of them gives that. Nothing when so many boxes
    /// overlap that an EdgeTree is faster; some pairs have been asked by then.
    std::optional<bool> anyPair(const AskPair& ask) const;

private:
    class Search;

    static constexpr std::size_t chainLength = 8;

    const EdgeBoxes& m_edges;
    std::size_t m_leaves = 1; ///< chains; the last ones may be empty
    std::pmr::vector<EdgeBoxes::Box> m_boxes; ///< a full binary tree, root first
};
