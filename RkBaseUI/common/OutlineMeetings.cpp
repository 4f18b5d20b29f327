// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/OutlineMeetings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

// Why it is enough to ask neighbours and collinear edges.
//
// For edges e = p + s a and f = q - t b (0 <= s, t <= 1), QLineF::intersects computes D = a x b
// and, with c = p - q, the parameters s = (b x c) / D and t = (a x c) / D, and wants both in [0,
// 1]. Swapping e and f swaps s and t exactly, so a pair meets or does not, whichever is asked.
// Below, |v| is the larger coordinate of v, u = 2^-53, k = |D| / (|a| |b|) (nearly the sine of the
// angle), r = u / k, and M the largest coordinate, taken from the centre of the outline. Rounding
// changes D by at most 2.02 u |a| |b|, b x c by 2.02 u |b| |c| and a x c by 2.02 u |a| |c|, as long
// as nothing over- or underflows, for which coordinates are at most 1e100 and edges at least 1e-100
// long.
//
// Let k >= K u with K >= 128, and both computed parameters be in [0, 1]. Then the true crossing O
// of the two lines lies beyond the end of e by at most 2.03 r |a| + 2.02 r |c|, and beyond that of
// f by the same with b. As c = -(s a + t b), |c| <= 1.05 (|a| + |b|). Now either k |a| <= K u |b| /
// 4: then e lies within K u M of the line of f, and its end not further than 13 / K |b| beyond the
// end of f. Or the same holds with e and f swapped. Or neither, and O is at most 13 / K |a| beyond
// the end of e and 13 / K |b| beyond that of f. In each case the edges, lengthened by 16 / K of
// themselves at both ends and widened by K u M, overlap.
//
// This is used twice. With K = 2^20 the edges are lengthened by 2^-16 only, so that few of them
// overlap that do not meet, even where the edges are long and close together. What remains are
// pairs with k < K u: their directions differ by not much more than that, and the distances of
// their two lines from the centre by less than 8 K u M, because |b x c| is at most |D| but for
// rounding. Of these, with K = 128, only those can meet that overlap when lengthened by an eighth,
// or whose directions differ by less than 134 u.
namespace {

constexpr double largestCoordinate = 1e100;
constexpr double shortestEdge = 1e-100;
constexpr double unit = std::numeric_limits<double>::epsilon() / 2;

/// K of the explanation above, for edges at an angle that lets rounding not matter.
constexpr double angle = 1 << 20;
constexpr double smallLengthening = 16 / angle;
/// All tolerances times M have room for the rounding of what is compared.
constexpr double padding = 2 * angle * unit;

/// Edges that are nearly parallel.
constexpr double directionTolerance = 2 * angle * unit;
constexpr double offsetTolerance = 8 * directionTolerance;
/// K is 128.
constexpr double largeLengthening = 1.0 / 8;
constexpr double sameDirectionTolerance = 256 * unit;

/// How often boxes of a few edges each may cover the outline's own box before another order of the
/// edges is taken.
constexpr double largestCover = 8;

} // namespace

OutlineMeetings::OutlineMeetings(const std::vector<QPointF>& outline)
{
    const std::size_t n = outline.size();
    m_edges.reserve(n);
    QPointF low(largestCoordinate, largestCoordinate);
    QPointF high = -low;
    for (std::size_t i = 0; i < n; ++i) {
        const QLineF line(outline[i], outline[i + 1 < n ? i + 1 : 0]);
        // Lines without a length or with one that is no number meet nothing.
        if ((line.dx() == 0 && line.dy() == 0) || !std::isfinite(line.dx())
            || !std::isfinite(line.dy())) {
            continue;
        }
        m_edges.push_back({line, line.dx(), line.dy(), 0, 0});
        m_isExtreme = m_isExtreme || m_edges.back().length() < shortestEdge;
        for (const QPointF& end : {line.p1(), line.p2()}) {
            low = QPointF(std::min(low.x(), end.x()), std::min(low.y(), end.y()));
            high = QPointF(std::max(high.x(), end.x()), std::max(high.y(), end.y()));
        }
    }
    const double largest = std::max({-low.x(), -low.y(), high.x(), high.y()});
    m_isExtreme = m_isExtreme || largest > largestCoordinate;
    m_centre = (low + high) / 2;
    m_reach = std::max(high.x() - low.x(), high.y() - low.y()) / 2;
    for (Edge& edge : m_edges) {
        edge.x = edge.line.x1() - m_centre.x() + edge.dx / 2;
        edge.y = edge.line.y1() - m_centre.y() + edge.dy / 2;
    }
    m_partners.resize(m_edges.size());
}

