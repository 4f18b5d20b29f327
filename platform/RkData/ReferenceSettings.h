// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkData/RkDataExport.h>

#include <QString>

// What a host's settings page or a test adjusts in this implementation. A value set here wins over
// the environment, and that over the default. Not thread-safe: call from the GUI thread.

/// The folder of all projects, with or without a trailing slash. An empty path takes the value
/// back.
RKDATA_EXPORT void SetProjectDirPath(const QString& path);

/// Frees every block of CRkBlockManager. Pointers to them and to their tasks become invalid.
RKDATA_EXPORT void ClearBlocks();
