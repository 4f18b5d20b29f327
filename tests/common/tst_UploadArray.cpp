// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/UploadArraySql.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/WebService.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QStringList messages;

void collectMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    messages.append(text);
}

QStringList emptyTables()
{
    return {
        "CREATE TABLE " + ProjectTableName + GetProjectTableContents(),
        "CREATE TABLE " + SurveyAreaTableName + GetSurveyAreaTableContents(),
        "CREATE TABLE " + MissionTableName + GetMissionTableContents(),
        "CREATE TABLE " + MarkerPointTableName + GetMarkerPointTableContents(),
    };
}

QString project(const QString& id, const QString& name)
{
    return QStringLiteral(
               "INSERT INTO project (id, project_name, map_scale) VALUES (%1, '%2', 500)")
        .arg(id, name);
}

QString block(const QString& id, const QString& guid, const QString& projectId)
{
    return QStringLiteral("INSERT INTO survey_area (id, survey_area_guid, project_id) "
                          "VALUES (%1, '%2', '%3')")
        .arg(id, guid, projectId);
}

QString task(const QString& id, const QString& guid, const QString& blockGuid)
{
    return QStringLiteral("INSERT INTO flight_task (id, flight_task_guid, survey_block_id) "
                          "VALUES (%1, '%2', '%3')")
        .arg(id, guid, blockGuid);
}

QString point(const QString& id, const QString& projectId)
{
    return QStringLiteral(
               "INSERT INTO marker_point (id, project_id, lat, lng) VALUES (%1, '%2', 30.5, 104)")
        .arg(id, projectId);
}

} // namespace

class tst_UploadArray : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void statements();
    void documents_data();
    void documents();
    void wholeProject();
    void textIsCompact();
    void missingFileIsNotMade();
    void filesThatAreNoProject_data();
    void filesThatAreNoProject();
    void missingTablesAndColumns();
    void fileIsLeftAlone();
    void tablesThatComputeAreNotAsked_data();
    void tablesThatComputeAreNotAsked();

private:
    QString newFile(const QStringList& statements);

    QTemporaryDir m_dir;
    int m_files = 0;
    QtMessageHandler m_previousHandler = nullptr;
};

void tst_UploadArray::init()
{
    messages.clear();
    m_previousHandler = qInstallMessageHandler(collectMessage);
}