bool OutlineMeetings::someEdgeMeetsThree()
{
    if (m_edges.size() < 4)
        return false;
    if (m_isExtreme)
        return askAllPairs();

    return askNeighbourhoods() || askCollinear();
}

bool OutlineMeetings::askAllPairs()
{
    const int count = int(m_edges.size());
    for (int a = 0; a < count; ++a) {
        for (int b = a + 1; b < count; ++b) {
            if (ask(a, b))
                return true;
        }
    }
    return false;
}

bool OutlineMeetings::ask(int a, int b)
{
    const QLineF& lineA = m_edges[std::size_t(a)].line;
    const QLineF& lineB = m_edges[std::size_t(b)].line;
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
    Partners& partners = m_partners[std::size_t(edge)];
    // A pair may be asked more than once.
    if (partners.first == partner || partners.second == partner)
        return false;
    if (partners.first >= 0 && partners.second >= 0)
        return true;
    (partners.first < 0 ? partners.first : partners.second) = partner;
    return false;
}

void OutlineMeetings::orderByDirection()
{
    const auto octant = [this](int index) {
        const Edge& edge = m_edges[std::size_t(index)];
        return (edge.dx < 0 ? 4 : 0) + (edge.dy < 0 ? 2 : 0)
            + (std::abs(edge.dx) < std::abs(edge.dy) ? 1 : 0);
    };
    std::stable_sort(m_order.begin(), m_order.end(),
                     [&](int a, int b) { return octant(a) < octant(b); });
}

bool OutlineMeetings::askNeighbourhoods()
{
    const Node root = {0, 0, int(m_edges.size())};
    m_order.resize(m_edges.size());
    std::iota(m_order.begin(), m_order.end(), 0);
    std::size_t nodes = 1;
    for (std::size_t size = m_edges.size(); size > leafSize; size = (size + 1) / 2)
        nodes = 2 * nodes + 1;
    m_boxes.resize(nodes);
    build(root);
    // Edges that follow one another mostly lie together. Where they surround the others, as in a
    // spiral with straight sides, those of one direction do.
    if (m_leafArea > largestCover * m_boxes[root.index].area()) {
        orderByDirection();
        build(root);
    }
    return askWithin(root);
}

OutlineMeetings::Directions OutlineMeetings::build(const Node& node)
{
    Directions sum;
    if (node.isLeaf()) {
        for (int i = node.begin; i < node.end; ++i) {
            const Edge& edge = m_edges[std::size_t(m_order[std::size_t(i)])];
            sum.xx += edge.dx * edge.dx;
            sum.xy += edge.dx * edge.dy;
            sum.yy += edge.dy * edge.dy;
        }
        turnInto(m_boxes[node.index], sum);
        buildLeaf(node);
        return sum;
    }
    for (const Node& child : {node.lower(), node.upper()}) {
        const Directions part = build(child);
        sum.xx += part.xx;
        sum.xy += part.xy;
        sum.yy += part.yy;
    }
    turnInto(m_boxes[node.index], sum);
    buildInner(node);
    return sum;
}

/// Turns the box along the main direction, the larger eigenvector of the sums.
void OutlineMeetings::turnInto(Box& box, const Directions& directions)
{
    const double half = (directions.xx - directions.yy) / 2;
    const double root = std::hypot(half, directions.xy);
    const double x = half >= 0 ? half + root : directions.xy;
    const double y = half >= 0 ? directions.xy : root - half;
    const double length = std::hypot(x, y);
    // Where no direction prevails, what is left may be too small to be divided.
    const bool prevails = length > unit * (directions.xx + directions.yy);
    box.ux = prevails ? x / length : 1;
    box.uy = prevails ? y / length : 0;
}

namespace {

/// Grows around intervals.
struct Interval
{
    double low = std::numeric_limits<double>::max();
    double high = -std::numeric_limits<double>::max();

    void add(double middle, double half)
    {
        low = std::min(low, middle - half);
        high = std::max(high, middle + half);
    }
    double middle() const { return (low + high) / 2; }
    double half() const { return (high - low) / 2; }
};

} // namespace

