// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>
#include <RkAlgorthm/SurveyEnums.h>

/// The distance in metres that an aircraft flies over the area in one task; never negative.
///
/// | aircraft | on its level, with a light camera |
/// |---|---|
/// | fixed wing, light | 60 km |
/// | fixed wing, long range | 150 km |
/// | VTOL, light | 45 km |
/// | VTOL, long range | 100 km |
/// | quadrotor | 15 km |
/// | hexarotor | 12 km |
/// | unknown | 0 |
///
/// A five-lens camera takes 15 % off, a laser scanner 25 %; flying mode 1 (following the terrain)
/// 10 % of what remains; and every metre of height costs 10 m, for climb and descent. Heights below
/// 0 count as 0.
RKALGORTHM_EXPORT double GetSingleTaskMileage(EPlaneType plane, ECameraType camera, int flyingMode,
                                              int height);
