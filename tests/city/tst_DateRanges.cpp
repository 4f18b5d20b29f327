// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/DateRanges.h"

#include <QTest>

class tst_DateRanges : public QObject
{
    Q_OBJECT

private slots:
    void daysAgo_data();
    void daysAgo();
    void lastDays_data();
    void lastDays();
};

void tst_DateRanges::daysAgo_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<int>("days");
    QTest::addColumn<QString>("day");
    const auto row = [](const char* name, QDate date, QTime time, int days, const char* day) {
        QTest::newRow(name) << QDateTime(date, time) << days << QString::fromLatin1(day);
    };
    row("today", {2026, 6, 15}, {10, 0}, 0, "2026-06-15");
    row("today, first moment", {2026, 6, 15}, {0, 0}, 0, "2026-06-15");
    row("today, last moment", {2026, 6, 15}, {23, 59, 59, 999}, 0, "2026-06-15");
    row("yesterday", {2026, 6, 15}, {10, 0}, 1, "2026-06-14");
    row("yesterday, first moment", {2026, 6, 15}, {0, 0}, 1, "2026-06-14");
    row("yesterday of New Year", {2026, 1, 1}, {0, 0, 1}, 1, "2025-12-31");
    row("yesterday of 1 March", {2026, 3, 1}, {12, 0}, 1, "2026-02-28");
    row("yesterday of 1 March in a leap year", {2028, 3, 1}, {12, 0}, 1, "2028-02-29");
}

void tst_DateRanges::daysAgo()
{
    QFETCH(QDateTime, now);
    QFETCH(int, days);
    QTEST(DateRanges::daysAgo(now, days), "day");
}

void tst_DateRanges::lastDays_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<int>("days");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    const auto row = [](const char* name, QDate date, int days, const char* first,
                        const char* last) {
        QTest::newRow(name) << QDateTime(date, QTime(0, 30)) << days << QString::fromLatin1(first)
                            << QString::fromLatin1(last);
    };
    row("week", {2026, 6, 15}, 7, "2026-06-08", "2026-06-15");
    row("two weeks", {2026, 6, 15}, 14, "2026-06-01", "2026-06-15");
    row("three weeks", {2026, 6, 15}, 21, "2026-05-25", "2026-06-15");
    row("month", {2026, 6, 15}, 30, "2026-05-16", "2026-06-15");
    row("month on 31 March", {2026, 3, 31}, 30, "2026-03-01", "2026-03-31");
    row("month on 31 March of a leap year", {2028, 3, 31}, 30, "2028-03-01", "2028-03-31");
    row("month on 1 March", {2026, 3, 1}, 30, "2026-01-30", "2026-03-01");
    row("month on 30 January", {2026, 1, 30}, 30, "2025-12-31", "2026-01-30");
    row("week over New Year", {2026, 1, 3}, 7, "2025-12-27", "2026-01-03");
}

void tst_DateRanges::lastDays()
{
    QFETCH(QDateTime, now);
    QFETCH(int, days);
    const DateRanges::Range range = DateRanges::lastDays(now, days);
    QTEST(range.first, "first");
    QTEST(range.last, "last");
}

QTEST_APPLESS_MAIN(tst_DateRanges)
#include "tst_DateRanges.moc"
