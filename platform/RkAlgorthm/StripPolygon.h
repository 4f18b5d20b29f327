// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkPoint2D.h>
#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QList>

#include <vector>

/// The outline (open ring) of the strip that runs along a centre line between two offsets, in the
/// unit of the line; an offset below 0 lies to the left of the line's direction, above 0 to the
/// right. The order of the two does not matter, and both may lie on one side. Ends are cut square,
/// corners are mitred, and bevelled on their outer side where the line turns by more than 120
/// degrees. Points that repeat the one before are passed over.
///
/// `problems` gets, in ascending order, the indices of those vertices of `line` at which the line
/// folds back on itself within the strip: the ends of every segment that is too short for its
/// corners, or whose piece of the strip lies over that of a segment further on. The outline may
/// then cross itself; without problems it does not.
///
/// False, with both lists empty, for fewer than two different points, offsets that are equal, or
/// numbers that are not finite.
RKALGORTHM_EXPORT bool CreateStripPolygon(const std::vector<CRkPoint2D>& line, double left,
                                          double right, std::vector<CRkPoint2D>& outline,
                                          QList<int>& problems);
