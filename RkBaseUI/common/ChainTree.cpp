// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/ChainTree.h"

#include <algorithm>
#include <array>

namespace {

/// Beyond so many comparisons of boxes for each chain, an EdgeTree is faster.
constexpr std::size_t mostComparisons = 200;

} // namespace

ChainTree::ChainTree(const EdgeBoxes& boxes, std::pmr::memory_resource* memory)
    : m_edges(boxes)
    , m_boxes(memory)
{
    while (m_leaves * chainLength < boxes.count())
        m_leaves *= 2;
    m_boxes.resize(2 * m_leaves - 1);
    for (std::size_t edge = 0; edge < boxes.count(); ++edge)
        m_boxes[m_leaves - 1 + edge / chainLength].add(boxes[edge]);
    for (std::size_t node = m_leaves - 1; node-- > 0;) {
        m_boxes[node] = m_boxes[2 * node + 1];
        m_boxes[node].add(m_boxes[2 * node + 2]);
    }
}

/// One search through the tree. The functions give true at its end.
class ChainTree::Search
{
public:
    Search(const ChainTree& tree, const AskPair& ask)
        : m_tree(tree)
        , m_ask(ask)
    {
    }

    bool isTooLong() const { return m_isTooLong; }

    bool anyWithin(std::size_t node)
    {
        if (box(node).isEmpty())
            return false;
        if (isLeaf(node))
            return anyOfChain(chain(node));
        const std::size_t lower = 2 * node + 1;
        const std::size_t upper = 2 * node + 2;
        return anyWithin(lower) || anyWithin(upper)
            || (box(lower).overlaps(box(upper)) && anyBetween(lower, upper));
    }

private:
    /// Of edges.
    struct Chain
    {
        std::size_t begin;
        std::size_t end;
    };

    const EdgeBoxes::Box& box(std::size_t node) const { return m_tree.m_boxes[node]; }
    bool isLeaf(std::size_t node) const { return node >= m_tree.m_leaves - 1; }
    Chain chain(std::size_t leaf) const
    {
        const std::size_t begin = (leaf - (m_tree.m_leaves - 1)) * chainLength;
        return {begin, std::min(begin + chainLength, m_tree.m_edges.count())};
    }

    /// For nodes with overlapping boxes, as far from the root as one another.
    bool anyBetween(std::size_t a, std::size_t b)
    {
        if (isLeaf(a))
            return anyBetweenChains(a, b);
        const std::size_t a1 = 2 * a + 1;
        const std::size_t a2 = 2 * a + 2;
        const std::size_t b1 = 2 * b + 1;
        const std::size_t b2 = 2 * b + 2;
        m_comparisons += 4;
        return (box(a1).overlaps(box(b1)) && anyBetween(a1, b1))
            || (box(a1).overlaps(box(b2)) && anyBetween(a1, b2))
            || (box(a2).overlaps(box(b1)) && anyBetween(a2, b1))
            || (box(a2).overlaps(box(b2)) && anyBetween(a2, b2));
    }

    bool anyOfChain(const Chain& chain)
    {
        ++m_chains;
        for (std::size_t a = chain.begin; a < chain.end; ++a) {
            for (std::size_t b = chain.begin; b + 1 < a; ++b) {
                if (askIfOverlapping(a, b))
                    return true;
            }
        }
        return false;
    }

    bool anyBetweenChains(std::size_t leafA, std::size_t leafB)
    {
        const Chain chainA = chain(leafA);
        const Chain chainB = chain(leafB);
        std::array<std::size_t, chainLength> others{};
        std::size_t count = 0;
        for (std::size_t b = chainB.begin; b < chainB.end; ++b) {
            others[count] = b;
            count += std::size_t(m_tree.m_edges[b].overlaps(box(leafA)));
        }
        m_comparisons += chainLength;
        for (std::size_t a = chainA.begin; a < chainA.end && count > 0; ++a) {
            if (!m_tree.m_edges[a].overlaps(box(leafB)))
                continue;
            m_comparisons += count;
            for (std::size_t i = 0; i < count; ++i) {
                if (askIfOverlapping(a, others[i]))
                    return true;
            }
        }
        m_isTooLong = m_comparisons > mostComparisons * m_chains;
        return m_isTooLong;
    }

    bool askIfOverlapping(std::size_t a, std::size_t b) const
    {
        return m_tree.m_edges[a].overlaps(m_tree.m_edges[b]) && m_ask(int(a), int(b));
    }

    const ChainTree& m_tree;
    const AskPair& m_ask;
    std::size_t m_chains = 0; ///< that were searched within
    std::size_t m_comparisons = 0;
    bool m_isTooLong = false;
};

std::optional<bool> ChainTree::anyPair(const AskPair& ask) const
{
    Search search(*this, ask);
    const bool isAtEnd = search.anyWithin(0);
    if (search.isTooLong())
        return {};
    return isAtEnd;
}
