// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QColor>
#include <QIcon>

/// Line drawings for the host's own buttons.
namespace HostIcons {

enum class Shape { Projects, Language, Plus, Minus, Block, Project, Country };

/// The drawing in one colour, 20 pixels wide at every scale of the screen.
QIcon icon(Shape shape, const QColor& colour);

} // namespace HostIcons
