// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QStringList>

#include <optional>

class QByteArray;

/// The devices that the CUDA runtime tells of. It is loaded where it is there and stays loaded; on
/// a machine without one nothing happens.
namespace CudaRuntime {

struct Devices
{
    int count = 0;
    std::optional<quint64> memory; ///< Bytes of the last device whose properties could be read.
};

/// Asks the first of the libraries that can be loaded and counts devices. Nothing when there is
/// none or when it fails.
std::optional<Devices> devices(const QStringList& libraries);

/// Brings what the runtime tells into the description of the display adapters: the count of its
/// devices in the place of `count` when there is at least one, and `memory` as "4096MB".
void describe(const QStringList& libraries, unsigned long& count, QString& memory);

/// Paths of the files libcudart.so and libcudart.so.<version> in the cache of the Linux dynamic
/// linker, the newest first.
QStringList librariesInCache(const QByteArray& cache);

/// Sorted by the numbers in the file names, the highest first: libcudart.so.12 before
/// libcudart.so.11.0, and last the name without a number.
QStringList newestFirst(QStringList paths);

/// The device memory in a filled record of device properties, of whatever version of the runtime.
/// It lies behind the name, and from version 10 on behind the name and the device's ids.
quint64 memoryOf(const char* record, bool isNewer);

/// Bytes that hold the record of any version; the longest is about a kilobyte.
constexpr int recordSize = 16384;

/// Whether the record is in the layout of version 10 and later.
bool isNewerRecord(const char* record);

} // namespace CudaRuntime
