// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

/// What the library tells about this computer.
struct SystemValues
{
    QString processorName;
    QString processorIdentifier;
    int processorCount = 0;
    QString processorMhz;
    unsigned long storageCount = 0;
    QStringList diskNames;
    unsigned long displayCount = 0;
    QStringList displayNames;
    QString graphicsMemory;
    QString memory; ///< In MiB.
    QString addressSpace; ///< In MiB.
    QString operatingSystem;
};

/// Asks the system; on any thread.
SystemValues gatherSystemValues();
