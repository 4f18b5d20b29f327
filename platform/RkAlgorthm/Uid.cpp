// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Uid.h"

QString GetUidVariant(const QString& bracedUuid)
{
    QString text = bracedUuid;
    text.remove(QLatin1Char('{'));
    text.remove(QLatin1Char('}'));
    return text;
}
