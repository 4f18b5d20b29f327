// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkVector3D.h>

#include <vector>

class QString;

/// The points of a survey area's outline text, "lat,lng;lat,lng;...", in degrees: x latitude, y
/// longitude, z 0. A piece counts when it has exactly two parts and both are finite numbers; others
/// are left out.
std::vector<CRkVector3D> parseOutline(const QString& text);
