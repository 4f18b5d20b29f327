// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QDir>

#ifdef Q_OS_WIN
#include <windows.h>

#include <tlhelp32.h>
#endif

/// What this process holds.
namespace ProcessCounts {

#ifdef Q_OS_WIN

/// Handles, those of open files and connections among them.
inline int files()
{
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return int(count);
}

inline int threads()
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId();
    CloseHandle(snapshot);
    return count;
}

#else

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

#endif

} // namespace ProcessCounts
