// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/CudaRuntime.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QVector>

#include <algorithm>
#include <cstring>
#include <vector>

#ifdef Q_OS_WIN
#define RK_CUDA_CALL __stdcall
#else
#define RK_CUDA_CALL
#endif

namespace CudaRuntime {

namespace {

using CountFunction = int(RK_CUDA_CALL*)(int* count);
using PropertiesFunction = int(RK_CUDA_CALL*)(void* record, int device);

constexpr int success = 0;
constexpr int mostDevices = 1024; // A runtime that tells of more is broken.

// Where the record has what, in bytes. All versions begin with the name. Until version 9 follow
// size_t totalGlobalMem, size_t sharedMemPerBlock, int regsPerBlock, int warpSize; since then come
// 16 bytes of uuid, 8 of luid, an unsigned mask and 4 bytes of padding before them.
constexpr int nameSize = 256;
constexpr int idsSize = 32;
constexpr int warpSizeBehindName = 20;

template <typename Number>
Number numberAt(const char* record, int offset)
{
    Number number;
    std::memcpy(&number, record + offset, sizeof number);
    return number;
}

/// The functions of a loaded runtime.
struct Runtime
{
    CountFunction count = nullptr;
    PropertiesFunction properties = nullptr; ///< May be missing.
    bool isNewer = false; ///< Whether its records are known to be.
};

std::optional<Runtime> load(const QString& path)
{
    QLibrary library(path); // Never unloaded: the runtime has threads and exit handlers.
    Runtime runtime;
    runtime.count = reinterpret_cast<CountFunction>(library.resolve("cudaGetDeviceCount"));
    if (!runtime.count)
        return std::nullopt;
    // Version 12 has both names, the plain one for programs built before it.
    runtime.properties =
        reinterpret_cast<PropertiesFunction>(library.resolve("cudaGetDeviceProperties_v2"));
    runtime.isNewer = runtime.properties != nullptr;
    if (!runtime.properties) {
        runtime.properties =
            reinterpret_cast<PropertiesFunction>(library.resolve("cudaGetDeviceProperties"));
    }
    return runtime;
}

QVector<int> versionOf(const QString& path)
{
    QVector<int> numbers;
    const QString name = QFileInfo(path).fileName();
    bool isInNumber = false;
    // The 64 of cudart64_12.dll is no version.
    for (int at = std::max(name.indexOf(QLatin1Char('_')), name.indexOf(QLatin1String(".so")));
         at >= 0 && at < name.size(); ++at) {
        const QChar c = name.at(at);
        const bool isDigit = c >= QLatin1Char('0') && c <= QLatin1Char('9');
        if (isDigit && !isInNumber)
            numbers.append(0);
        if (isDigit)
            numbers.last() = std::min(numbers.last(), 99999999) * 10 + c.digitValue();
        isInNumber = isDigit;
    }
    return numbers;
}

} // namespace

bool isNewerRecord(const char* record)
{
    constexpr int warpSize = 32; // Of every CUDA device.
    return numberAt<int>(record, nameSize + warpSizeBehindName) != warpSize;
}

quint64 memoryOf(const char* record, bool isNewer)
{
    return numberAt<quint64>(record, isNewer ? nameSize + idsSize : nameSize);
}

std::optional<Devices> devices(const QStringList& libraries)
{
    std::optional<Runtime> runtime;
    for (int i = 0; i < libraries.size() && !runtime; ++i)
        runtime = load(libraries.at(i));
    Devices result;
    if (!runtime || runtime->count(&result.count) != success)
        return std::nullopt;
    if (!runtime->properties)
        return result;
    std::vector<quint64> buffer(recordSize / sizeof(quint64));
    char* record = reinterpret_cast<char*>(buffer.data());
    for (int device = 0; device < std::min(result.count, mostDevices); ++device) {
        std::fill(buffer.begin(), buffer.end(), 0);
        if (runtime->properties(record, device) == success)
            result.memory = memoryOf(record, runtime->isNewer || isNewerRecord(record));
    }
    return result;
}

void describe(const QStringList& libraries, unsigned long& count, QString& memory)
{
    const std::optional<Devices> found = devices(libraries);
    if (!found || found->count < 1)
        return;
    count = static_cast<unsigned long>(found->count);
    if (found->memory)
        memory = QStringLiteral("%1MB").arg(*found->memory >> 20);
}

QStringList librariesInCache(const QByteArray& cache)
{
    QStringList paths;
    const QByteArray name("/libcudart.so");
    for (int at = cache.indexOf(name); at >= 0; at = cache.indexOf(name, at + 1)) {
        // The paths stand between zero bytes.
        const int from = cache.lastIndexOf('\0', at) + 1;
        const int to = cache.indexOf('\0', at);
        const char next = at + name.size() < cache.size() ? cache.at(at + name.size()) : '\0';
        if (to >= 0 && cache.at(from) == '/' && (next == '\0' || next == '.'))
            paths.append(QFile::decodeName(cache.mid(from, to - from)));
    }
    paths.removeDuplicates();
    return newestFirst(paths);
}

QStringList newestFirst(QStringList paths)
{
    std::stable_sort(paths.begin(), paths.end(), [](const QString& left, const QString& right) {
        const QVector<int> leftVersion = versionOf(left);
        const QVector<int> rightVersion = versionOf(right);
        return std::lexicographical_compare(rightVersion.begin(), rightVersion.end(),
                                            leftVersion.begin(), leftVersion.end());
    });
    return paths;
}

} // namespace CudaRuntime
