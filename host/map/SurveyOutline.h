// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPolygonF>
#include <QVector>

#include <optional>

/// The outline of a survey area as somebody draws it on the map: an open ring of degrees, x
/// latitude, y longitude. It is measured on the UTM plane of its first vertex, in metres.
///
///     if (const auto check = SurveyOutline::check(outline, 1e6))
///         show(check->area);
namespace SurveyOutline {

/// Why an outline can or cannot be split into parts.
enum class Splitting {
    Possible,
    Crossing, ///< It crosses itself.
    SmallEnough, ///< It is no larger than one part.
    Overlapping ///< Edges lie on one another or enclose nothing.
};

/// What is known of an outline.
struct Check
{
    bool isConvex = false;
    bool crossesItself = false; ///< Or touches itself.
    double area = 0; ///< Square metres; of no meaning where the outline crosses itself.
    double perimeter = 0; ///< Metres.
    Splitting splitting = Splitting::Overlapping;
};

/// Nothing for fewer than 3 vertices, and for an outline that UTM does not reach.
///
/// @param largestPart square metres
std::optional<Check> check(const QPolygonF& outline, double largestPart);

struct Parts
{
    QVector<QPolygonF> outlines; ///< Degrees, as the whole.
    double largest = 0; ///< The area of the largest, square metres.
};

/// The outline in parts of about the same area, none larger than `largestPart`; neighbours follow
/// one another. No parts where it cannot be split.
///
/// @param largestPart square metres
Parts split(const QPolygonF& outline, double largestPart);

} // namespace SurveyOutline
