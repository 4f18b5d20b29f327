// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/DateRanges.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QLocale>

namespace DateRanges {

QString daysAgo(const QDateTime& now, int days)
{
    return QLocale::c().toString(now.addDays(-days), DateFormat);
}

Range lastDays(const QDateTime& now, int days)
{
    return {daysAgo(now, days), daysAgo(now, 0)};
}

} // namespace DateRanges
