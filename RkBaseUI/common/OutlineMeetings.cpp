// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/OutlineMeetings.h"

#include "common/CollinearEdges.h"
#include "common/EdgeGrid.h"
#include "common/EdgeTree.h"

bool OutlineMeetings::someEdgeMeetsThree()
{
    if (m_edges.lines().size() < 4)
        return false;
    const AskPair askPair = [this](int a, int b) { return ask(a, b); };
    if (m_edges.areExtreme())
        return askAllPairs(askPair);

    return askNeighbourhoods(askPair) || CollinearEdges(m_edges).anyPair(askPair);
}

bool OutlineMeetings::askNeighbourhoods(const AskPair& ask) const
{
    const EdgeGrid grid(m_edges);
    return grid.isFit() ? grid.anyPair(ask) : EdgeTree(m_edges).anyPair(ask);
}

bool OutlineMeetings::askAllPairs(const AskPair& ask) const
{
    const std::vector<int>& lines = m_edges.lines();
    for (auto a = lines.begin(); a != lines.end(); ++a) {
        for (auto b = a + 1; b != lines.end(); ++b) {
            if (ask(*a, *b))
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
