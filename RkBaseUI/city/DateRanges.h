// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QString>

/// The days that the quick choices of a date picker stand for, counted back from a moment and
/// written in `DateFormat`. A day is one of the calendar, whatever the time of day.
namespace DateRanges {

/// Two days, both included.
struct Range
{
    QString first;
    QString last;
};

/// The day so many days before `now`; 0 is today.
QString daysAgo(const QDateTime& now, int days);

/// From so many days before `now` up to today.
Range lastDays(const QDateTime& now, int days);

} // namespace DateRanges