void tst_UploadArray::cleanup()
{
    qInstallMessageHandler(m_previousHandler);
    QCOMPARE(messages, QStringList());
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

QString tst_UploadArray::newFile(const QStringList& statements)
{
    const QString file = m_dir.filePath(QString::number(++m_files) + ".proj");
    return runSql(file, statements) ? file : QString();
}

void tst_UploadArray::statements()
{
    QCOMPARE(UploadArraySql::selectProject(), QString("select * from project"));
    QCOMPARE(UploadArraySql::selectBlocks("p'1"),
             QString("select * from survey_area where project_id = 'p'1'"));
    QCOMPARE(UploadArraySql::selectTasks("b"),
             QString("select * from flight_task where survey_block_id = 'b'"));
    QCOMPARE(UploadArraySql::selectPoints("p"),
             QString("select * from marker_point where project_id = 'p'"));
}

void tst_UploadArray::documents_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray head = R"({"id":"p","map_scale":500,"project_name":"A"})";

    QTest::newRow("no project") << QStringList() << QByteArray("{}");
    QTest::newRow("nothing but the project") << QStringList{project("'p'", "A")} << head;
    QTest::newRow("trigger that is named like its table")
        << QStringList{project("'p'", "A"),
                       "CREATE TRIGGER " + ProjectTableName + " AFTER INSERT ON " + ProjectTableName
                           + " BEGIN SELECT 1; END"}
        << head;
    QTest::newRow("block without tasks")
        << QStringList{project("'p'", "A"), block("'1'", "b", "p")}
        << QByteArray(R"({"blocks":[{"id":"1","project_id":"p","survey_area_guid":"b"}],)"
                      R"("id":"p","map_scale":500,"project_name":"A"})");
    QTest::newRow("block with a task")
        << QStringList{project("'p'", "A"), block("'1'", "b", "p"), task("'2'", "t", "b")}
        << QByteArray(R"({"blocks":[{"id":"1","project_id":"p","survey_area_guid":"b","tasks":)"
                      R"([{"flight_task_guid":"t","id":"2","survey_block_id":"b"}]}],)"
                      R"("id":"p","map_scale":500,"project_name":"A"})");
    QTest::newRow("block of its own without an id, with a task")
        << QStringList{project("'p'", "A"), block("''", "b", "p"), task("'2'", "t", "b")} << head;
    QTest::newRow("task without an id")
        << QStringList{project("'p'", "A"), block("'1'", "b", "p"), task("NULL", "t", "b")}
        << QByteArray(R"({"blocks":[{"id":"1","project_id":"p","survey_area_guid":"b"}],)"
                      R"("id":"p","map_scale":500,"project_name":"A"})");
    QTest::newRow("point")
        << QStringList{project("'p'", "A"), point("'m'", "p")}
        << QByteArray(
               R"({"id":"p","map_scale":500,)"
               R"("points":[{"id":"m","lat":30.5,"lng":104,"project_id":"p"}],"project_name":"A"})");
    QTest::newRow("point without an id")
        << QStringList{project("'p'", "A"), point("''", "p")} << head;
    QTest::newRow("rows of another project")
        << QStringList{project("'p'", "A"), block("'1'", "b", "q"), task("'2'", "t", "b"),
                       point("'m'", "q")}
        << head;
    QTest::newRow("last of two projects")
        << QStringList{project("'q'", "Q"), project("'p'", "A"), point("'m'", "q")} << head;
    QTest::newRow("last of two projects is empty")
        << QStringList{project("'p'", "A"), project("NULL", "Q"), point("'m'", "p")}
        << QByteArray("{}");
    QTest::newRow("no project, but rows of an empty one")
        << QStringList{point("'m'", "")}
        << QByteArray(R"({"points":[{"id":"m","lat":30.5,"lng":104,"project_id":""}]})");
    QTest::newRow("block that belongs to none gets the tasks that belong to none")
        << QStringList{project("'p'", "A"), block("'1'", "", "p"), task("'2'", "t", "")}
        << QByteArray(R"({"blocks":[{"id":"1","project_id":"p","survey_area_guid":"","tasks":)"
                      R"([{"flight_task_guid":"t","id":"2","survey_block_id":""}]}],)"
                      R"("id":"p","map_scale":500,"project_name":"A"})");
    QTest::newRow("id with a quote finds nothing")
        << QStringList{project("'p''q'", "A"), point("'m'", "p''q")}
        << QByteArray(R"({"id":"p'q","map_scale":500,"project_name":"A"})");
}

void tst_UploadArray::documents()
{
    QFETCH(QStringList, rows);
    QFETCH(QByteArray, expected);
    const QString file = newFile(emptyTables() + rows);
    QVERIFY(!file.isEmpty());
    QCOMPARE(GetUploadArray(file), expected);
}

void tst_UploadArray::wholeProject()
{
    QStringList rows = emptyTables() + QStringList(project("'p'", "A"));
    for (int b = 0; b < 3; ++b) {
        const QString guid = "b" + QString::number(b);
        rows.append(block("'" + guid + "'", guid, "p"));
        for (int t = 0; t < b; ++t)
            rows.append(task("'x'", guid + "t" + QString::number(t), guid));
        rows.append(point("'m" + QString::number(b) + "'", "p"));
    }
    const QJsonObject document = QJsonDocument::fromJson(GetUploadArray(newFile(rows))).object();
    const QJsonArray blocks = document["blocks"].toArray();
    QCOMPARE(blocks.size(), 3);
    for (int b = 0; b < 3; ++b) {
        QCOMPARE(blocks[b]["id"].toString(), "b" + QString::number(b));
        QCOMPARE(blocks[b].toObject().contains("tasks"), b > 0);
        const QJsonArray tasks = blocks[b]["tasks"].toArray();
        QCOMPARE(tasks.size(), b);
        for (int t = 0; t < b; ++t)
            QCOMPARE(tasks[t]["flight_task_guid"].toString(), QString("b%1t%2").arg(b).arg(t));
    }
    const QJsonArray points = document["points"].toArray();
    QCOMPARE(points.size(), 3);
    QCOMPARE(points[2]["id"].toString(), QString("m2"));
}

void tst_UploadArray::textIsCompact()
{
    const QByteArray text = GetUploadArray(
        newFile(emptyTables()
                + QStringList{project("'p'", QString::fromUtf8("江 \"边\"")), point("'m'", "p")}));
    QVERIFY(!text.contains('\n'));
    QVERIFY(text.contains("\"project_name\":\"江 \\\"边\\\"\""));
}

void tst_UploadArray::missingFileIsNotMade()
{
    const QString file = m_dir.filePath("missing.proj");
    QCOMPARE(GetUploadArray(file), QByteArray("{}"));
    QVERIFY(!QFileInfo::exists(file));
    QCOMPARE(GetUploadArray(QString()), QByteArray("{}"));
}

void tst_UploadArray::filesThatAreNoProject_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("project");
    QTest::newRow("zeros") << QByteArray(8192, '\0');
    QTest::newRow("head of a database") << QByteArray("SQLite format 3\0\x10\0", 18);
}

