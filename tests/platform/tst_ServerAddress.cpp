// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkAlgorthm/ServerAddress.h>

#include <QtTest>

class tst_ServerAddress : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void defaultAddress();
    void environmentOverDefault_data();
    void environmentOverDefault();
    void chosenOverEnvironment();
};

void tst_ServerAddress::cleanup()
{
    SetServerIP(QByteArray());
    qunsetenv("RK_SERVER_IP");
}

void tst_ServerAddress::defaultAddress()
{
    QCOMPARE(GetServerIP(), QByteArray("http://127.0.0.1:8080"));
}

void tst_ServerAddress::environmentOverDefault_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("as it is") << QByteArray("https://host:9") << QByteArray("https://host:9");
    QTest::newRow("trailing slash")
        << QByteArray("https://host:9/") << QByteArray("https://host:9");
    QTest::newRow("blanks and slashes")
        << QByteArray(" https://host:9// ") << QByteArray("https://host:9");
    QTest::newRow("empty") << QByteArray("") << QByteArray("http://127.0.0.1:8080");
    QTest::newRow("a slash alone") << QByteArray("/") << QByteArray("http://127.0.0.1:8080");
}

void tst_ServerAddress::environmentOverDefault()
{
    QFETCH(QByteArray, value);
    qputenv("RK_SERVER_IP", value);
    QTEST(GetServerIP(), "expected");
}

void tst_ServerAddress::chosenOverEnvironment()
{
    qputenv("RK_SERVER_IP", "http://environment:1");
    SetServerIP("http://chosen:2/");
    QCOMPARE(GetServerIP(), QByteArray("http://chosen:2"));
    SetServerIP(QByteArray());
    QCOMPARE(GetServerIP(), QByteArray("http://environment:1"));
}

QTEST_GUILESS_MAIN(tst_ServerAddress)
#include "tst_ServerAddress.moc"
