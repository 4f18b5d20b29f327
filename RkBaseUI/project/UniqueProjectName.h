// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QStringList>

#include <functional>

/// Names of projects against the files that a view shows, in the view's order. A project is known
/// by its file's complete base name. The files count up to the first one that no longer exists;
/// what stands behind it is not looked at.
namespace UniqueProjectName {

using FileExists = std::function<bool(const QString& file)>;

/// `base` when it is free, else `base`_1, `base`_2 and so on, the first that is free.
QString make(const QString& base, const QStringList& projectFiles, const FileExists& fileExists);

/// Whether a project of that name is there.
bool isTaken(const QString& name, const QStringList& projectFiles, const FileExists& fileExists);

} // namespace UniqueProjectName
