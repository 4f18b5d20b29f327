// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/FoundPlaces.h"

#include <QtTest>

class tst_FoundPlaces : public QObject
{
    Q_OBJECT

private slots:
    void locationIsRead_data();
    void locationIsRead();
    void otherTextsAreNoLocation_data();
    void otherTextsAreNoLocation();
    void placesAreInTheOrderOfTheirNames();
    void placesWithoutLocationAreLeftOut();
};

void tst_FoundPlaces::locationIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPointF>("degrees");
    QTest::newRow("longitude first") << "116.4,39.91" << QPointF(39.91, 116.4);
    QTest::newRow("south and west") << "-70.5,-33.25" << QPointF(-33.25, -70.5);
    QTest::newRow("whole numbers") << "104,30" << QPointF(30, 104);
    QTest::newRow("blank after the comma") << "104.1, 30.2" << QPointF(30.2, 104.1);
    QTest::newRow("edge of the earth") << "180,-90" << QPointF(-90, 180);
}

void tst_FoundPlaces::locationIsRead()
{
    QFETCH(QString, text);
    const auto location = parseLocation(text);
    QVERIFY(location);
    QTEST(*location, "degrees");
}

void tst_FoundPlaces::otherTextsAreNoLocation_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("one number") << "116.4";
    QTest::newRow("three numbers") << "116.4,39.9,50";
    QTest::newRow("words") << "east,north";
    QTest::newRow("half a number") << "116.4,";
    QTest::newRow("beyond the pole") << "116.4,90.01";
    QTest::newRow("once around") << "181,10";
    QTest::newRow("not a number") << "nan,10";
    QTest::newRow("not a number behind") << "10,nan";
    QTest::newRow("infinite") << "10,inf";
}

void tst_FoundPlaces::otherTextsAreNoLocation()
{
    QFETCH(QString, text);
    QVERIFY(!parseLocation(text));
}

void tst_FoundPlaces::placesAreInTheOrderOfTheirNames()
{
    const QVector<FoundPlace> places = readPlaces(
        {{QStringLiteral("Wuhan"), "114.3,30.6"}, {QStringLiteral("Beijing"), "116.4,39.9"}});
    QCOMPARE(places.size(), 2);
    QCOMPARE(places[0].name, QStringLiteral("Beijing"));
    QCOMPARE(places[0].degrees, QPointF(39.9, 116.4));
    QCOMPARE(places[1].name, QStringLiteral("Wuhan"));
}

void tst_FoundPlaces::placesWithoutLocationAreLeftOut()
{
    const QVector<FoundPlace> places =
        readPlaces({{QStringLiteral("A"), "lost"}, {QStringLiteral("B"), "1,2"}});
    QCOMPARE(places.size(), 1);
    QCOMPARE(places[0].name, QStringLiteral("B"));
}

QTEST_GUILESS_MAIN(tst_FoundPlaces)
#include "tst_FoundPlaces.moc"
