// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectStoreSql.h"

#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QtTest>

class tst_ProjectStoreSql : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void createTables();
    void insertProject();
    void valuesMayHoldMarkers();
    void selectProject();
    void selectOutlines();
    void selectBlocks();
    void rewriteIdentifiers();
    void updateRenamed();

    void newProjectOnAFile();
    void copyOnAFile();
    void renameOnAFile();
    void quoteInANameChangesNothing();
    void computedTables_data();
    void computedTables();

private:
    QTemporaryDir m_dir;
    QString m_file;
    int m_number = 0;
};

namespace {

const ProjectStoreSql::NewProject hill = {"Hill", "id-1", "user-1", "2026-05-03 12:00:00"};

QString projectColumn(const QString& file, const QString& column)
{
    return readSql(file, "select " + column + " from " + ProjectTableName).value(0);
}

} // namespace

void tst_ProjectStoreSql::init()
{
    m_file = m_dir.filePath(QString("%1.proj").arg(++m_number));
}

void tst_ProjectStoreSql::createTables()
{
    const QStringList expected = {
        "CREATE TABLE IF NOT EXISTS " + ProjectTableName + " " + GetProjectTableContents(),
        "CREATE TABLE IF NOT EXISTS " + SurveyAreaTableName + " " + GetSurveyAreaTableContents(),
        "CREATE TABLE IF NOT EXISTS " + MissionTableName + " " + GetMissionTableContents(),
    };
    QCOMPARE(ProjectStoreSql::createTables(), expected);
}

void tst_ProjectStoreSql::insertProject()
{
    QCOMPARE(
        ProjectStoreSql::insertProject(hill),
        "INSERT INTO " + ProjectTableName
            + " (project_name,id,user_id,created_at,version,updated_at,software_version) "
              "VALUES ('Hill','id-1','user-1','2026-05-03 12:00:00','1','2026-05-03 12:00:00','"
            + VANTRELL_VERSION + "')");
}

void tst_ProjectStoreSql::valuesMayHoldMarkers()
{
    const QString sql = ProjectStoreSql::insertProject({"%2 %7", "%1", "%3", "%4"});
    QVERIFY2(sql.contains("VALUES ('%2 %7','%1','%3','%4','1','%4','"), qPrintable(sql));
}

void tst_ProjectStoreSql::selectProject()
{
    QCOMPARE(ProjectStoreSql::selectProject("user-1"),
             "select * from " + ProjectTableName + " where user_id='user-1'");
    QCOMPARE(ProjectStoreSql::selectProject(""),
             "select * from " + ProjectTableName + " where user_id=''");
}

void tst_ProjectStoreSql::selectOutlines()
{
    QCOMPARE(ProjectStoreSql::selectOutlines("id-1"),
             "select survey_area_coordinate_points from " + SurveyAreaTableName
                 + " where project_id='id-1'");
}

void tst_ProjectStoreSql::selectBlocks()
{
    QCOMPARE(ProjectStoreSql::selectBlocks("id-1"),
             "select survey_area_guid, survey_area_name, camera_type from " + SurveyAreaTableName
                 + " where project_id = 'id-1'");
}

void tst_ProjectStoreSql::rewriteIdentifiers()
{
    const QStringList expected = {
        "UPDATE " + ProjectTableName + " SET id = 'P'",
        "UPDATE " + ProjectTableName + " SET project_name = 'copy of Hill'",
        "UPDATE " + SurveyAreaTableName + " SET project_id='P'",
        "UPDATE " + SurveyAreaTableName + " SET id='S'",
        "UPDATE " + SurveyAreaTableName + " SET survey_area_guid='S'",
        "UPDATE " + MissionTableName + " SET survey_block_id='S'",
        "UPDATE " + MissionTableName + " SET id='M'",
        "UPDATE " + MissionTableName + " SET id='M'",
    };
    QCOMPARE(ProjectStoreSql::rewriteIdentifiers("copy of Hill", {"P", "S", "M"}), expected);
}

void tst_ProjectStoreSql::updateRenamed()
{
    QCOMPARE(ProjectStoreSql::selectVersion(), "select version from " + ProjectTableName);
    const QStringList expected = {
        "UPDATE " + ProjectTableName + " SET project_name = 'Dale'",
        "UPDATE " + ProjectTableName + " SET version=2",
        "UPDATE " + ProjectTableName + " SET updated_at=2026-05-03 12:00:00",
    };
    QCOMPARE(ProjectStoreSql::updateRenamed("Dale", "2", "2026-05-03 12:00:00"), expected);
    QCOMPARE(ProjectStoreSql::updateRenamed("Dale", "", "now")[1],
             "UPDATE " + ProjectTableName + " SET version=");
}

void tst_ProjectStoreSql::newProjectOnAFile()
{
    QVERIFY(runSql(m_file, ProjectStoreSql::createTables()));
    QVERIFY(runSql(m_file, ProjectStoreSql::createTables()));
    QVERIFY(runSql(m_file, {ProjectStoreSql::insertProject(hill)}));
    QCOMPARE(readSql(m_file, ProjectStoreSql::selectProject("user-1")).size(), 1);
    QCOMPARE(readSql(m_file, ProjectStoreSql::selectProject("user-2")).size(), 0);
    QCOMPARE(projectColumn(m_file, "project_name"), QString("Hill"));
    QCOMPARE(projectColumn(m_file, "version"), QString("1"));
    QCOMPARE(projectColumn(m_file, "created_at"), hill.now);
    QCOMPARE(projectColumn(m_file, "updated_at"), hill.now);
    QCOMPARE(projectColumn(m_file, "software_version"), VANTRELL_VERSION);
}

