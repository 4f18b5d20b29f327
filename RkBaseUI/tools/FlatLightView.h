// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "tools/LightDirection.h"

#include <QWidget>

/// The picture of a light's direction without OpenGL: sphere, line and marker as the 3-D view shows
/// them, plainly drawn. The mouse goes to the widget behind.
class FlatLightView : public QWidget
{
    Q_OBJECT

public:
    /// `radius` is that of the sphere, in scene units.
    FlatLightView(float radius, QWidget* parent);

    /// Angles that are not finite show the sphere alone.
    void setAngles(rk::LightAngles angles);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const float m_radius;
    rk::LightAngles m_angles;
};
