// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QString>

/// Whether a project written by that version of the application holds its coordinates in the old
/// datum: true below 1.0.0. A text that begins with no number, an empty one included, is not old.
RKALGORTHM_EXPORT bool SoftwareVersionIsOld(const QString& version);
