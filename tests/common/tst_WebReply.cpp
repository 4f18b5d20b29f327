// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/WebReply.h"

#include <RkAlgorthm/PointLatLng.h>

#include <QtTest>

using Places = QMap<QString, QString>;

class tst_WebReply : public QObject
{
    Q_OBJECT

private slots:
    void centre_data();
    void centre();
    void noCentre_data();
    void noCentre();
    void places_data();
    void places();
    void placesAreOrderedByName();
    void answersThatDoNotCount_data();
    void answersThatDoNotCount();
};

void tst_WebReply::centre_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("status 1") << QByteArray(R"({"status":1,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("status 0") << QByteArray(R"({"status":0,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("no status") << QByteArray(R"({"data":{"center":[116.39,39.91]}})");
    QTest::newRow("status as text reads as 0")
        << QByteArray(R"({"status":"2","data":{"center":[116.39,39.91]}})");
    QTest::newRow("status with a fraction reads as 0")
        << QByteArray(R"({"status":2.5,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("status beyond an int reads as 0")
        << QByteArray(R"({"status":5000000000,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("status null reads as 0")
        << QByteArray(R"({"status":null,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("status 1.0") << QByteArray(R"({"status":1.0,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("third element")
        << QByteArray(R"({"status":1,"data":{"center":[116.39,39.91,"x"]}})");
    QTest::newRow("blanks and other keys") << QByteArray(
        " {\n\"x\" : [], \"status\" : 1 , \"data\":{\"a\":1,\"center\":[ 116.39 , 39.91 ]}} \n");
}

void tst_WebReply::centre()
{
    QFETCH(QByteArray, reply);
    PointLatLng position(1, 2);
    QVERIFY(WebReply::readCentre(reply, position));
    QCOMPARE(position.Lat(), 39.91);
    QCOMPARE(position.Lng(), 116.39);
}

void tst_WebReply::noCentre_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("no data") << QByteArray(R"({"status":1})");
    QTest::newRow("data is a list") << QByteArray(R"({"status":1,"data":[116.39,39.91]})");
    QTest::newRow("no centre") << QByteArray(R"({"status":1,"data":{}})");
    QTest::newRow("centre is an object") << QByteArray(R"({"status":1,"data":{"center":{"0":1}}})");
    QTest::newRow("no element") << QByteArray(R"({"status":1,"data":{"center":[]}})");
    QTest::newRow("one element") << QByteArray(R"({"status":1,"data":{"center":[116.39]}})");
    QTest::newRow("numbers as texts")
        << QByteArray(R"({"status":1,"data":{"center":["116.39","39.91"]}})");
    QTest::newRow("longitude as text")
        << QByteArray(R"({"status":1,"data":{"center":["116.39",39.91]}})");
    QTest::newRow("latitude null") << QByteArray(R"({"status":1,"data":{"center":[116.39,null]}})");
    QTest::newRow("latitude true") << QByteArray(R"({"status":1,"data":{"center":[116.39,true]}})");
    QTest::newRow("number beyond a double")
        << QByteArray(R"({"status":1,"data":{"center":[116.39,1e999]}})");
}

void tst_WebReply::noCentre()
{
    QFETCH(QByteArray, reply);
    PointLatLng position(1, 2);
    QVERIFY(!WebReply::readCentre(reply, position));
    QCOMPARE(position.Lat(), 1.0);
    QCOMPARE(position.Lng(), 2.0);
}

void tst_WebReply::places_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<Places>("expected");
    QTest::newRow("two") << QByteArray(R"({"status":1,"data":[{"name":"b","location":"1,2"},
                                           {"name":"a","location":"3,4"}]})")
                         << Places{{"a", "3,4"}, {"b", "1,2"}};
    QTest::newRow("status 0") << QByteArray(R"({"status":0,"data":[{"name":"a","location":"1"}]})")
                              << Places{{"a", "1"}};
    QTest::newRow("no status") << QByteArray(R"({"data":[{"name":"a","location":"1"}]})")
                               << Places{{"a", "1"}};
    QTest::newRow("one name twice") << QByteArray(
        R"({"status":1,"data":[{"name":"a","location":"1"},{"name":"a","location":"2"}]})")
                                    << Places{{"a", "2"}};
    QTest::newRow("Chinese") << QByteArray(
        "{\"status\":1,\"data\":[{\"name\":\"成都市\",\"location\":\"\\u4e1c\"}]}")
                             << Places{{QString::fromUtf8("成都市"), QString::fromUtf8("东")}};
    QTest::newRow("no location") << QByteArray(R"({"status":1,"data":[{"name":"a"}]})")
                                 << Places{{"a", ""}};
    QTest::newRow("location as number")
        << QByteArray(R"({"status":1,"data":[{"name":"a","location":5}]})") << Places{{"a", ""}};
    QTest::newRow("element that is no object")
        << QByteArray(R"({"status":1,"data":[7]})") << Places{{"", ""}};
    QTest::newRow("none") << QByteArray(R"({"status":1,"data":[]})") << Places();
    QTest::newRow("data is an object")
        << QByteArray(R"({"status":1,"data":{"name":"a","location":"1"}})") << Places();
    QTest::newRow("no data") << QByteArray(R"({"status":1})") << Places();
}

void tst_WebReply::places()
{
    QFETCH(QByteArray, reply);
    QFETCH(Places, expected);
    QCOMPARE(WebReply::readPlaces(reply), expected);
}

void tst_WebReply::placesAreOrderedByName()
{
    const Places found =
        WebReply::readPlaces(R"({"data":[{"name":"c"},{"name":"a"},{"name":"b"},{"name":"B"}]})");
    QCOMPARE(found.keys(), QStringList({"B", "a", "b", "c"}));
}

void tst_WebReply::answersThatDoNotCount_data()
{
    QTest::addColumn<QByteArray>("reply");
    const auto both = [](const char* status) {
        return QByteArray("{\"status\":") + status
            + ",\"data\":{\"center\":[116.39,39.91],\"0\":{\"name\":\"a\"}}}";
    };
    const auto list = [](const char* status) {
        return QByteArray("{\"status\":") + status + R"(,"data":[{"name":"a","location":"1"}]})";
    };
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("blanks") << QByteArray("  \n");
    QTest::newRow("status 2") << both("2");
    QTest::newRow("status -1") << both("-1");
    QTest::newRow("status -2147483648") << both("-2147483648");
    QTest::newRow("status 256") << both("256");
    QTest::newRow("places with status 2") << list("2");
    QTest::newRow("places with status -1") << list("-1");
    QTest::newRow("cut") << both("1").chopped(1);
    QTest::newRow("bytes after the end") << both("1") + "x";
    QTest::newRow("list at the top") << "[" + both("1") + "]";
    QTest::newRow("text") << QByteArray("\"status\"");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("page") << QByteArray("<html>{\"status\":1}</html>");
    QTest::newRow("invalid UTF-8") << QByteArray("{\"status\":1,\"x\":\"\xff\xfe\","
                                                 "\"data\":{\"center\":[116.39,39.91]}}");
    QTest::newRow("zeros") << QByteArray(10 * 1024 * 1024, '\0');
    QTest::newRow("deep nesting") << "{\"data\":" + QByteArray(1000000, '[')
            + QByteArray(1000000, ']') + ",\"status\":1}";
}

void tst_WebReply::answersThatDoNotCount()
{
    QFETCH(QByteArray, reply);
    PointLatLng position(1, 2);
    QVERIFY(!WebReply::readCentre(reply, position));
    QCOMPARE(position.Lat(), 1.0);
    QCOMPARE(position.Lng(), 2.0);
    QCOMPARE(WebReply::readPlaces(reply), Places());
}

QTEST_GUILESS_MAIN(tst_WebReply)
#include "tst_WebReply.moc"
