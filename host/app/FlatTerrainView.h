// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/LitTerrain.h"

#include <QWidget>

/// Draws a lit terrain where there is no OpenGL. Shows what the terrain is at the time; call
/// `update()` after a change. The mouse goes to the widget behind.
class FlatTerrainView : public QWidget
{
    Q_OBJECT

public:
    /// @param terrain outlives the view
    FlatTerrainView(const LitTerrain& terrain, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const LitTerrain& m_terrain;
};
