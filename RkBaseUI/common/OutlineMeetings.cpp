// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/OutlineMeetings.h"

#include "common/ChainTree.h"
#include "common/CollinearEdges.h"
#include "common/EdgeTree.h"

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <optional>

namespace {

/// Enough for EdgeBoxes and ChainTree together, and for CollinearEdges.
constexpr std::size_t bytesPerEdge = 32;

} // namespace

bool OutlineMeetings::someEdgeMeetsThree()
{
    if (m_edges.lineCount() < 4)
        return false;
    const AskPair askPair = [this](int a, int b) { return ask(a, b); };
    if (m_edges.areExtreme())
        return askAllPairs(askPair);

    // Memory that the process has not touched before is slow, so both searches use the same.
    const std::size_t size = bytesPerEdge * std::size_t(m_edges.count());
    const std::unique_ptr<std::byte[]> bytes(new std::byte[size]);
    std::pmr::monotonic_buffer_resource memory(bytes.get(), size);
    if (askNeighbourhoods(askPair, &memory))
        return true;
    memory.release();
    return CollinearEdges(m_edges, &memory).anyPair(askPair);
}

bool OutlineMeetings::askNeighbourhoods(const AskPair& ask, std::pmr::memory_resource* memory) const
{
    const EdgeBoxes boxes(m_edges, memory);
    const std::optional<bool> answer = ChainTree(boxes, memory).anyPair(ask);
    return answer ? *answer : EdgeTree(m_edges, boxes).anyPair(ask);
}

bool OutlineMeetings::askAllPairs(const AskPair& ask) const
{
    for (int a = 0; a < m_edges.count(); ++a) {
        for (int b = 0; b < a && m_edges.isLine(a); ++b) {
            if (m_edges.isLine(b) && ask(a, b))
                return true;
        }
    }
    return false;
}

bool OutlineMeetings::ask(int a, int b)
{
    if (b == m_edges.next(a) || a == m_edges.next(b))
        return false;
    const QLineF lineA = m_edges.line(a);
    const QLineF lineB = m_edges.line(b);
    QPointF meeting;
    if (lineA.intersects(lineB, &meeting) != QLineF::BoundedIntersection)
        return false;
    if (isThird(a, b, meeting))
        return true;
    // Asked again, because the point is rounded differently.
    return lineB.intersects(lineA, &meeting) == QLineF::BoundedIntersection
        && isThird(b, a, meeting);
}

bool OutlineMeetings::isThird(int edge, int partner, const QPointF& meeting)
{
    // Kept on purpose: what meets at the origin does not count.
    if (meeting.x() == 0 && meeting.y() == 0)
        return false;
    m_partners.resize(std::size_t(m_edges.count()));
    Partners& partners = m_partners[std::size_t(edge)];
    if (partners.first < 0) {
        partners.first = partner;
        return askNeighbours(edge);
    }
    // A pair may be asked more than once.
    if (partners.first == partner || partners.second == partner)
        return false;
    if (partners.second >= 0)
        return true;
    partners.second = partner;
    return false;
}

bool OutlineMeetings::askNeighbours(int edge)
{
    for (const int neighbour : {m_edges.previous(edge), m_edges.next(edge)}) {
        QPointF meeting;
        if (m_edges.line(edge).intersects(m_edges.line(neighbour), &meeting)
                == QLineF::BoundedIntersection
            && isThird(edge, neighbour, meeting)) {
            return true;
        }
    }
    return false;
}
