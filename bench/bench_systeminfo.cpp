// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Asking the system about itself, against the bare system calls that read the same files without
// understanding them, and against a limit in milliseconds; where adapters have to be named, against
// these calls and a bare search in the database. This machine first; then machines with display
// adapters and with 10,000 block devices that are made for it.

#include "Bench.h"

#include "sysinfo/LinuxProbes.h"
#include "sysinfo/SystemTree.h"

#include <RkBaseUI/CRkSystemInfo.h>

#include <QSysInfo>
#include <QTemporaryDir>

#include <dirent.h>
#include <fcntl.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr int runs = 31;
constexpr int calls = 20; // in one run
constexpr double longest = 0.050; // seconds, of any probe
constexpr double limit = 3.0;

std::string g_root; // of the machine whose files the bare calls read
char g_buffer[1 << 16];
std::size_t g_bytes = 0; // keeps the reading from being left out

/// Opens, reads to the end and closes.
void readBare(const std::string& path)
{
    const int file = ::open((g_root + path).c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    ssize_t count = 0;
    while ((count = ::read(file, g_buffer, sizeof g_buffer)) > 0)
        g_bytes += static_cast<std::size_t>(count);
    ::close(file);
}

/// Calls `work` with each name.
template <typename Work>
void forNames(const std::string& folder, Work&& work)
{
    DIR* open = ::opendir((g_root + folder).c_str());
    if (!open)
        return;
    while (const dirent* entry = ::readdir(open)) {
        if (entry->d_name[0] != '.')
            work(folder + '/' + entry->d_name);
    }
    ::closedir(open);
}

void readProcessor()
{
    readBare("/proc/cpuinfo");
    readBare("/sys/devices/system/cpu/cpu0/cpufreq/base_frequency");
    readBare("/sys/devices/system/cpu/cpu0/acpi_cppc/nominal_freq");
}

void readDisks()
{
    forNames("/sys/block", [](const std::string& entry) {
        if (::access((g_root + entry + "/device").c_str(), F_OK) != 0)
            return;
        readBare(entry + "/device/type");
        readBare(entry + "/hidden");
        readBare(entry + "/device/vendor");
        readBare(entry + "/device/model");
    });
}

/// Without the database, which is read only where there is a device to be named.
void readAdapters()
{
    forNames("/sys/bus/pci/devices", [](const std::string& entry) {
        const std::string path = g_root + entry + "/class";
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        const ssize_t count = file < 0 ? 0 : ::read(file, g_buffer, 16);
        ::close(file);
        if (count < 4 || std::strncmp(g_buffer, "0x03", 4) != 0)
            return;
        readBare(entry + "/vendor");
        readBare(entry + "/device");
    });
}

/// The same, and then finds the line of the vendor and that of the device for each adapter.
void readAdaptersAndSearch(int adapters)
{
    static std::vector<char> database(4 << 20);
    readAdapters();
    const int file = ::open((g_root + "/usr/share/misc/pci.ids").c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t size = file < 0 ? 0 : ::read(file, database.data(), database.size());
    ::close(file);
    const char* end = database.data() + size;
    for (int i = 0; i < adapters; ++i) {
        const auto* vendor =
            static_cast<const char*>(::memmem(database.data(), std::size_t(size), "\n8086  ", 7));
        if (vendor)
            g_bytes += ::memmem(vendor, std::size_t(end - vendor), "\n\t5917  ", 8) != nullptr;
    }
}

void readRuntimes()
{
    readBare("/etc/ld.so.cache");
    forNames("/usr/local/cuda/lib64", [](const std::string&) {});
    forNames("/opt/cuda/lib64", [](const std::string&) {});
}

void readVersion()
{
    readBare("/etc/os-release");
    utsname name = {};
    ::uname(&name);
    g_bytes += std::strlen(name.release);
}

/// Both in turn, so that whatever else the machine does meets both; of one call.
template <typename Ours, typename Floor>
bool compare(const char* name, long size, Ours&& ours, Floor&& floor)
{
    std::vector<double> ourSeconds;
    std::vector<double> floorSeconds;
    const auto repeat = [](auto&& work) {
        for (int i = 0; i < calls; ++i)
            work();
    };
    repeat(ours);
    for (int run = 0; run < runs; ++run) {
        ourSeconds.push_back(bench::medianSeconds(1, [&] { repeat(ours); }) / calls);
        floorSeconds.push_back(bench::medianSeconds(1, [&] { repeat(floor); }) / calls);
    }
    std::sort(ourSeconds.begin(), ourSeconds.end());
    std::sort(floorSeconds.begin(), floorSeconds.end());
    const double median = ourSeconds[runs / 2];
    const bool isQuick = median < longest;
    if (!isQuick)
        std::printf("%s takes more than %g ms\n", name, longest * 1e3);
    return bench::report(name, size, median, floorSeconds[runs / 2], limit) && isQuick;
}

bool compareThisMachine()
{
    CRkSystemInfo info;
    bool isMet = compare(
        "processor / bare system calls", 1,
        [&] {
            QString name, identifier, mhz;
            int count = 0;
            info.GetCpuInfo(name, identifier, count, mhz);
        },
        readProcessor);
    isMet &= compare(
        "disks / bare system calls", 1,
        [&] {
            unsigned long count = 0;
            QStringList names;
            info.GetDiskInfo(count, names);
        },
        readDisks);
    isMet &= compare(
        "display adapters / bare system calls", 1,
        [&] {
            unsigned long count = 0;
            QStringList names;
            QString memory;
            info.GetDisplayCardInfo(count, names, memory);
        },
        [] {
            readAdapters();
            readRuntimes();
        });
    isMet &= compare(
        "memory / bare system calls", 1,
        [&] {
            QString total, virtualTotal;
            info.GetMemoryInfo(total, virtualTotal);
        },
        [] { readBare("/proc/meminfo"); });
    isMet &= compare(
        "operating system / bare system calls", 1, [&] { info.GetOSVersion(); }, readVersion);
    return isMet;
}

void write(const std::filesystem::path& path, const std::string& content)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << content;
}

/// Two adapters whose vendor stands far behind in the database of this machine.
bool compareAdapters()
{
    const QTemporaryDir folder;
    const std::filesystem::path root = folder.path().toStdString();
    for (const char* address : {"0000:01:00.0", "0000:02:00.0"}) {
        const std::filesystem::path device = root / "sys/bus/pci/devices" / address;
        write(device / "class", "0x030000\n");
        write(device / "vendor", "0x8086\n");
        write(device / "device", "0x5917\n");
    }
    std::error_code error;
    std::filesystem::create_directories(root / "usr/share/misc");
    std::filesystem::copy_file("/usr/share/misc/pci.ids", root / "usr/share/misc/pci.ids", error);
    if (error) {
        std::printf("no database of PCI ids on this machine\n");
        return false;
    }
    const SystemTree tree(QByteArray::fromStdString(root.string()));
    if (LinuxProbes::displayAdapters(tree).filter(QStringLiteral("Intel")).size() != 2) {
        std::printf("the adapters are not named\n");
        return false;
    }
    g_root = root.string();
    const bool isMet = compare(
        "names of two adapters / calls and bare search", 2,
        [&] { LinuxProbes::displayAdapters(tree); }, [] { readAdaptersAndSearch(2); });
    g_root.clear();
    return isMet;
}

/// Most of them without a device, as loops are.
bool compareManyDisks()
{
    constexpr int disks = 100;
    constexpr int entries = 10000;
    const QTemporaryDir folder;
    const std::filesystem::path root = folder.path().toStdString();
    const std::filesystem::path blocks = root / "sys/block";
    for (int i = 0; i < disks; ++i) {
        const std::filesystem::path disk = blocks / ("sd" + std::to_string(i));
        write(disk / "hidden", "0\n");
        write(disk / "device/type", "0\n");
        write(disk / "device/vendor", "ATA     \n");
        write(disk / "device/model", "Samsung SSD 860 \n");
    }
    // One file with many names, which costs the disk little.
    write(blocks / "loop0", "");
    for (int i = 1; i < entries - disks; ++i)
        std::filesystem::create_hard_link(blocks / "loop0", blocks / ("loop" + std::to_string(i)));
    const SystemTree tree(QByteArray::fromStdString(root.string()));
    if (LinuxProbes::disks(tree).names.size() != disks) {
        std::printf("the disks are not found\n");
        return false;
    }
    g_root = root.string();
    const bool isMet = compare(
        "disks among many entries / bare system calls", entries, [&] { LinuxProbes::disks(tree); },
        readDisks);
    g_root.clear();
    return isMet;
}

} // namespace

int main()
{
    const bool isMet[] = {compareThisMachine(), compareAdapters(), compareManyDisks()};
    return std::all_of(std::begin(isMet), std::end(isMet), [](bool ok) { return ok; }) ? 0 : 1;
}
