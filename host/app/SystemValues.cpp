// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/SystemValues.h"

#include <RkBaseUI/CRkSystemInfo.h>

SystemValues gatherSystemValues()
{
    CRkSystemInfo info;
    SystemValues values;
    info.GetCpuInfo(values.processorName, values.processorIdentifier, values.processorCount,
                    values.processorMhz);
    info.GetDiskInfo(values.storageCount, values.diskNames);
    info.GetDisplayCardInfo(values.displayCount, values.displayNames, values.graphicsMemory);
    info.GetMemoryInfo(values.memory, values.addressSpace);
    values.operatingSystem = info.GetOSVersion();
    return values;
}
