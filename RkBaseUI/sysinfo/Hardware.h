// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

/// The first processor of a machine, and how many logical ones there are.
struct Processor
{
    QString name;
    QString identifier; ///< For example "Intel64 Family 6 Model 85 Stepping 7".
    int count = 0;
    QString mhz; ///< A whole number.
};

/// The disks of a machine.
struct Disks
{
    unsigned long count = 0; ///< Of all kinds of storage, disks or not.
    QStringList names; ///< Of the disks alone.
};
