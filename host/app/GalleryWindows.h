// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/Gallery.h"

/// Every window of the library and of the host, each in the states that look different. Needs
/// projects below the project root.
QVector<Gallery::Entry> galleryWindows();
