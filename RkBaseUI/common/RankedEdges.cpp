// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/RankedEdges.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <utility>

namespace {

constexpr std::size_t digitBits = 11; // Three digits make a rank.
constexpr std::uint32_t digits = 1 << digitBits;

std::size_t digit(std::uint32_t rank, std::size_t place)
{
    return (rank >> place * digitBits) % digits;
}

/// For fewer edges counting the digits does not pay.
constexpr std::size_t fewEdges = 500;

} // namespace

void sortByRank(RankedEdges::iterator begin, RankedEdges::iterator end, RankedEdges& scratch)
{
    const auto count = std::size_t(end - begin);
    if (count < fewEdges) {
        std::sort(begin, end,
                  [](const RankedEdge& a, const RankedEdge& b) { return a.rank < b.rank; });
        return;
    }
    // How many ranks have each digit; by partial sums, where the first of them goes.
    std::array<std::array<std::uint32_t, digits + 1>, 3> places = {};
    for (auto edge = begin; edge != end; ++edge) {
        for (std::size_t i = 0; i < places.size(); ++i)
            ++places[i][digit(edge->rank, i) + 1];
    }
    scratch.resize(std::max(scratch.size(), count));
    auto from = begin;
    auto to = scratch.begin();
    for (std::size_t i = 0; i < places.size(); ++i) {
        std::partial_sum(places[i].begin(), places[i].end(), places[i].begin());
        std::for_each(from, from + std::ptrdiff_t(count),
                      [&](const RankedEdge& edge) { to[places[i][digit(edge.rank, i)]++] = edge; });
        std::swap(from, to);
    }
    std::copy(from, from + std::ptrdiff_t(count), begin);
}
