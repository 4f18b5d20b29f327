// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// Questions about paths that come from names. They ask no file system.
namespace FolderPaths {

/// What stands behind the root in a path that lies below it; empty when it does not, with all ".."
/// and repeated separators gone from both. A path may begin at the current folder.
QString below(const QString& root, const QString& path);

/// Whether each part of a path between its separators, of both kinds, can name a folder on
/// Windows. No name has one of < > : " | ? * or a control character or ends in a dot or blank, and
/// "NUL", "com1.old" and the like are devices in every folder.
bool areWindowsFolders(const QString& path);

} // namespace FolderPaths
