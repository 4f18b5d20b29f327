// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QString>
#include <QStringList>

/// A description of the machine: processor, disks, display adapters, memory and operating system.
/// Each operation asks the system anew and starts no other program. None reports an error: what the
/// system does not tell is 0, an empty text or left as it was. All may be called from any thread.
///
///     QString total, virtualTotal;
///     CRkSystemInfo().GetMemoryInfo(total, virtualTotal); // "16278", "134217727"
class RKBASEUI_EXPORT CRkSystemInfo
{
public:
    CRkSystemInfo();

    /// The first processor's name, for example "Intel(R) Xeon(R) Gold 6230 CPU @ 2.10GHz", its
    /// identifier, for example "Intel64 Family 6 Model 85 Stepping 7", and its clock in MHz as a
    /// whole number; `count` is the number of logical processors of the machine.
    void GetCpuInfo(QString& name, QString& identifier, int& count, QString& mhz);

    /// Appends the names of the disks to `names`. `count` is the number of all kinds of storage
    /// that the system lists, disks or not, and no count of the names: on Windows of device types
    /// on the SCSI bus, elsewhere of block devices.
    void GetDiskInfo(unsigned long& count, QStringList& names);

    /// Appends the names of the display adapters to `names`, leaving out those that cannot be read.
    /// `count` is the length of `names`, or the number of CUDA devices where there are any; then
    /// `memory` is the memory of the last one that tells it, for example "4096MB". Otherwise
    /// `memory` stays as it is.
    void GetDisplayCardInfo(unsigned long& count, QStringList& names, QString& memory);

    /// The physical memory of the machine and the size of the process's address space, both in MiB
    /// as whole numbers without a unit.
    void GetMemoryInfo(QString& total, QString& virtualTotal);

    /// The names of the operating system and its kernel, for example "Windows 10_10.0.17134_X64 ",
    /// with the blank at the end.
    QString GetOSVersion();
};
