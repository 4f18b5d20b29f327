// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkAlgorthm/Constants.h>
#include <RkAlgorthm/TableLayouts.h>

#include <QtTest>

class tst_TableLayouts : public QObject
{
    Q_OBJECT

private slots:
    void columns_data();
    void columns();
    void noKeysAndNothingRequired_data();
    void noKeysAndNothingRequired();
    void newProjectRow();
    void manyRowsWithOneIdentifier();
    void versionStaysText();

private:
    static void addTables();
    QString fileWithTable(const QString& table, const QString& contents) const;

    TestHome m_home;
};

void tst_TableLayouts::addTables()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("contents");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("project") << ProjectTableName << GetProjectTableContents()
                             << QStringList{"id TEXT",
                                            "project_name TEXT",
                                            "user_id TEXT",
                                            "created_at TEXT",
                                            "updated_at TEXT",
                                            "version TEXT",
                                            "software_version TEXT",
                                            "map_scale INTEGER",
                                            "center_position_lat REAL",
                                            "center_position_lng REAL",
                                            "image_data TEXT"};
    QTest::newRow("survey area") << SurveyAreaTableName << GetSurveyAreaTableContents()
                                 << QStringList{"id TEXT",
                                                "survey_area_guid TEXT",
                                                "project_id TEXT",
                                                "survey_area_name TEXT",
                                                "camera_type TEXT",
                                                "plane_type TEXT",
                                                "block_type INTEGER",
                                                "survey_area_coordinate_points TEXT",
                                                "relative_fly_height REAL",
                                                "return_route INTEGER",
                                                "default_airspeed REAL",
                                                "air_line_angle REAL",
                                                "banding_offset_left REAL",
                                                "banding_offset_right REAL",
                                                "expected_route_count INTEGER",
                                                "expected_mission_count INTEGER",
                                                "including_transfer_points INTEGER",
                                                "generate_frame_route INTEGER",
                                                "longitudinal_outline_number INTEGER",
                                                "lateral_outline_number INTEGER",
                                                "connect_route INTEGER",
                                                "direction_of_flight INTEGER",
                                                "single_task_mileage REAL",
                                                "task_type INTEGER",
                                                "surround_margin REAL",
                                                "pitch_mode_of_tilt INTEGER",
                                                "route_generate_mode INTEGER",
                                                "camera_orientation INTEGER",
                                                "photograph_mode INTEGER",
                                                "margin_between_route_area_edge REAL",
                                                "pitch_angle_of_tilt REAL",
                                                "flying_mode INTEGER",
                                                "route_min_height REAL",
                                                "object_height REAL"};
    QTest::newRow("flight task") << MissionTableName << GetMissionTableContents()
                                 << QStringList{"id TEXT", "flight_task_guid TEXT",
                                                "survey_block_id TEXT", "flight_task_name TEXT"};
    QTest::newRow("marker point") << MarkerPointTableName << GetMarkerPointTableContents()
                                  << QStringList{"id TEXT", "project_id TEXT", "name TEXT",
                                                 "lat REAL", "lng REAL"};
    QTest::newRow("flight") << FlightMissionTableName << GetFlightMissionTableContents()
                            << QStringList{"id TEXT", "flight_task_id TEXT", "flown_at TEXT"};
}

QString tst_TableLayouts::fileWithTable(const QString& table, const QString& contents) const
{
    const QString file =
        m_home.path() + '/' + QString::fromLatin1(QTest::currentTestFunction()) + table + ".db";
    QFile::remove(file);
    return runSql(file, {"CREATE TABLE IF NOT EXISTS " + table + " " + contents}) ? file
                                                                                  : QString();
}

void tst_TableLayouts::columns_data()
{
    addTables();
}

void tst_TableLayouts::columns()
{
    QFETCH(QString, table);
    QFETCH(QString, contents);
    QFETCH(QStringList, expected);
    const QString file = fileWithTable(table, contents);
    QVERIFY(!file.isEmpty());
    const QStringList found =
        readSql(file, "select name||' '||type from pragma_table_info('" + table + "')");
    for (const QString& column : qAsConst(expected))
        QVERIFY2(found.contains(column), qPrintable(column));
}

void tst_TableLayouts::noKeysAndNothingRequired_data()
{
    addTables();
}

void tst_TableLayouts::noKeysAndNothingRequired()
{
    QFETCH(QString, table);
    QFETCH(QString, contents);
    const QString file = fileWithTable(table, contents);
    QVERIFY(!file.isEmpty());
    const QString info = "pragma_table_info('" + table + "')";
    QCOMPARE(readSql(file, "select name from " + info + " where \"notnull\" or pk"), QStringList());
    QCOMPARE(readSql(file, "select name from pragma_index_list('" + table + "')"), QStringList());
    QCOMPARE(readSql(file, "select \"table\" from pragma_foreign_key_list('" + table + "')"),
             QStringList());
    QVERIFY(runSql(file, {"INSERT INTO " + table + " DEFAULT VALUES"}));
}

void tst_TableLayouts::newProjectRow()
{
    const QString file = fileWithTable(ProjectTableName, GetProjectTableContents());
    QVERIFY(runSql(file,
                   {"INSERT INTO " + ProjectTableName
                    + " (project_name,id,user_id,created_at,version,updated_at,software_version) "
                      "VALUES ('Hill','p1','user-1','2026-01-02 03:04:05','1','2026-01-02 "
                      "03:04:05','1.0.0')"}));
    QCOMPARE(readSql(file,
                     "select id||project_name||version||software_version from " + ProjectTableName),
             QStringList("p1Hill11.0.0"));
    QCOMPARE(readSql(file,
                     "select count(*) from " + ProjectTableName
                         + " where map_scale is null and center_position_lat is null"
                           " and center_position_lng is null and image_data is null"),
             QStringList("1"));
}

void tst_TableLayouts::manyRowsWithOneIdentifier()
{
    const QString file = fileWithTable(SurveyAreaTableName, GetSurveyAreaTableContents());
    const QString insert =
        "INSERT INTO " + SurveyAreaTableName + " (id, survey_area_guid, project_id) VALUES ";
    QVERIFY(runSql(file,
                   {insert + "('a','a','p'),('b','b','p'),('c','c','p')",
                    "UPDATE " + SurveyAreaTableName + " SET id='s'",
                    "UPDATE " + SurveyAreaTableName + " SET survey_area_guid='s'"}));
    QCOMPARE(readSql(file, "select id||survey_area_guid from " + SurveyAreaTableName),
             QStringList({"ss", "ss", "ss"}));
}

void tst_TableLayouts::versionStaysText()
{
    const QString file = fileWithTable(ProjectTableName, GetProjectTableContents());
    QVERIFY(runSql(file,
                   {"INSERT INTO " + ProjectTableName + " (version) VALUES ('1')",
                    "UPDATE " + ProjectTableName + " SET version=2"}));
    QCOMPARE(readSql(file, "select typeof(version)||version from " + ProjectTableName),
             QStringList("text2"));
}

QTEST_GUILESS_MAIN(tst_TableLayouts)
#include "tst_TableLayouts.moc"
