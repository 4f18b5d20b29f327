// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/LitTerrain.h"

#include <QOpenGLWidget>

/// Draws a lit terrain with OpenGL 1.x. Shows what the terrain is at the time; call `update()`
/// after a change. The mouse goes to the widget behind.
class GlTerrainView : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// Whether a context of desktop OpenGL can be made here. Without one, a window that holds this
    /// view shows nothing.
    static bool isPossible();

    /// @param terrain outlives the view
    GlTerrainView(const LitTerrain& terrain, QWidget* parent);

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    void drawSky() const;
    void setLight() const;
    void drawMesh();

    const LitTerrain& m_terrain;
    QVector<QVector3D> m_colours; ///< Of the mesh, with `m_blend`.
    float m_blend = -1;
};
