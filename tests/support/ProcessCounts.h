// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QDir>

/// What this process holds; 0 where the system does not tell.
namespace ProcessCounts {

inline int entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
}

/// Open files, connections included.
inline int files()
{
    return entries(QStringLiteral("/proc/self/fd"));
}

inline int threads()
{
    return entries(QStringLiteral("/proc/self/task"));
}

} // namespace ProcessCounts
