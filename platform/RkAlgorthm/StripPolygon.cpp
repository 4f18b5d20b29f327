// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "StripPolygon.h"

#include "Geos.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace {

using Points = std::vector<CRkPoint2D>;

CRkPoint2D moved(const CRkPoint2D& point, const CRkPoint2D& direction, double distance)
{
    return CRkPoint2D(point.x() + distance * direction.x(), point.y() + distance * direction.y());
}

double dot(const CRkPoint2D& a, const CRkPoint2D& b)
{
    return a.x() * b.x() + a.y() * b.y();
}

CRkPoint2D difference(const CRkPoint2D& a, const CRkPoint2D& b)
{
    return CRkPoint2D(a.x() - b.x(), a.y() - b.y());
}

/// A centre line without repeated points.
class CentreLine
{
public:
    explicit CentreLine(const Points& line)
    {
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (!m_points.empty() && m_points.back() == line[i])
                continue;
            m_points.push_back(line[i]);
            m_sources.push_back(int(i));
        }
        for (std::size_t i = 0; i < segmentCount(); ++i) {
            const CRkPoint2D along = segment(i);
            const double length = std::hypot(along.x(), along.y());
            m_rightwards.emplace_back(along.y() / length, -along.x() / length);
        }
    }

    std::size_t segmentCount() const { return m_points.empty() ? 0 : m_points.size() - 1; }
    CRkPoint2D segment(std::size_t i) const { return difference(m_points[i + 1], m_points[i]); }

    /// The index, in the list that the line was made of, of its i-th point.
    int source(std::size_t i) const { return m_sources[i]; }

    /// Whether the line goes back on itself at its i-th point, so that no mitre reaches far enough.
    bool turnsBack(std::size_t i) const
    {
        return i > 0 && i < segmentCount()
            && 1 + dot(m_rightwards[i - 1], m_rightwards[i]) <= 1e-12;
    }

    /// The points at that offset from the i-th point: one, or two where a corner is bevelled.
    Points atOffset(std::size_t i, double offset) const
    {
        if (i == 0)
            return {moved(m_points.front(), m_rightwards.front(), offset)};
        if (i == segmentCount())
            return {moved(m_points.back(), m_rightwards.back(), offset)};

        const CRkPoint2D& before = m_rightwards[i - 1];
        const CRkPoint2D& after = m_rightwards[i];
        const double cosine = dot(before, after);
        const bool turnsRight = before.x() * after.y() < before.y() * after.x();
        const bool isOuter = (offset > 0) != turnsRight;
        if (turnsBack(i) || (isOuter && cosine < bevelBelowCosine))
            return {moved(m_points[i], before, offset), moved(m_points[i], after, offset)};
        const CRkPoint2D sum(before.x() + after.x(), before.y() + after.y());
        return {moved(m_points[i], sum, offset / (1 + cosine))};
    }

private:
    static constexpr double bevelBelowCosine = -0.5; // a turn by more than 120 degrees

    Points m_points;
    std::vector<int> m_sources;
    Points m_rightwards; ///< unit vectors, one a segment
};

/// The line at one offset, and which segments of the centre line it runs backwards along.
struct Side
{
    Side(const CentreLine& line, double offset)
    {
        for (std::size_t i = 0; i <= line.segmentCount(); ++i)
            corners.push_back(line.atOffset(i, offset));
    }

    bool isFolded(const CentreLine& line, std::size_t segment) const
    {
        const CRkPoint2D along = difference(corners[segment + 1].front(), corners[segment].back());
        return dot(along, line.segment(segment)) <= 0;
    }

    std::vector<Points> corners; ///< by vertex of the centre line
};

Points outlineBetween(const Side& left, const Side& right)
{
    Points outline;
    for (const Points& corner : left.corners)
        outline.insert(outline.end(), corner.begin(), corner.end());
    for (auto corner = right.corners.rbegin(); corner != right.corners.rend(); ++corner)
        outline.insert(outline.end(), corner->rbegin(), corner->rend());
    return outline;
}

/// The segments whose pieces of the strip lie over one another, neighbours excepted.
class Overlaps
{
public:
    Overlaps(const Geos& geos, const Side& left, const Side& right, std::size_t segmentCount)
        : m_geos(geos)
    {
        for (std::size_t i = 0; i < segmentCount; ++i) {
            // The bevel of a corner belongs to the segment before it.
            Points piece = {right.corners[i].back(), left.corners[i].back()};
            const Points& leftEnd = left.corners[i + 1];
            const Points& rightEnd = right.corners[i + 1];
            piece.insert(piece.end(), leftEnd.begin(), leftEnd.end());
            piece.insert(piece.end(), rightEnd.rbegin(), rightEnd.rend());
            m_pieces.push_back(geos.polygon(piece));
        }
    }

    std::set<std::size_t> segments() const
    {
        std::set<std::size_t> found;
        GEOSSTRtree* const tree = GEOSSTRtree_create_r(m_geos.context(), 10);
        for (const Geos::Geometry& piece : m_pieces) {
            void* const item = const_cast<Geos::Geometry*>(&piece);
            GEOSSTRtree_insert_r(m_geos.context(), tree, piece.get(), item);
        }
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            Query query = {this, i, &found};
            GEOSSTRtree_query_r(m_geos.context(), tree, m_pieces[i].get(), compare, &query);
        }
        GEOSSTRtree_destroy_r(m_geos.context(), tree);
        return found;
    }

private:
    struct Query
    {
        const Overlaps* overlaps;
        std::size_t piece;
        std::set<std::size_t>* found;
    };

    static void compare(void* item, void* data)
    {
        const Query& query = *static_cast<const Query*>(data);
        const Overlaps& self = *query.overlaps;
        const std::size_t other =
            std::size_t(static_cast<const Geos::Geometry*>(item) - self.m_pieces.data());
        if (other <= query.piece + 1)
            return;
        const GEOSContextHandle_t context = self.m_geos.context();
        const char* const interiorsMeet = "T********";
        if (GEOSRelatePattern_r(context, self.m_pieces[query.piece].get(),
                                self.m_pieces[other].get(), interiorsMeet)
            == 1) {
            query.found->insert(query.piece);
            query.found->insert(other);
        }
    }

    const Geos& m_geos;
    std::vector<Geos::Geometry> m_pieces;
};

} // namespace

bool CreateStripPolygon(const std::vector<CRkPoint2D>& line, double left, double right,
                        std::vector<CRkPoint2D>& outline, QList<int>& problems)
{
    outline.clear();
    problems.clear();
    if (!areFinite(line) || !std::isfinite(left) || !std::isfinite(right) || left == right)
        return false;
    const CentreLine centre(line);
    if (centre.segmentCount() == 0)
        return false;

    const Side leftSide(centre, std::min(left, right));
    const Side rightSide(centre, std::max(left, right));
    outline = outlineBetween(leftSide, rightSide);

    std::set<std::size_t> folded;
    for (std::size_t i = 0; i < centre.segmentCount(); ++i) {
        if (leftSide.isFolded(centre, i) || rightSide.isFolded(centre, i) || centre.turnsBack(i)
            || centre.turnsBack(i + 1)) {
            folded.insert(i);
        }
    }
    const Geos geos;
    if (!geos.isValid(geos.polygon(outline)))
        folded.merge(Overlaps(geos, leftSide, rightSide, centre.segmentCount()).segments());

    std::set<int> vertices;
    for (const std::size_t segment : folded) {
        vertices.insert(centre.source(segment));
        vertices.insert(centre.source(segment + 1));
    }
    problems = QList<int>(vertices.begin(), vertices.end());
    return true;
}
