// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockStoreSql.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QtTest>

class tst_BlockStoreSql : public QObject
{
    Q_OBJECT

private slots:
    void statementsOfOneValue();
    void mustStandAlone_data();
    void mustStandAlone();
    void idTable();
    void largeIdTable();
    void noStatementWritesIntoTheFile();
};

void tst_BlockStoreSql::statementsOfOneValue()
{
    QCOMPARE(BlockStoreSql::selectBlocks("P"),
             "select survey_area_guid, survey_area_name, camera_type, plane_type from "
                 + SurveyAreaTableName + " where project_id = 'P'");
    QCOMPARE(BlockStoreSql::selectTasks("B"),
             "select flight_task_guid from " + MissionTableName + " where survey_block_id = 'B'");
    QCOMPARE(BlockStoreSql::countFlights("T"),
             "select count(id) as FlightTimes from " + FlightMissionTableName
                 + " where flight_task_id = 'T'");
    QCOMPARE(BlockStoreSql::countFlights("it's"),
             "select count(id) as FlightTimes from " + FlightMissionTableName
                 + " where flight_task_id = 'it's'");
}

void tst_BlockStoreSql::mustStandAlone_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("expected");
    QTest::newRow("uuid") << "6f9619ff-8b86-d011-b42d-00c04fc964ff" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("other marks") << "\"%1\" \\ ; -- ? :a @b\n" << false;
    QTest::newRow("Chinese") << "测区" << false;
    QTest::newRow("quote") << "it's" << true;
    QTest::newRow("NUL") << QString("a") + QChar(0) + "b" << true;
    QTest::newRow("half a surrogate") << QString("a") + QChar(0xd83d) << true;
    QTest::newRow("emoji") << "\U0001F681" << true;
}

void tst_BlockStoreSql::mustStandAlone()
{
    QFETCH(QString, id);
    QTEST(BlockStoreSql::mustStandAlone(id), "expected");
}

void tst_BlockStoreSql::idTable()
{
    const QStringList statements = BlockStoreSql::makeIdTable({"a", "it's", "c"});
    QCOMPARE(statements.size(), 3);
    QCOMPARE(statements.last(),
             QString("INSERT INTO temp.asked_id SELECT key + 0, value FROM"
                     " json_each('[\"a\",null,\"c\"]')"));
    QCOMPARE(BlockStoreSql::makeIdTable({}).size(), 2);
}

void tst_BlockStoreSql::largeIdTable()
{
    QStringList ids;
    for (int i = 0; i < 2001; ++i)
        ids.append(QString::number(i));
    const QStringList statements = BlockStoreSql::makeIdTable(ids);
    int values = 0;
    for (const QString& statement : statements)
        values += statement.startsWith("INSERT") ? statement.count("\"") / 2 : 0;
    QCOMPARE(values, 2001);
    QVERIFY(statements.last().contains(" key + 2000,"));
    QVERIFY(statements.size() < 10);
}

void tst_BlockStoreSql::noStatementWritesIntoTheFile()
{
    const QStringList statements =
        BlockStoreSql::makeIndexedCopies() + BlockStoreSql::makeIdTable({"a"});
    for (const QString& statement : statements) {
        QVERIFY2(statement.startsWith("CREATE TEMP TABLE ")
                     || statement.startsWith("CREATE INDEX temp.")
                     || statement.startsWith("INSERT INTO temp.")
                     || statement == "PRAGMA temp_store=MEMORY",
                 qPrintable(statement));
    }
}

QTEST_GUILESS_MAIN(tst_BlockStoreSql)
#include "tst_BlockStoreSql.moc"
