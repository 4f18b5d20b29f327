// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "SoftwareVersion.h"

#include <QVersionNumber>

bool SoftwareVersionIsOld(const QString& version)
{
    const QVersionNumber number = QVersionNumber::fromString(version.trimmed());
    return !number.isNull() && number.majorVersion() < 1;
}
