// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/ElevationModel.h"

/// A square kilometre of made-up terrain, the same on every machine: a hill and a ridge above a
/// gentle slope with small-scale relief, and a pit. 200 x 200 posts, 5 metres apart.
ElevationModel sampleTerrain();
