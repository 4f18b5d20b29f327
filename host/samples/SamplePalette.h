// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QImage>

/// The picture with a palette of its own of at most 256 colours, chosen by median cut.
QImage withPalette(const QImage& image);