void tst_UploadArray::filesThatAreNoProject()
{
    QFETCH(QByteArray, content);
    const QString file = m_dir.filePath("foreign.proj");
    QVERIFY(writeFile(file, content));
    QCOMPARE(GetUploadArray(file), QByteArray("{}"));
    QCOMPARE(readFile(file), content);
    QCOMPARE(GetUploadArray(m_dir.path()), QByteArray("{}"));
}

/// What a file does not have is left out.
void tst_UploadArray::missingTablesAndColumns()
{
    const QStringList tables = emptyTables();
    const QStringList rows = {project("'p'", "A"), block("'1'", "b", "p")};
    QCOMPARE(GetUploadArray(newFile({tables[0], rows[0]})),
             QByteArray(R"({"id":"p","map_scale":500,"project_name":"A"})"));
    QCOMPARE(GetUploadArray(newFile(tables.mid(0, 2) + rows)),
             QByteArray(R"({"blocks":[{"id":"1","project_id":"p","survey_area_guid":"b"}],)"
                        R"("id":"p","map_scale":500,"project_name":"A"})"));
    QCOMPARE(GetUploadArray(newFile(
                 {"CREATE TABLE project (project_name TEXT)", "INSERT INTO project VALUES ('A')"})),
             QByteArray("{}"));
}

void tst_UploadArray::fileIsLeftAlone()
{
    const QString file = newFile(emptyTables()
                                 + QStringList{project("'p'", "A"), block("'1'", "b", "p"),
                                               task("'2'", "t", "b"), point("'m'", "p")});
    const QByteArray before = readFile(file);
    GetUploadArray(file);
    QCOMPARE(readFile(file), before);
    QVERIFY(QFile::remove(file)); // Not held open either, which matters where that forbids it.
    QVERIFY(!QFileInfo::exists(file + "-journal"));
}

void tst_UploadArray::tablesThatComputeAreNotAsked_data()
{
    QTest::addColumn<int>("table");
    QTest::addColumn<bool>("isView");
    QTest::newRow("projects are a view") << 0 << true;
    QTest::newRow("survey areas are a view") << 1 << true;
    QTest::newRow("tasks are a view") << 2 << true;
    QTest::newRow("points are a view") << 3 << true;
    QTest::newRow("projects have a generated column") << 0 << false;
    QTest::newRow("survey areas have a generated column") << 1 << false;
    QTest::newRow("tasks have a generated column") << 2 << false;
    QTest::newRow("points have a generated column") << 3 << false;
}

void tst_UploadArray::tablesThatComputeAreNotAsked()
{
    QFETCH(int, table);
    QFETCH(bool, isView);
    const QStringList names = {ProjectTableName, SurveyAreaTableName, MissionTableName,
                               MarkerPointTableName};
    QStringList statements = emptyTables();
    if (isView) { // With rows without end.
        statements[table] = "CREATE VIEW " + names[table]
            + " AS WITH RECURSIVE n(id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM n) SELECT id, "
              "'p' AS project_id, 'b' AS survey_area_guid, 'b' AS survey_block_id FROM n";
    } else {
        statements.append("ALTER TABLE " + names[table] + " ADD COLUMN c AS (1)");
    }
    if (table != 0 || !isView)
        statements.append(project("'p'", "A"));
    if (table != 1 || !isView)
        statements.append(block("'1'", "b", "p"));
    const QString file = newFile(statements);
    QVERIFY(!file.isEmpty());
    QCOMPARE(GetUploadArray(file), QByteArray("{}"));
}

QTEST_GUILESS_MAIN(tst_UploadArray)
#include "tst_UploadArray.moc"
