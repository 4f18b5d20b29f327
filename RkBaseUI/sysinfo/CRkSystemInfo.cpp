// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/CRkSystemInfo.h"

#include <QSysInfo>

// The operations that differ between operating systems are in SystemInfo_<system>.cpp.

CRkSystemInfo::CRkSystemInfo() = default;

QString CRkSystemInfo::GetOSVersion()
{
    // Whoever reads these lines knows them with the blank, and with X64 for every machine.
    return QSysInfo::prettyProductName() + QLatin1Char('_') + QSysInfo::kernelVersion()
        + QStringLiteral("_X64 ");
}
