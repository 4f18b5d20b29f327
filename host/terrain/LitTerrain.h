// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/OrbitCamera.h"
#include "terrain/TerrainLight.h"
#include "terrain/TerrainMesh.h"

class QPainter;

/// What a 3-D view of a terrain shows.
struct LitTerrain
{
    TerrainMesh mesh;
    TerrainLight light;
    OrbitCamera camera;
    double covered = 0; ///< See OrbitCamera::projection.
};

/// Of the ground behind the terrain, at the top and at the bottom of the picture.
extern const QColor skyTop;
extern const QColor skyBottom;

/// The colour of each corner of the mesh before it is lit: the light's blend of ground of one
/// colour and the terrain's own.
QVector<QVector3D> groundColours(const TerrainMesh& mesh, float blend);

/// Draws the terrain without OpenGL, each face in one colour, the farther ones first.
void drawLitTerrain(QPainter& painter, const LitTerrain& terrain, const QSizeF& size);
