// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QColor>
#include <QVariant>
#include <QVector3D>

/// The light of a 3-D view and how the ground answers to it.
struct TerrainLight
{
    QVector3D direction; ///< Of length 1, to the light; null when there is none.
    float ambient = 0; ///< Coefficients, 0 to 1.
    float diffuse = 0;
    float specular = 0;
    QColor colour;
    QColor specularColour;
    float shininess = 0; ///< Within 0 to 128, the range of OpenGL.
    float blend = 0; ///< From ground of one colour, 0, to the colours of the terrain, 1.
};

/// Reads the ten elements that the dialog of the light sends: position x, y, z; ambient, diffuse
/// and specular coefficients; light and specular colours; shininess; blend. What is missing or out
/// of range is brought into the range. The light is far away: only the direction of the position
/// counts.
TerrainLight readLight(const QVariantList& record);

/// Colour of the ground, each component 0 to 1, by the same formula as OpenGL's lighting.
///
/// @param normal,toEye of length 1
/// @param ground colour of the ground, each component 0 to 1
QVector3D litColour(const TerrainLight& light, const QVector3D& normal, const QVector3D& toEye,
                    const QVector3D& ground);

/// Each component 0 to 1.
QVector3D components(const QColor& colour);
