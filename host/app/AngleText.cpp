// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/AngleText.h"

QString angleText(const QStringList& parts, QChar positive, QChar negative)
{
    bool isNegative = false;
    QStringList sizes;
    for (const QString& part : parts) {
        const bool isBelow = part.startsWith(QLatin1Char('-'));
        isNegative = isNegative || isBelow;
        sizes.append(isBelow ? part.mid(1) : part);
    }
    return QStringLiteral("%1\u00b0 %2\u2032 %3\u2033 %4")
        .arg(sizes.value(0), sizes.value(1), sizes.value(2), isNegative ? negative : positive);
}
