// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/Constants.h>
#include <RkAlgorthm/SoftwareVersion.h>

#include <QtTest>

class tst_Constants : public QObject
{
    Q_OBJECT

private slots:
    void tableNamesArePlainAndDifferent();
    void dateFormatHasNoBlanks();
    void timesSurviveTheirFormat();
    void projectSuffix();
    void applicationVersionIsNotOld();
    void settingsNamesAreThere();
};

void tst_Constants::tableNamesArePlainAndDifferent()
{
    const QStringList names = {ProjectTableName, SurveyAreaTableName, MissionTableName,
                               FlightMissionTableName, MarkerPointTableName};
    const QRegularExpression plain(QStringLiteral("^[a-z_]+$"));
    for (const QString& name : names)
        QVERIFY2(plain.match(name).hasMatch(), qPrintable(name));
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

void tst_Constants::dateFormatHasNoBlanks()
{
    QCOMPARE(QDate(2026, 3, 9).toString(DateFormat), QStringLiteral("2026-03-09"));
    QCOMPARE(QDate::fromString(QStringLiteral("2026-03-09"), DateFormat), QDate(2026, 3, 9));
}

void tst_Constants::timesSurviveTheirFormat()
{
    const QDateTime time(QDate(2026, 12, 31), QTime(23, 5, 9));
    QCOMPARE(QDateTime::fromString(time.toString(DateTimeSFormat), DateTimeSFormat), time);
}

void tst_Constants::projectSuffix()
{
    QCOMPARE(ProjectSuffix, QStringLiteral(".proj"));
}

void tst_Constants::applicationVersionIsNotOld()
{
    QVERIFY(!VANTRELL_VERSION.isEmpty());
    QVERIFY(!SoftwareVersionIsOld(VANTRELL_VERSION));
}

void tst_Constants::settingsNamesAreThere()
{
    for (const QString& name :
         {OrganizationName, CloundApplicationName, UserInfoGroupName, UserInfoUserID})
        QVERIFY(!name.isEmpty() && !name.contains(QLatin1Char('/')));
}

QTEST_GUILESS_MAIN(tst_Constants)
#include "tst_Constants.moc"