void OutlineMeetings::buildLeaf(const Node& node)
{
    Box& box = m_boxes[node.index];
    Interval along;
    Interval across;
    for (int i = node.begin; i < node.end; ++i) {
        const Edge& edge = m_edges[std::size_t(m_order[std::size_t(i)])];
        constexpr double half = 0.5 + smallLengthening;
        along.add(edge.x * box.ux + edge.y * box.uy,
                  half * std::abs(edge.dx * box.ux + edge.dy * box.uy));
        across.add(edge.y * box.ux - edge.x * box.uy,
                   half * std::abs(edge.dy * box.ux - edge.dx * box.uy));
    }
    box.x = along.middle() * box.ux - across.middle() * box.uy;
    box.y = along.middle() * box.uy + across.middle() * box.ux;
    box.along = along.half() + padding * m_reach;
    box.across = across.half() + padding * m_reach;
    m_leafArea += box.area();
}

void OutlineMeetings::buildInner(const Node& node)
{
    Box& box = m_boxes[node.index];
    Interval along;
    Interval across;
    for (const Node& child : {node.lower(), node.upper()}) {
        const Box& part = m_boxes[child.index];
        const double cosine = std::abs(part.ux * box.ux + part.uy * box.uy);
        const double sine = std::abs(part.ux * box.uy - part.uy * box.ux);
        along.add(part.x * box.ux + part.y * box.uy, part.along * cosine + part.across * sine);
        across.add(part.y * box.ux - part.x * box.uy, part.along * sine + part.across * cosine);
    }
    box.x = along.middle() * box.ux - across.middle() * box.uy;
    box.y = along.middle() * box.uy + across.middle() * box.ux;
    box.along = along.half();
    box.across = across.half();
}

/// Whether a side of one of the rectangles separates them.
bool OutlineMeetings::areApart(const Box& a, const Box& b) const
{
    const double x = b.x - a.x;
    const double y = b.y - a.y;
    const double cosine = std::abs(a.ux * b.ux + a.uy * b.uy);
    const double sine = std::abs(a.ux * b.uy - a.uy * b.ux);
    return std::abs(x * a.ux + y * a.uy) > a.along + b.along * cosine + b.across * sine
        || std::abs(y * a.ux - x * a.uy) > a.across + b.along * sine + b.across * cosine
        || std::abs(x * b.ux + y * b.uy) > b.along + a.along * cosine + a.across * sine
        || std::abs(y * b.ux - x * b.uy) > b.across + a.along * sine + a.across * cosine;
}

bool OutlineMeetings::askWithin(const Node& node)
{
    if (!node.isLeaf()) {
        return askWithin(node.lower()) || askWithin(node.upper())
            || askBetween(node.lower(), node.upper());
    }
    for (int a = node.begin; a < node.end; ++a) {
        for (int b = a + 1; b < node.end; ++b) {
            if (askIfNear(m_order[std::size_t(a)], m_order[std::size_t(b)]))
                return true;
        }
    }
    return false;
}

bool OutlineMeetings::askBetween(const Node& a, const Node& b)
{
    const Box& boxA = m_boxes[a.index];
    const Box& boxB = m_boxes[b.index];
    if (areApart(boxA, boxB))
        return false;
    const bool splitA =
        !a.isLeaf() && (b.isLeaf() || boxA.along + boxA.across >= boxB.along + boxB.across);
    if (splitA)
        return askBetween(a.lower(), b) || askBetween(a.upper(), b);
    if (!b.isLeaf())
        return askBetween(a, b.lower()) || askBetween(a, b.upper());
    for (int i = a.begin; i < a.end; ++i) {
        for (int j = b.begin; j < b.end; ++j) {
            if (askIfNear(m_order[std::size_t(i)], m_order[std::size_t(j)]))
                return true;
        }
    }
    return false;
}

bool OutlineMeetings::askIfNear(int a, int b)
{
    const Edge& edgeA = m_edges[std::size_t(a)];
    const Edge& edgeB = m_edges[std::size_t(b)];
    constexpr double half = 0.5 + smallLengthening;
    const double room = 2 * padding * m_reach;
    if (std::abs(edgeA.x - edgeB.x) > half * (std::abs(edgeA.dx) + std::abs(edgeB.dx)) + room
        || std::abs(edgeA.y - edgeB.y) > half * (std::abs(edgeA.dy) + std::abs(edgeB.dy)) + room) {
        return false;
    }
    return ask(a, b);
}

std::vector<OutlineMeetings::Line> OutlineMeetings::lines() const
{
    std::vector<Line> lines;
    lines.reserve(m_edges.size());
    for (std::size_t i = 0; i < m_edges.size(); ++i) {
        const Edge& edge = m_edges[i];
        const bool isFlat = std::abs(edge.dx) >= std::abs(edge.dy);
        const double direction = isFlat ? edge.dy / edge.dx : 2 - edge.dx / edge.dy;
        const double length = isFlat ? edge.dx : edge.dy; // signed: both senses become one
        const double offset = (edge.x * edge.dy - edge.y * edge.dx) / length;
        lines.push_back({direction, offset, int(i)});
        // The two ends of the scale are one direction, taken in opposite senses.
        if (direction > 3 - directionTolerance)
            lines.push_back({direction - 4, -offset, int(i)});
    }
    return lines;
}

