// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/LinuxProbes.h"

#include "sysinfo/CudaRuntime.h"
#include "sysinfo/PciNames.h"
#include "sysinfo/SystemText.h"
#include "sysinfo/SystemTree.h"

#include <QFile>

#include <algorithm>
#include <optional>

namespace LinuxProbes {

namespace {

/// A device tree lists values that end with a zero byte; "arm,cortex-a72" is from vendor ARM.
QString deviceTreeName(const QByteArray& compatible)
{
    const QByteArray first = compatible.left(compatible.indexOf('\0'));
    return SystemText::clean(first.mid(first.indexOf(',') + 1));
}

/// In MHz; empty where the system knows the present clock only.
QString nominalClock(const SystemTree& tree)
{
    const QByteArray folder("/sys/devices/system/cpu/cpu0/");
    const uint base = tree.read(folder + "cpufreq/base_frequency").trimmed().toUInt(); // kHz.
    if (base >= 1000)
        return QString::number(qRound(base / 1000.0));
    const uint nominal = tree.read(folder + "acpi_cppc/nominal_freq").trimmed().toUInt(); // MHz.
    return nominal > 0 ? QString::number(nominal) : QString();
}

/// In MHz; the only clock that ARM processors tell.
QString highestClock(const SystemTree& tree)
{
    const QByteArray path("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq");
    const uint highest = tree.read(path).trimmed().toUInt(); // kHz.
    return highest >= 1000 ? QString::number(qRound(highest / 1000.0)) : QString();
}

/// Kernel names in the order in which the kernel gives them: sdb before sdaa, nvme9n1 before
/// nvme10n1.
bool isBefore(const QByteArray& left, const QByteArray& right)
{
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

/// Whether a SCSI device type is one of disks: direct access, its reduced form, or in zones.
bool isDiskType(const QByteArray& type)
{
    return type == "0" || type == "14" || type == "20";
}

/// Nothing for an entry of /sys/block that is no disk.
std::optional<QString> diskName(const SystemTree& tree, const QByteArray& name)
{
    const QByteArray folder = "/sys/block/" + name;
    const QByteArray device = folder + "/device";
    // Loops, RAM disks and volumes have no device; a floppy drive has one that tells nothing, and
    // the boot areas of a flash chip have the chip's.
    if (name.startsWith("fd") || (name.startsWith("mmcblk") && name.contains("boot"))
        || !tree.exists(device))
        return std::nullopt;
    const QByteArray type = tree.read(device + "/type").trimmed();
    bool isScsi = false;
    type.toInt(&isScsi);
    if (isScsi && !isDiskType(type))
        return std::nullopt;
    if (tree.read(folder + "/hidden").trimmed() == "1") // One of several ways to one disk.
        return std::nullopt;
    QString vendor = SystemText::clean(tree.read(device + "/vendor"));
    // For SATA disks the kernel puts the protocol there, and virtual machines a number.
    if (vendor == QLatin1String("ATA") || vendor.startsWith(QLatin1String("0x")))
        vendor.clear();
    QString model = SystemText::clean(tree.read(device + "/model"));
    if (model.isEmpty() && !isScsi)
        model = SystemText::clean(tree.read(device + "/name")); // Of flash cards.
    const QString whole = (vendor + QLatin1Char(' ') + model).trimmed();
    return whole.isEmpty() ? SystemText::clean(name) : whole;
}

QByteArray pciDatabase(const SystemTree& tree)
{
    for (const char* path : {"/usr/share/hwdata/pci.ids", "/usr/share/misc/pci.ids"}) {
        QByteArray content = tree.read(path);
        if (!content.isEmpty())
            return content;
    }
    return {};
}

void appendRuntimes(const SystemTree& tree, const QByteArray& folder, QStringList& paths)
{
    QStringList found;
    const QList<QByteArray> names = tree.names(folder);
    for (const QByteArray& name : names) {
        if (name == "libcudart.so" || name.startsWith("libcudart.so."))
            found.append(QFile::decodeName(tree.systemPath(folder + '/' + name)));
    }
    paths += CudaRuntime::newestFirst(found);
}

} // namespace

Processor processor(const SystemTree& tree)
{
    Processor result = SystemText::processor(tree.read("/proc/cpuinfo"));
    if (result.count == 0)
        return result;
    if (result.name.isEmpty()) {
        result.name = deviceTreeName(tree.read("/sys/devices/system/cpu/cpu0/of_node/compatible"));
    }
    const QString nominal = nominalClock(tree);
    if (!nominal.isEmpty())
        result.mhz = nominal;
    else if (result.mhz.isEmpty())
        result.mhz = highestClock(tree);
    return result;
}

Disks disks(const SystemTree& tree)
{
    QList<QByteArray> entries = tree.names("/sys/block");
    std::sort(entries.begin(), entries.end(), isBefore);
    Disks result;
    result.count = static_cast<unsigned long>(entries.size());
    for (const QByteArray& entry : qAsConst(entries)) {
        if (const std::optional<QString> name = diskName(tree, entry))
            result.names.append(*name);
    }
    return result;
}

QStringList displayAdapters(const SystemTree& tree)
{
    constexpr qint64 displayClass = 0x03;
    const QByteArray folder("/sys/bus/pci/devices");
    QList<QByteArray> addresses = tree.names(folder);
    std::sort(addresses.begin(), addresses.end());
    QByteArray database;
    QStringList names;
    for (const QByteArray& address : qAsConst(addresses)) {
        const QByteArray device = folder + '/' + address;
        if (SystemText::hexNumber(tree.read(device + "/class")) >> 16 != displayClass)
            continue;
        const qint64 vendor = SystemText::hexNumber(tree.read(device + "/vendor"));
        const qint64 id = SystemText::hexNumber(tree.read(device + "/device"));
        if (vendor < 0 || vendor > 0xffff || id < 0 || id > 0xffff)
            continue;
        if (database.isEmpty())
            database = pciDatabase(tree);
        names.append(
            PciNames::name(database, static_cast<quint16>(vendor), static_cast<quint16>(id)));
    }
    return names;
}

QStringList cudaLibraries(const SystemTree& tree, const QByteArray& searchPath)
{
    QStringList paths;
    const QList<QByteArray> folders = searchPath.split(':');
    for (const QByteArray& folder : folders) {
        if (folder.startsWith('/')) // Elsewhere anybody could put a library.
            appendRuntimes(SystemTree(), folder, paths);
    }
    const QStringList known = CudaRuntime::librariesInCache(tree.read("/etc/ld.so.cache"));
    for (const QString& path : known)
        paths.append(QFile::decodeName(tree.systemPath(QFile::encodeName(path))));
    appendRuntimes(tree, "/usr/local/cuda/lib64", paths);
    appendRuntimes(tree, "/opt/cuda/lib64", paths);
    paths.removeDuplicates();
    return paths;
}

} // namespace LinuxProbes
