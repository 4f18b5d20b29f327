// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "common/OutlineEdges.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory_resource>
#include <vector>

/// The surroundings of the edges of an outline, as boxes along the outline's axis: each contains
/// its edge when that is lengthened and widened a little.
class EdgeBoxes
{
public:
    /// In whole numbers, because these are compared fastest.
    class Box
    {
    public:
        /// Around nothing.
        Box() = default;
        /// As far from the centre of the outline to the left, down, to the right and up.
        Box(std::int32_t left, std::int32_t down, std::int32_t right, std::int32_t up)
            : m_reach{left, down, right, up}
        {
        }

        bool isEmpty() const { return m_reach[0] == -farthest; }
        /// Whether none of the sums of opposite sides is negative. Two of these are made at once;
        /// one may carry 1 over into the other, so boxes that are a cell apart may overlap as well.
        bool overlaps(const Box& other) const
        {
            constexpr std::uint64_t signs = 0x8000000080000000;
            const std::uint64_t sums = leftAndDown() + other.rightAndUp();
            const std::uint64_t otherSums = rightAndUp() + other.leftAndDown();
            return ((sums | otherSums) & signs) == 0;
        }
        void add(const Box& other)
        {
            for (std::size_t side = 0; side < m_reach.size(); ++side)
                m_reach[side] = std::max(m_reach[side], other.m_reach[side]);
        }

    private:
        std::uint64_t leftAndDown() const { return twoSides(0); }
        std::uint64_t rightAndUp() const { return twoSides(2); }
        std::uint64_t twoSides(std::size_t first) const
        {
            std::uint64_t sides = 0;
            std::memcpy(&sides, &m_reach[first], sizeof sides);
            return sides;
        }

        /// Not less than any box reaches, so the sum of two sides is a number.
        static constexpr std::int32_t farthest = 1 << 30;

        std::array<std::int32_t, 4> m_reach = {-farthest, -farthest, -farthest, -farthest};
    };

    /// The edges are used here only.
    explicit EdgeBoxes(const OutlineEdges& edges,
                       std::pmr::memory_resource* memory = std::pmr::get_default_resource());

    std::size_t count() const { return m_boxes.size(); }
    /// Empty for an edge that meets nothing.
    const Box& operator[](std::size_t edge) const { return m_boxes[edge]; }

private:
    std::pmr::vector<Box> m_boxes;
};
