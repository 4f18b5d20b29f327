// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkVector3D.h>
#include <RkAlgorthm/RkAlgorthmExport.h>

#include <vector>

/// The centroid of the area that the ring encloses on the plane of latitude and longitude (x
/// latitude, y longitude, degrees; z of the points does not matter and z of the result is 0). The
/// ring may be open or closed and turn either way. A ring without area, a line or a single point
/// included, gives the mean of its vertices; no points give (0, 0, 0).
///
/// Formula: the centroid of a polygon as the area-weighted mean of its fan of triangles.
RKALGORTHM_EXPORT CRkVector3D GetLatLngGravityByLatLng(const std::vector<CRkVector3D>& points);
