// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/RegistryHardware.h"

#include <QSettings>

namespace RegistryHardware {

Processor processor(QSettings& key)
{
    const QStringList processors = key.childGroups();
    Processor result;
    result.count = processors.size();
    if (processors.isEmpty())
        return result;
    key.beginGroup(processors.first());
    result.mhz = key.value(QStringLiteral("~MHz")).toString();
    result.name = key.value(QStringLiteral("ProcessorNameString")).toString();
    result.identifier = key.value(QStringLiteral("Identifier")).toString();
    key.endGroup();
    return result;
}

Disks disks(QSettings& key)
{
    const QStringList types = key.childGroups();
    Disks result;
    // Of all types, so that optical drives count as well.
    result.count = static_cast<unsigned long>(types.size());
    for (const QString& type : types) {
        if (!type.contains(QLatin1String("Disk")))
            continue;
        key.beginGroup(type);
        const QStringList devices = key.childGroups();
        for (const QString& device : devices) {
            key.beginGroup(device);
            result.names.append(key.value(QStringLiteral("FriendlyName")).toString());
            key.endGroup();
        }
        key.endGroup();
    }
    return result;
}

} // namespace RegistryHardware
