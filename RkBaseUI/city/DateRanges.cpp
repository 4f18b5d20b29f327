// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/DateRanges.h"

#include <RkAlgorthm/RkAlgorthm.h>

namespace DateRanges {

QString daysAgo(const QDateTime& now, int days)
{
    return now.addDays(-days).toString(DateFormat);
}

Range lastDays(const QDateTime& now, int days)
{
    return {daysAgo(now, days), daysAgo(now, 0)};
}

} // namespace DateRanges
