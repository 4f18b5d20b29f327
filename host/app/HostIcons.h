// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QColor>
#include <QCursor>
#include <QIcon>

/// Line drawings for the host's own buttons.
namespace HostIcons {

enum class Shape {
    Projects,
    Language,
    Plus,
    Minus,
    Block,
    Project,
    Country,
    Whole,
    Map,
    Terrain,
    Scene,
    Computer,
    Tools,
    Earthwork,
    Light,
    Antenna,
    Coordinates,
    Turn,
    Search,
    Pin,
    Locate,
    Outline,
    Close
};

/// The drawing in one colour, 20 pixels wide at every scale of the screen.
QIcon icon(Shape shape, const QColor& colour);

/// The drawing as the shape of the mouse's cursor, to be seen on every ground.
QCursor cursor(Shape shape);

} // namespace HostIcons
