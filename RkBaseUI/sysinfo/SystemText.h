// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "sysinfo/Hardware.h"

#include <QByteArray>

/// What the texts of the Linux kernel tell about the machine. Every function bears any text: what
/// it does not find is 0 or empty.
namespace SystemText {

/// A name as devices tell it, without control characters, padding and repeated blanks. What is no
/// UTF-8 becomes the replacement character.
QString clean(const QByteArray& text);

/// From the content of /proc/cpuinfo, of x86 as of ARM processors and, less complete, of others.
Processor processor(const QByteArray& cpuInfo);

/// The total memory in MiB from the content of /proc/meminfo.
quint64 totalMemory(const QByteArray& memInfo);

/// The size of a process's address space in MiB. It ends a page below the next power of 2 above
/// `highAddress`, an address near its end, unless the process is limited to `limit` bytes.
quint64 addressSpace(quint64 highAddress, quint64 pageSize, quint64 limit);

/// The number in an attribute such as "0x10de\n" with at most 32 bits, or -1.
qint64 hexNumber(const QByteArray& text);

} // namespace SystemText
