// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// The files of a machine in a temporary folder, from a text that tells them. A line "@ <path>"
/// begins a file whose content follows, "@/ <path>" makes a folder, and "# " begins a comment
/// before the first file.
///
///     Machine machine;
///     machine.add(readFile("data/server.machine"));
///     LinuxProbes::disks(SystemTree(machine.root()));
class Machine
{
public:
    Machine() = default;
    ~Machine();
    Q_DISABLE_COPY(Machine)

    /// False when a file cannot be written or nothing was told.
    bool add(const QByteArray& description);

    bool addFile(const QByteArray& path, const QByteArray& content);
    bool addFolder(const QByteArray& path);
    bool addLink(const QByteArray& path, const QByteArray& target);

    /// The path with the numbers from 0 behind it: one file with many names, which costs the disk
    /// little.
    bool addManyNames(const QByteArray& path, int count);

    /// Without a slash at the end.
    QByteArray root() const;

private:
    QTemporaryDir m_folder;
};
