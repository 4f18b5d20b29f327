// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "sysinfo/Hardware.h"

class QSettings;

/// What the Windows registry tells about the machine. Each function takes the settings object of
/// its key; a key that is missing has no subkeys, and a value that is missing or cannot be read as
/// a text is empty.
namespace RegistryHardware {

/// From HKEY_LOCAL_MACHINE\HARDWARE\DESCRIPTION\System\CentralProcessor with a subkey for each
/// logical processor.
Processor processor(QSettings& key);

/// From HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Enum\SCSI with a subkey for each type of
/// device, and in it one for each device.
Disks disks(QSettings& key);

} // namespace RegistryHardware
