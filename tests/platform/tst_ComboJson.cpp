// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/RkAlgorthm.h>

#include <QJsonDocument>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using RowObject = QJsonObject (*)(QSqlQuery*);
Q_DECLARE_METATYPE(RowObject)

class tst_ComboJson : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void tables_data();
    void tables();
    void values_data();
    void values();
    void emptyWithoutRow();
    void queryIsNotMoved();
};

void tst_ComboJson::initTestCase()
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(":memory:");
    QVERIFY(database.open());
}

void tst_ComboJson::cleanupTestCase()
{
    QSqlDatabase::database().close();
    QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection);
}

void tst_ComboJson::tables_data()
{
    QTest::addColumn<RowObject>("rowObject");
    QTest::addColumn<QString>("columns");
    QTest::newRow("project") << RowObject(ProjectComboJsonInfo) << GetProjectTableContents();
    QTest::newRow("survey area") << RowObject(SurveyBlockComboJsonInfo)
                                 << GetSurveyAreaTableContents();
    QTest::newRow("flight task") << RowObject(FlightTaskComboJsonInfo) << GetMissionTableContents();
    QTest::newRow("marker point") << RowObject(ProjectPointComboJsonInfo)
                                  << GetMarkerPointTableContents();
}

void tst_ComboJson::tables()
{
    QFETCH(RowObject, rowObject);
    QFETCH(QString, columns);
    QSqlQuery query;
    QVERIFY(query.exec("CREATE TEMP TABLE t " + columns));
    const QStringList definitions = columns.mid(1, columns.size() - 2).split(", ");
    QStringList names;
    QStringList numbers;
    for (int i = 0; i < definitions.size(); ++i) {
        names.append(definitions[i].section(' ', 0, 0));
        numbers.append(QString::number(i + 1));
    }
    QVERIFY(query.exec("INSERT INTO t VALUES (" + numbers.join(',') + ")"));
    QVERIFY(query.exec("SELECT * FROM t") && query.next());
    const QJsonObject object = rowObject(&query);
    QCOMPARE(object.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const bool isText = definitions[i].endsWith("TEXT");
        QCOMPARE(object.value(names[i]),
                 isText ? QJsonValue(numbers[i]) : QJsonValue(numbers[i].toInt()));
    }
    query.finish();
    QVERIFY(query.exec("DROP TABLE t"));
}

void tst_ComboJson::values_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("text") << "'p' AS id, '' AS a" << QByteArray(R"({"a":"","id":"p"})");
    QTest::newRow("number as text stays text")
        << "'p' AS id, '12' AS a" << QByteArray(R"({"a":"12","id":"p"})");
    QTest::newRow("integer") << "'p' AS id, -7 AS a" << QByteArray(R"({"a":-7,"id":"p"})");
    QTest::newRow("real") << "'p' AS id, 1.25 AS a" << QByteArray(R"({"a":1.25,"id":"p"})");
    QTest::newRow("infinite") << "'p' AS id, 9e999 AS a" << QByteArray(R"({"a":"inf","id":"p"})");
    QTest::newRow("NULL is left out") << "'p' AS id, NULL AS a" << QByteArray(R"({"id":"p"})");
    QTest::newRow("keys of lists are left out")
        << "'p' AS id, 1 AS blocks, 2 AS tasks, 3 AS points" << QByteArray(R"({"id":"p"})");
    QTest::newRow("keys like those of lists stay")
        << "'p' AS id, 1 AS Blocks, 2 AS task" << QByteArray(R"({"Blocks":1,"id":"p","task":2})");
    QTest::newRow("number as id") << "5 AS id" << QByteArray(R"({"id":5})");
    QTest::newRow("id NULL") << "NULL AS id, 1 AS a" << QByteArray("{}");
    QTest::newRow("id empty") << "'' AS id, 1 AS a" << QByteArray("{}");
    QTest::newRow("no id") << "1 AS a" << QByteArray("{}");
    QTest::newRow("Chinese") << QString::fromUtf8("'p' AS id, '江' AS a")
                             << QByteArray("{\"a\":\"江\",\"id\":\"p\"}");
}

void tst_ComboJson::values()
{
    QFETCH(QString, row);
    QFETCH(QByteArray, expected);
    QSqlQuery query;
    QVERIFY(query.exec("SELECT " + row) && query.next());
    for (RowObject rowObject : {ProjectComboJsonInfo, SurveyBlockComboJsonInfo,
                                FlightTaskComboJsonInfo, ProjectPointComboJsonInfo}) {
        QCOMPARE(QJsonDocument(rowObject(&query)).toJson(QJsonDocument::Compact), expected);
    }
}

void tst_ComboJson::emptyWithoutRow()
{
    QCOMPARE(ProjectComboJsonInfo(nullptr), QJsonObject());
    QSqlQuery query;
    QCOMPARE(SurveyBlockComboJsonInfo(&query), QJsonObject());
    QVERIFY(query.exec("SELECT 'p' AS id"));
    QCOMPARE(FlightTaskComboJsonInfo(&query), QJsonObject());
    QVERIFY(query.next() && !query.next());
    QCOMPARE(ProjectPointComboJsonInfo(&query), QJsonObject());
}

void tst_ComboJson::queryIsNotMoved()
{
    QSqlQuery query;
    QVERIFY(query.exec("SELECT 'p' AS id UNION ALL SELECT 'q'") && query.next());
    QCOMPARE(ProjectComboJsonInfo(&query).value("id").toString(), QString("p"));
    QCOMPARE(ProjectComboJsonInfo(&query).value("id").toString(), QString("p"));
    QVERIFY(query.next());
    QCOMPARE(ProjectComboJsonInfo(&query).value("id").toString(), QString("q"));
    QVERIFY(!query.next());
}

QTEST_GUILESS_MAIN(tst_ComboJson)
#include "tst_ComboJson.moc"
