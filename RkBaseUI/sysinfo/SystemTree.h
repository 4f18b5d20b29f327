// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QList>

/// The files in which a Linux kernel describes the machine. Paths and names are bytes, as the
/// system has them; what cannot be read is empty.
///
///     SystemTree tree;
///     tree.read("/sys/block/sda/device/model"); // "Samsung SSD 860\n"
class SystemTree
{
public:
    /// Below another folder than "/", for example "/tmp/machine", so that another machine can be
    /// told.
    explicit SystemTree(const QByteArray& root = {});

    /// The content of a file, up to 64 MiB.
    QByteArray read(const QByteArray& path) const;

    /// The names in a folder in no order.
    QList<QByteArray> names(const QByteArray& folder) const;

    bool exists(const QByteArray& path) const;

    /// The path below the root as the system knows it.
    QByteArray systemPath(const QByteArray& path) const { return m_root + path; }

private:
    const QByteArray m_root;
};
