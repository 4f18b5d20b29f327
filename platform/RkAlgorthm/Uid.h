// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QString>

/// The text of a UUID without its braces, hyphens and letter case kept:
/// {6f9619ff-8b86-d011-b42d-00c04fc964ff} becomes 6f9619ff-8b86-d011-b42d-00c04fc964ff.
RKALGORTHM_EXPORT QString GetUidVariant(const QString& bracedUuid);
