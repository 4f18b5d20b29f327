// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/TileGrid.h"

#include <algorithm>

namespace TileGrid {

namespace {

constexpr int columnWidth = 210;
constexpr int rowHeight = 220;
constexpr int leftMargin = 32;
constexpr int heightFromLastRow = 363;

} // namespace

int columns(int viewWidth)
{
    return std::max(1, viewWidth / columnWidth);
}

QPoint position(int index, int viewWidth)
{
    const int count = columns(viewWidth);
    return {index % count * columnWidth + leftMargin, index / count * rowHeight};
}

int sceneHeight(int index, int viewWidth)
{
    return position(index, viewWidth).y() + heightFromLastRow;
}

} // namespace TileGrid
