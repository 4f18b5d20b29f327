// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>
#include <RkBaseUI/ToolTypes.h>

#include <QString>

class QTranslator;

// Small helpers that the library shares with its host. None keeps state or reports errors; all may
// be called from any thread.

/// A new translator, loaded from `fileName` in the folder "lang" beside the executable. The suffix
/// ".qm" may be left out. Never null: when the file is missing or damaged the translator is empty
/// and translates nothing. The caller owns it and installs it.
RKBASEUI_EXPORT QTranslator* CreateTranslator(const QString& fileName);

/// Whether `name` cannot be a file name: it is empty, or holds one of \ / : * ? " < > |.
RKBASEUI_EXPORT bool FileNameContainsNotAllowChar(const QString& name);

/// A size in the largest unit that leaves at least 1, in steps of 1024 and cut off to a whole
/// number: 1023B, 1KB, 3MB, 1GB, 1TB, 1PB. Negative sizes stay in bytes. From 2^60 bytes on the
/// unit's letter is U+0000.
RKBASEUI_EXPORT QString getHumanReadableFileSize(qint64 bytes);

/// The text without its braces and hyphens; letter case is kept.
/// {6F9619FF-8B86-D011-B42D-00C04FC964FF} becomes 6F9619FF8B86D011B42D00C04FC964FF.
RKBASEUI_EXPORT QString UidToString(const QString& uid);

/// The kind, 1 to 5, that a tool belongs to; 0 for a tool that belongs to none.
RKBASEUI_EXPORT EToolKind GetToolKind(EToolType type);
