// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/SoftwareVersion.h>

#include <QtTest>

class tst_SoftwareVersion : public QObject
{
    Q_OBJECT

private slots:
    void isOld_data();
    void isOld();
};

void tst_SoftwareVersion::isOld_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("old");
    QTest::newRow("just below") << QStringLiteral("0.9.9") << true;
    QTest::newRow("many digits below") << QStringLiteral("0.99.99999.1") << true;
    QTest::newRow("zero") << QStringLiteral("0") << true;
    QTest::newRow("blank in front") << QStringLiteral(" 0.5") << true;
    QTest::newRow("exact") << QStringLiteral("1.0.0") << false;
    QTest::newRow("major alone") << QStringLiteral("1") << false;
    QTest::newRow("two numbers") << QStringLiteral("1.0") << false;
    QTest::newRow("above") << QStringLiteral("1.0.1") << false;
    QTest::newRow("two digits are no text") << QStringLiteral("10.0") << false;
    QTest::newRow("suffix") << QStringLiteral("2.1.0-beta") << false;
    QTest::newRow("suffix below") << QStringLiteral("0.1.0-beta") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("blank") << QStringLiteral(" ") << false;
    QTest::newRow("no number") << QStringLiteral("unknown") << false;
}

void tst_SoftwareVersion::isOld()
{
    QFETCH(QString, version);
    QTEST(SoftwareVersionIsOld(version), "old");
}

QTEST_GUILESS_MAIN(tst_SoftwareVersion)
#include "tst_SoftwareVersion.moc"
