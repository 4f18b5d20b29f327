// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "sysinfo/Hardware.h"

#include <QByteArray>

class SystemTree;

/// What a Linux kernel tells about the machine below a root.
namespace LinuxProbes {

/// From /proc/cpuinfo; the clock is the one that the processor is sold with where /sys knows it.
Processor processor(const SystemTree& tree);

/// `count` is that of the entries of /sys/block, among them optical drives and what has no device
/// behind it; the names are vendor and model, or else what the kernel calls the disk.
Disks disks(const SystemTree& tree);

/// The names of the PCI devices of class 03 in the order of their addresses, without those whose
/// ids cannot be read.
QStringList displayAdapters(const SystemTree& tree);

/// The files that may be the CUDA runtime, the newest of a folder first: in the folders of the
/// search path, in those that the dynamic linker knows, and where the toolkit is put.
QStringList cudaLibraries(const SystemTree& tree, const QByteArray& searchPath);

} // namespace LinuxProbes
