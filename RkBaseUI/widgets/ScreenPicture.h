// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPixmap>

/// The picture in the density of the sharpest screen: where that is above 1, the twin of the file
/// whose name has "@2x" before the suffix, if there is one. Icons and style sheets look for it by
/// themselves, pixmaps do not. Null when there is no picture.
QPixmap screenPicture(const QString& path);
