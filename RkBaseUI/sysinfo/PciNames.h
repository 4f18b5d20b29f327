// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

/// Names from the database of PCI ids, the file pci.ids that systems carry.
namespace PciNames {

/// The names of vendor and device, for example "NVIDIA Corporation GA102 [GeForce RTX 3090]". A
/// device that the database lacks is "Device 2204" of its vendor, and without the vendor, too,
/// "Device 10de:2204".
QString name(const QByteArray& database, quint16 vendor, quint16 device);

} // namespace PciNames