namespace {

/// Calls `work` with every longest run of at least two elements that follow one another within the
/// tolerance, until it gives true.
template <typename Iterator, typename Value, typename Work>
bool anyRun(Iterator begin, Iterator end, Value value, double tolerance, Work work)
{
    while (begin != end) {
        Iterator runEnd = begin + 1;
        while (runEnd != end && value(*runEnd) - value(*(runEnd - 1)) <= tolerance)
            ++runEnd;
        if (runEnd - begin > 1 && work(begin, runEnd))
            return true;
        begin = runEnd;
    }
    return false;
}

} // namespace

bool OutlineMeetings::askCollinear()
{
    const auto direction = [](const Line& line) { return line.direction; };
    const auto offset = [](const Line& line) { return line.offset; };

    std::vector<Line> all = lines();
    std::sort(all.begin(), all.end(),
              [](const Line& a, const Line& b) { return a.direction < b.direction; });
    return anyRun(all.begin(), all.end(), direction, directionTolerance,
                  [&](LineIterator begin, LineIterator end) {
                      std::sort(begin, end,
                                [](const Line& a, const Line& b) { return a.offset < b.offset; });
                      return anyRun(begin, end, offset, offsetTolerance * m_reach,
                                    [this](LineIterator first, LineIterator last) {
                                        return askOnOneLine(first, last);
                                    });
                  });
}

/// Whether no rounding can make two edges anything but parallel.
bool OutlineMeetings::areParallel(const Line& a, const Line& b) const
{
    const Edge& edgeA = m_edges[std::size_t(a.edge)];
    const Edge& edgeB = m_edges[std::size_t(b.edge)];
    return (edgeA.dx == 0 && edgeB.dx == 0) || (edgeA.dy == 0 && edgeB.dy == 0)
        || (edgeA.dx == edgeB.dx && edgeA.dy == edgeB.dy)
        || (edgeA.dx == -edgeB.dx && edgeA.dy == -edgeB.dy);
}

bool OutlineMeetings::askOnOneLine(LineIterator begin, LineIterator end)
{
    return askOfOneDirection(begin, end) || askSideBySide(begin, end);
}

/// Asks the pairs whose directions differ by rounding alone.
bool OutlineMeetings::askOfOneDirection(LineIterator begin, LineIterator end)
{
    std::sort(begin, end, [this](const Line& a, const Line& b) {
        if (a.direction != b.direction)
            return a.direction < b.direction;
        return m_edges[std::size_t(a.edge)].length() < m_edges[std::size_t(b.edge)].length();
    });
    LineIterator groupEnd = begin;
    for (LineIterator line = begin; line != end; ++line) {
        if (line == groupEnd) {
            while (groupEnd != end && areParallel(*line, *groupEnd))
                ++groupEnd;
        }
        for (LineIterator other = groupEnd;
             other != end && other->direction - line->direction <= sameDirectionTolerance;
             ++other) {
            if (ask(line->edge, other->edge))
                return true;
        }
    }
    return false;
}

/// Asks the pairs that overlap in x, or in y where the edges are steep.
bool OutlineMeetings::askSideBySide(LineIterator begin, LineIterator end)
{
    const Edge& first = m_edges[std::size_t(begin->edge)];
    const bool isFlat = std::abs(first.dx) >= std::abs(first.dy);
    struct Piece
    {
        double low;
        double high;
        LineIterator line;
    };
    std::vector<Piece> pieces;
    for (LineIterator line = begin; line != end; ++line) {
        const Edge& edge = m_edges[std::size_t(line->edge)];
        const auto [low, high] = isFlat ? std::minmax({edge.line.x1(), edge.line.x2()})
                                        : std::minmax({edge.line.y1(), edge.line.y2()});
        const double more = largeLengthening * edge.length() + padding * m_reach;
        pieces.push_back({low - more, high + more, line});
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const Piece& a, const Piece& b) { return a.low < b.low; });
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece) {
        for (auto other = piece + 1; other != pieces.end() && other->low <= piece->high; ++other) {
            if (!areParallel(*piece->line, *other->line)
                && ask(piece->line->edge, other->line->edge)) {
                return true;
            }
        }
    }
    return false;
}
