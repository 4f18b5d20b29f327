// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkPoint2D.h>
#include <RkAlgorthm/RkAlgorthmExport.h>

#include <vector>

/// Geographic coordinates to UTM on WGS84. `in`: x latitude, y longitude, degrees. `out`: x
/// easting, y northing, metres, in the same order, all in the zone and hemisphere of the first
/// point, so that an outline across the border of two zones or the equator stays in one piece; the
/// zone follows the UTM rules with the exceptions for Norway and Svalbard. `out` may be the same
/// list as `in`.
///
/// False, with `out` as it was, for an empty list, coordinates that are not finite, a latitude
/// outside [-80, 84], a longitude outside [-180, 180], or a point that the zone's projection takes
/// to infinity.
///
/// Formula: Karney, Transverse Mercator with an accuracy of a few nanometers (2011), as implemented
/// by GeographicLib.
RKALGORTHM_EXPORT bool LatLng2UTM(const std::vector<CRkPoint2D>& in, std::vector<CRkPoint2D>& out);
