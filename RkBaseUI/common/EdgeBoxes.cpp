// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/EdgeBoxes.h"

namespace {

/// Twice the reach, turned, is less than a box may reach.
constexpr double cellsInReach = 1 << 28;
/// For the rounding of two ends and of the lengthening, and for the widening.
constexpr std::int32_t room = 4;
constexpr int lengtheningBits = 16;
static_assert(OutlineEdges::lengthening == 1.0 / (1 << lengtheningBits));
static_assert(2 * OutlineEdges::widening * cellsInReach < 1);

} // namespace

EdgeBoxes::EdgeBoxes(const OutlineEdges& edges, std::pmr::memory_resource* memory)
    : m_boxes(std::size_t(edges.count()), memory)
{
    const QPointF axis = edges.axis() * (cellsInReach / edges.reach());
    const auto along = [&](const QPointF& position) {
        return position.x() * axis.x() + position.y() * axis.y();
    };
    const auto across = [&](const QPointF& position) {
        return position.y() * axis.x() - position.x() * axis.y();
    };
    for (int edge = 0; edge < edges.count(); ++edge) {
        if (!edges.isLine(edge))
            continue;
        const QLineF line = edges.line(edge);
        const QPointF from = line.p1() - edges.centre();
        const QPointF to = line.p2() - edges.centre();
        const auto left = std::int32_t(std::min(along(from), along(to)));
        const auto right = std::int32_t(std::max(along(from), along(to)));
        const auto low = std::int32_t(std::min(across(from), across(to)));
        const auto high = std::int32_t(std::max(across(from), across(to)));
        const std::int32_t moreAlong = ((right - left) >> lengtheningBits) + room;
        const std::int32_t moreAcross = ((high - low) >> lengtheningBits) + room;
        m_boxes[std::size_t(edge)] =
            Box(moreAlong - left, moreAcross - low, right + moreAlong, high + moreAcross);
    }
}
