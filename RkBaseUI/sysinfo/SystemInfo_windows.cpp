// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/CRkSystemInfo.h"
#include "sysinfo/CudaRuntime.h"
#include "sysinfo/RegistryHardware.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

// The order matters: the others need what this one brings.
#include <windows.h>

#include <setupapi.h>

namespace {

constexpr DWORD descriptionSize = 128;

/// {4D36E968-E325-11CE-BFC1-08002BE10318}, the setup class of display adapters.
constexpr GUID displayClass = {
    0x4D36E968, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};

QStringList displayAdapters()
{
    // The set goes with the process; it is small, and released nowhere.
    const HDEVINFO devices = ::SetupDiGetClassDevsW(&displayClass, nullptr, nullptr, DIGCF_PRESENT);
    char classDescription[descriptionSize] = {};
    ::SetupDiGetClassDescriptionA(&displayClass, classDescription, descriptionSize, nullptr);
    QStringList names;
    SP_DEVINFO_DATA device = {};
    device.cbSize = sizeof device;
    for (DWORD index = 0; ::SetupDiEnumDeviceInfo(devices, index, &device); ++index) {
        char description[descriptionSize] = {};
        const BOOL isRead = ::SetupDiGetDeviceRegistryPropertyA(
            devices, &device, SPDRP_DEVICEDESC, nullptr, reinterpret_cast<BYTE*>(description),
            descriptionSize, nullptr);
        if (!isRead)
            continue;
        const uint length = qstrnlen(description, descriptionSize); // It may fill the buffer.
        names.append(QString::fromLocal8Bit(description, static_cast<int>(length)));
    }
    return names;
}

void appendRuntimes(const QString& folder, QStringList& paths)
{
    const QString pattern = QDir::toNativeSeparators(folder + QStringLiteral("/cudart64_*.dll"));
    WIN32_FIND_DATAW found = {};
    const HANDLE search =
        ::FindFirstFileW(reinterpret_cast<const wchar_t*>(pattern.utf16()), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    QStringList names;
    do {
        names.append(folder + QLatin1Char('/') + QString::fromWCharArray(found.cFileName));
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    paths += CudaRuntime::newestFirst(names);
}

/// Beside the program and in the folders where programs are found.
QStringList cudaLibraries()
{
    QStringList paths;
    if (QCoreApplication::instance())
        appendRuntimes(QCoreApplication::applicationDirPath(), paths);
    const QStringList folders =
        qEnvironmentVariable("PATH").split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& folder : folders) {
        if (QDir::isAbsolutePath(folder)) // Elsewhere anybody could put a library.
            appendRuntimes(QDir::fromNativeSeparators(folder), paths);
    }
    return paths;
}

} // namespace

void CRkSystemInfo::GetCpuInfo(QString& name, QString& identifier, int& count, QString& mhz)
{
    QSettings key(
        QStringLiteral(R"(HKEY_LOCAL_MACHINE\HARDWARE\DESCRIPTION\System\CentralProcessor)"),
        QSettings::NativeFormat);
    const Processor processor = RegistryHardware::processor(key);
    name = processor.name;
    identifier = processor.identifier;
    count = processor.count;
    mhz = processor.mhz;
}

void CRkSystemInfo::GetDiskInfo(unsigned long& count, QStringList& names)
{
    QSettings key(QStringLiteral(R"(HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Enum\SCSI)"),
                  QSettings::NativeFormat);
    const Disks disks = RegistryHardware::disks(key);
    count = disks.count;
    names += disks.names;
}

void CRkSystemInfo::GetDisplayCardInfo(unsigned long& count, QStringList& names, QString& memory)
{
    names += displayAdapters();
    count = static_cast<unsigned long>(names.size());
    CudaRuntime::describe(cudaLibraries(), count, memory);
}

void CRkSystemInfo::GetMemoryInfo(QString& total, QString& virtualTotal)
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    ::GlobalMemoryStatusEx(&status);
    total = QString::number(status.ullTotalPhys >> 20);
    virtualTotal = QString::number(status.ullTotalVirtual >> 20);
}
