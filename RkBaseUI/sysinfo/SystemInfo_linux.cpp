// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/CRkSystemInfo.h"
#include "sysinfo/CudaRuntime.h"
#include "sysinfo/LinuxProbes.h"
#include "sysinfo/SystemText.h"
#include "sysinfo/SystemTree.h"

#include <sys/auxv.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// In MiB. The name of the program lies at the very end of the stack, and that near the end of the
/// address space.
quint64 addressSpace()
{
    rlimit limit = {};
    const bool isLimited = ::getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    return SystemText::addressSpace(::getauxval(AT_EXECFN),
                                    static_cast<quint64>(::sysconf(_SC_PAGESIZE)),
                                    isLimited ? limit.rlim_cur : ~quint64(0));
}

} // namespace

void CRkSystemInfo::GetCpuInfo(QString& name, QString& identifier, int& count, QString& mhz)
{
    const Processor processor = LinuxProbes::processor(SystemTree());
    name = processor.name;
    identifier = processor.identifier;
    count = processor.count;
    mhz = processor.mhz;
}

void CRkSystemInfo::GetDiskInfo(unsigned long& count, QStringList& names)
{
    const Disks disks = LinuxProbes::disks(SystemTree());
    count = disks.count;
    names += disks.names;
}

void CRkSystemInfo::GetDisplayCardInfo(unsigned long& count, QStringList& names, QString& memory)
{
    const SystemTree tree;
    names += LinuxProbes::displayAdapters(tree);
    count = static_cast<unsigned long>(names.size());
    CudaRuntime::describe(LinuxProbes::cudaLibraries(tree, qgetenv("LD_LIBRARY_PATH")), count,
                          memory);
}

void CRkSystemInfo::GetMemoryInfo(QString& total, QString& virtualTotal)
{
    total = QString::number(SystemText::totalMemory(SystemTree().read("/proc/meminfo")));
    virtualTotal = QString::number(addressSpace());
}
