// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/ElevationModel.h"

#include <QVector3D>
#include <QVector>

/// A terrain as a block of four-sided faces: its surface, and walls down to a level floor. Metres
/// about the middle of the block, x to the east, y to the north, z up.
struct TerrainMesh
{
    /// Heights in the block are so many times those of the terrain.
    static constexpr double heightFactor = 1.6;

    QVector<QVector3D> corners;
    QVector<QVector3D> normals; ///< Of length 1, one for each corner.
    QVector<QVector3D> colours; ///< The terrain's own, 0 to 1, one for each corner.
    QVector<quint32> faces; ///< Four corners each, counter-clockwise seen from outside.
    int surfaceCorners = 0; ///< These come first, those of the walls after them.
};

/// @param step every so many-th post becomes a corner, and the last one
TerrainMesh terrainMesh(const ElevationModel& model, int step);