void tst_ProjectStoreSql::copyOnAFile()
{
    QStringList statements = ProjectStoreSql::createTables();
    statements.append(ProjectStoreSql::insertProject(hill));
    for (const char* area : {"a", "b", "c"}) {
        statements.append(
            "INSERT INTO " + SurveyAreaTableName
            + QString(" (id, survey_area_guid, project_id, survey_area_coordinate_points)"
                      " VALUES ('%1','%1','id-1','outline %1')")
                  .arg(area));
        statements.append("INSERT INTO " + MissionTableName
                          + QString(" (id, survey_block_id) VALUES ('m%1','%1')").arg(area));
    }
    QVERIFY(runSql(m_file, statements));
    QVERIFY(runSql(m_file, ProjectStoreSql::rewriteIdentifiers("copy of Hill", {"P", "S", "M"})));

    const QStringList threeS = {"S", "S", "S"};
    QCOMPARE(projectColumn(m_file, "id"), QString("P"));
    QCOMPARE(projectColumn(m_file, "project_name"), QString("copy of Hill"));
    QCOMPARE(readSql(m_file, "select id from " + SurveyAreaTableName), threeS);
    QCOMPARE(readSql(m_file, "select survey_area_guid from " + SurveyAreaTableName), threeS);
    QCOMPARE(readSql(m_file, "select survey_block_id from " + MissionTableName), threeS);
    QCOMPARE(readSql(m_file, "select id from " + MissionTableName), QStringList({"M", "M", "M"}));
    QCOMPARE(readSql(m_file, ProjectStoreSql::selectOutlines("P")),
             QStringList({"outline a", "outline b", "outline c"}));
    QCOMPARE(projectColumn(m_file, "user_id"), hill.userId);
    QCOMPARE(projectColumn(m_file, "updated_at"), hill.now);
}

void tst_ProjectStoreSql::renameOnAFile()
{
    QVERIFY(runSql(m_file, ProjectStoreSql::createTables()));
    QVERIFY(runSql(m_file, {ProjectStoreSql::insertProject(hill)}));
    QCOMPARE(readSql(m_file, ProjectStoreSql::selectVersion()), QStringList("1"));

    const QStringList statements =
        ProjectStoreSql::updateRenamed("Dale", "2", "2026-06-01 08:00:00");
    QVERIFY(runSql(m_file, {statements[0]}));
    QVERIFY(runSql(m_file, {statements[1]}));
    QVERIFY2(!runSql(m_file, {statements[2]}), "a time without quotes is no SQL");
    QCOMPARE(projectColumn(m_file, "project_name"), QString("Dale"));
    QCOMPARE(projectColumn(m_file, "version"), QString("2"));
    QCOMPARE(projectColumn(m_file, "updated_at"), hill.now);
}

void tst_ProjectStoreSql::quoteInANameChangesNothing()
{
    QVERIFY(runSql(m_file, ProjectStoreSql::createTables()));
    QVERIFY(!runSql(m_file,
                    {ProjectStoreSql::insertProject({"Ben's Hill", "id", "user-1", hill.now})}));
    QCOMPARE(readSql(m_file, ProjectStoreSql::selectProject("user-1")), QStringList());
}

void tst_ProjectStoreSql::computedTables_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<bool>("isComputed");
    const QString areas = SurveyAreaTableName;
    QTest::newRow("as made") << "CREATE INDEX i ON " + areas + " (project_id)" << false;
    QTest::newRow("no such table") << "DROP TABLE " + areas << false;
    QTest::newRow("another view") << "CREATE VIEW v AS SELECT 1" << false;
    QTest::newRow("a trigger") << "CREATE TRIGGER t DELETE ON " + areas + " BEGIN SELECT 1; END"
                               << false;
    QTest::newRow("a generated column") << "ALTER TABLE " + areas + " ADD COLUMN c AS (1)" << true;
}

void tst_ProjectStoreSql::computedTables()
{
    QFETCH(QString, statement);
    QVERIFY(runSql(m_file, ProjectStoreSql::createTables()));
    QVERIFY(runSql(m_file, {statement}));
    QTEST(!readSql(m_file, ProjectStoreSql::selectComputedTables()).isEmpty(), "isComputed");

    // The same table as a view, in other letters.
    QVERIFY(runSql(m_file,
                   {"ALTER TABLE " + ProjectTableName + " RENAME TO other",
                    "CREATE VIEW " + ProjectTableName.toUpper() + " AS SELECT * FROM other"}));
    QVERIFY(!readSql(m_file, ProjectStoreSql::selectComputedTables()).isEmpty());
}

QTEST_GUILESS_MAIN(tst_ProjectStoreSql)
#include "tst_ProjectStoreSql.moc"
