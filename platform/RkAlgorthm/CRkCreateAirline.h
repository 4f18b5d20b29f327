// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkPoint2D.h>
#include <RkAlgorthm/RkAlgorthmExport.h>

#include <vector>

/// Whether a survey area can be split into parts of at most `value` square plane units: the polygon
/// (open ring, either sense) is simple, has at least 3 vertices, and its area exceeds `value`,
/// which is above 0. False for coordinates that are not finite.
RKALGORTHM_EXPORT bool IsBlockPloyCanSegment(const std::vector<CRkPoint2D>& polygon, double value);

/// Planning of flight lines over a survey area.
///
///     CRkCreateAirline airline;
///     std::vector<std::vector<CRkPoint2D>> parts;
///     const bool isSplit = airline.SegmentSurveyArea(polygon, 250000, parts);
class RKALGORTHM_EXPORT CRkCreateAirline
{
public:
    /// Splits the polygon (open ring, either sense) by straight cuts across its longest direction,
    /// which is the long side of its smallest enclosing rectangle, into slices of equal area, as
    /// few as keep each at most `value` square plane units. A slice of a concave polygon may come
    /// as several parts. Each part is a simple open ring without an edge of length 0; neighbours
    /// share the vertices on their cut to the last bit, and together the parts cover the polygon.
    /// Areas are exact to one part in 10^9.
    ///
    /// False, with `parts` empty, when IsBlockPloyCanSegment is false, when more than 10,000 slices
    /// would be needed, and now and then for polygons beyond 1e15 or below 1e-100 units across.
    bool SegmentSurveyArea(std::vector<CRkPoint2D> polygon, double value,
                           std::vector<std::vector<CRkPoint2D>>& parts);
};
