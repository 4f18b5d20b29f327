// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPoint>

/// Where the tiles of the project view stand: rows from the left, as many columns as the view is
/// wide.
namespace TileGrid {

/// Columns of a view `viewWidth` pixels wide; at least one.
int columns(int viewWidth);

/// Top left corner of the tile with that index, in scene pixels.
QPoint position(int index, int viewWidth);

/// Height of the scene that ends with the tile of that index, in pixels.
int sceneHeight(int index, int viewWidth);

} // namespace TileGrid
