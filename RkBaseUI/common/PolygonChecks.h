// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkPoint2D.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QPointF>

#include <vector>

// Checks of a survey area's polygon before flight lines are planned over it. A polygon is the list
// of its vertices in order, in any plane unit; the edge from the last vertex to the first is
// implied.
//
//     if (isSelfIntersection(outline))
//         warn();
//     else if (isAreaCanSegment(polygon, largestArea))
//         SegmentBlockArea(polygon, largestArea, parts);

/// Whether all turns of the outline have the same sense. Fewer than 4 vertices always count as
/// convex. A straight vertex or a repeated one counts as a turn to the negative side, so it keeps
/// an outline convex whose turns are negative, and spoils one whose turns are positive. Turns are
/// computed in doubles, without a tolerance.
RKBASEUI_EXPORT bool isConvex(std::vector<QPointF> polygon);

/// Whether some edge meets more than two of the others. Every edge of a simple outline meets its
/// two neighbours; one more is a crossing or a touching. Meetings are those of QLineF::intersects:
/// parallel edges never meet, so edges that lie on one another are not found, and a meeting at
/// exactly (0, 0) does not count.
///
/// Time: grows little more than linearly on ordinary outlines, quadratically in the number of edges
/// that lie on one another, of long ones that all but meet in one place, and of those on one line
/// that have exactly the same direction but other lengths, unless that is along an axis or at 45
/// degrees to it. The same holds where a vertex is about 1e8 times as far away as neighbouring
/// edges are from one another, for coordinates beyond 1e100, edges shorter than 1e-100, and where
/// many vertices are not numbers.
RKBASEUI_EXPORT bool isSelfIntersection(std::vector<QPointF> polygon);

/// Whether the algorithm library can split the polygon: IsBlockPloyCanSegment(polygon, value).
RKBASEUI_EXPORT bool isAreaCanSegment(const std::vector<CRkPoint2D>& polygon, double value);

/// Splits the polygon: CRkCreateAirline::SegmentSurveyArea(polygon, value, parts).
RKBASEUI_EXPORT bool SegmentBlockArea(std::vector<CRkPoint2D> polygon, double value,
                                      std::vector<std::vector<CRkPoint2D>>& parts);
