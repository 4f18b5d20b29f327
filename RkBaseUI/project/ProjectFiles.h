// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

/// What the user's actions do to project files. A project named N is the file N.proj in the folder
/// N of the project root; a companion file with its flights may stand beside it. A name that would
/// lead out of the root is refused. The name in the file stays the former one when the new one
/// holds a quote without a partner (see ProjectStoreSql.h).
namespace ProjectFiles {

/// Makes the folder of a new project and gives the path of its file, which is not made.
QString prepare(const QString& name);

/// Copies a project file, without its companion, and gives the copy the new name and identifiers of
/// its own.
///
/// @return the path of the copy; empty when nothing was copied, and when the copy cannot be opened,
/// which then stays as it is
QString copy(const QString& projectFile, const QString& newName);

/// Moves a project file and its companion to the new name and writes the name into the file.
///
/// @param onFailure called when a file cannot be moved, before the folder that was made for it is
/// removed and a file that was moved is moved back
/// @return the path of the renamed file; empty on failure
QString rename(const QString& projectFile, const QString& newName,
               const std::function<void()>& onFailure);

} // namespace ProjectFiles
