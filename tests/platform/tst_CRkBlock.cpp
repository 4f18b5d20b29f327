// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkAlgorthm/Constants.h>
#include <RkAlgorthm/TableLayouts.h>
#include <RkData/CRkBlock.h>
#include <RkData/CRkControl.h>
#include <RkData/CRkDataBase.h>
#include <RkData/CRkTask.h>
#include <RkData/CRkTaskPara.h>

#include <QtTest>

using Outline = QList<QPointF>;

namespace {

QString insertArea(const QString& project, const QString& guid, int type, const QString& outline)
{
    return "INSERT INTO " + SurveyAreaTableName
        + " (project_id, survey_area_guid, block_type, survey_area_coordinate_points) VALUES "
        + QStringLiteral("('%1','%2',%3,'%4')").arg(project, guid).arg(type).arg(outline);
}

QString insertTask(const QString& block, const QString& guid)
{
    return "INSERT INTO " + MissionTableName + " (survey_block_id, flight_task_guid) VALUES "
        + QStringLiteral("('%1','%2')").arg(block, guid);
}

QStringList taskIds(const CRkBlock& block)
{
    QStringList ids;
    for (const CRkTask* task : block.GetMissionList())
        ids.append(task->GetTaskID());
    return ids;
}

} // namespace

class tst_CRkBlock : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void emptyBlock();
    void setters();
    void load();
    void firstRowCounts();
    void noSuchRow_data();
    void noSuchRow();
    void failedLoadLeavesTheBlock();
    void loadAgainReplaces();
    void outline_data();
    void outline();
    void closedCentreLineStays();
    void blockType_data();
    void blockType();
    void oldOutlineIsTakenToWgs84();
    void withoutTaskTable();
    void withoutOptionalColumns();
    void quotesInIdentifiers();
    void tasksKeepTheirFlightCount();
    void taskParameters();
    void taskParametersByDefault();
    void blocksWithoutTaskParameters();

private:
    bool loadFrom(CRkBlock& block, const QString& guid,
                  const QString& project = QStringLiteral("p"),
                  const QString& version = QStringLiteral("1.0.0")) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_file;
};

void tst_CRkBlock::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_file = m_dir->filePath("p.proj");
    QVERIFY(runSql(m_file,
                   {"CREATE TABLE " + SurveyAreaTableName + " " + GetSurveyAreaTableContents(),
                    "CREATE TABLE " + MissionTableName + " " + GetMissionTableContents(),
                    insertArea("p", "a", BlockTypeArea, "30,104;30,106;32,106;32,104"),
                    insertArea("p", "b", BlockTypeStrip, "30,104;31,105"), insertTask("a", "t1"),
                    insertTask("b", "t2"), insertTask("a", "t3")}));
}

bool tst_CRkBlock::loadFrom(CRkBlock& block, const QString& guid, const QString& project,
                            const QString& version) const
{
    CRkDataBase database(m_file);
    block.SetBlockID(guid);
    return database.open() && block.Load(SurveyAreaTableName, project, version, &database);
}

void tst_CRkBlock::emptyBlock()
{
    const CRkBlock block;
    QCOMPARE(block.GetBlockID(), QString());
    QCOMPARE(block.GetAnchor(), Outline());
    QCOMPARE(block.GetBlockType(), BlockTypeNone);
    QVERIFY(block.GetMissionList().isEmpty());
    QVERIFY(!block.GetTaskPara());
    QCOMPARE(block.GetGravityPoint().Lat(), 0.0);
    QCOMPARE(block.GetGravityPoint().Lng(), 0.0);
}

void tst_CRkBlock::setters()
{
    CRkBlock block;
    block.SetBlockID("id");
    block.SetBlockType(BlockTypeArea);
    block.SetAnchor({{0, 0}, {0, 3}, {3, 0}, {0, 0}});
    block.AddTask(std::make_unique<CRkTask>("t"));
    block.AddTask(nullptr);
    QCOMPARE(block.GetBlockID(), QString("id"));
    QCOMPARE(block.GetBlockType(), BlockTypeArea);
    QCOMPARE(block.GetAnchor(), Outline({{0, 0}, {0, 3}, {3, 0}}));
    QCOMPARE(block.GetGravityPoint().Lat(), 1.0);
    QCOMPARE(block.GetGravityPoint().Lng(), 1.0);
    QCOMPARE(taskIds(block), QStringList("t"));
}

void tst_CRkBlock::load()
{
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QCOMPARE(block.GetBlockID(), QString("a"));
    QCOMPARE(block.GetBlockType(), BlockTypeArea);
    QCOMPARE(block.GetAnchor(), Outline({{30, 104}, {30, 106}, {32, 106}, {32, 104}}));
    QCOMPARE(block.GetGravityPoint().Lat(), 31.0);
    QCOMPARE(block.GetGravityPoint().Lng(), 105.0);
    QCOMPARE(taskIds(block), QStringList({"t1", "t3"}));
}

void tst_CRkBlock::firstRowCounts()
{
    // The blocks of a copied project all bear one identifier.
    QVERIFY(runSql(m_file,
                   {"UPDATE " + SurveyAreaTableName + " SET survey_area_guid='s'",
                    "UPDATE " + MissionTableName + " SET survey_block_id='s'"}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "s"));
    QCOMPARE(block.GetAnchor().size(), 4);
    QCOMPARE(taskIds(block), QStringList({"t1", "t2", "t3"}));
}

void tst_CRkBlock::noSuchRow_data()
{
    QTest::addColumn<QString>("guid");
    QTest::addColumn<QString>("project");
    QTest::newRow("other block") << "c"
                                 << "p";
    QTest::newRow("other project") << "a"
                                   << "q";
    QTest::newRow("no block") << ""
                              << "p";
    QTest::newRow("no project") << "a"
                                << "";
}

void tst_CRkBlock::noSuchRow()
{
    QFETCH(QString, guid);
    QFETCH(QString, project);
    CRkBlock block;
    QVERIFY(!loadFrom(block, guid, project));
}

void tst_CRkBlock::failedLoadLeavesTheBlock()
{
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QVERIFY(!loadFrom(block, "a", "q"));
    QVERIFY(!block.Load(SurveyAreaTableName, "p", "1.0.0", nullptr));
    CRkDataBase closed(m_file);
    QVERIFY(!block.Load(SurveyAreaTableName, "p", "1.0.0", &closed));
    CRkDataBase opened(m_file);
    QVERIFY(opened.open());
    QVERIFY(!block.Load("no_such_table", "p", "1.0.0", &opened));
    QCOMPARE(block.GetAnchor().size(), 4);
    QCOMPARE(taskIds(block), QStringList({"t1", "t3"}));
}

void tst_CRkBlock::loadAgainReplaces()
{
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QVERIFY(loadFrom(block, "b"));
    QCOMPARE(block.GetBlockType(), BlockTypeStrip);
    QCOMPARE(block.GetAnchor(), Outline({{30, 104}, {31, 105}}));
    QCOMPARE(taskIds(block), QStringList("t2"));
}

void tst_CRkBlock::outline_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Outline>("expected");
    const Outline triangle = {{30.5, 104.1}, {30.6, 104.1}, {30.6, 104.2}};
    QTest::newRow("closed ring") << "30.5,104.1;30.6,104.1;30.6,104.2;30.5,104.1" << triangle;
    QTest::newRow("separator at the end") << "30.5,104.1;30.6,104.1;30.6,104.2;" << triangle;
    QTest::newRow("three numbers") << "30.5,104.1;1,2,3;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("one number") << "30.5,104.1;1;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("words") << "30.5,104.1;x,y;30.6,104.1;30.6,z;30.6,104.2" << triangle;
    QTest::newRow("not finite") << "30.5,104.1;nan,104;30.6,104.1;30,inf;30.6,104.2" << triangle;
    QTest::newRow("empty") << "" << Outline();
    QTest::newRow("one point") << "30.5,104.1" << Outline({{30.5, 104.1}});
    QTest::newRow("nonsense") << ";;,,;," << Outline();
}

void tst_CRkBlock::outline()
{
    QFETCH(QString, text);
    QVERIFY(runSql(m_file, {insertArea("p", "o", BlockTypeArea, text)}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "o"));
    QTEST(block.GetAnchor(), "expected");
}

void tst_CRkBlock::closedCentreLineStays()
{
    QVERIFY(runSql(m_file, {insertArea("p", "o", BlockTypeStrip, "30,104;31,104;31,105;30,104")}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "o"));
    QCOMPARE(block.GetAnchor().size(), 4);
}

void tst_CRkBlock::blockType_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("expected");
    QTest::newRow("area") << "1" << int(BlockTypeArea);
    QTest::newRow("strip") << "2" << int(BlockTypeStrip);
    QTest::newRow("none") << "0" << int(BlockTypeNone);
    QTest::newRow("unknown") << "3" << int(BlockTypeNone);
    QTest::newRow("negative") << "-1" << int(BlockTypeNone);
    QTest::newRow("null") << "NULL" << int(BlockTypeNone);
    QTest::newRow("word") << "'strip'" << int(BlockTypeNone);
}

void tst_CRkBlock::blockType()
{
    QFETCH(QString, stored);
    QVERIFY(runSql(m_file, {"UPDATE " + SurveyAreaTableName + " SET block_type=" + stored}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QTEST(int(block.GetBlockType()), "expected");
}

void tst_CRkBlock::oldOutlineIsTakenToWgs84()
{
    CRkBlock block;
    QVERIFY(loadFrom(block, "a", "p", "0.9.0"));
    double lat = 0;
    double lng = 0;
    CRkControl::ResetToWGS84(30, 104, &lat, &lng);
    QVERIFY(lat != 30 && lng != 104);
    QCOMPARE(block.GetAnchor().first(), QPointF(lat, lng));
    QVERIFY(loadFrom(block, "a", "p", QString()));
    QCOMPARE(block.GetAnchor().first(), QPointF(30, 104));
}

void tst_CRkBlock::withoutTaskTable()
{
    QVERIFY(runSql(m_file, {"DROP TABLE " + MissionTableName}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QVERIFY(block.GetMissionList().isEmpty());
}

void tst_CRkBlock::withoutOptionalColumns()
{
    QVERIFY(
        runSql(m_file,
               {"DROP TABLE " + SurveyAreaTableName,
                "CREATE TABLE " + SurveyAreaTableName + " (project_id TEXT, survey_area_guid TEXT)",
                "INSERT INTO " + SurveyAreaTableName + " VALUES ('p','a')"}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QCOMPARE(block.GetBlockType(), BlockTypeNone);
    QVERIFY(block.GetAnchor().isEmpty());
    QCOMPARE(taskIds(block), QStringList({"t1", "t3"}));
}

void tst_CRkBlock::quotesInIdentifiers()
{
    QVERIFY(runSql(m_file,
                   {insertArea("p''s", "o''x", BlockTypeArea, "1,2"), insertTask("o''x", "t''9")}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "o'x", "p's"));
    QCOMPARE(taskIds(block), QStringList("t'9"));
    QVERIFY(!loadFrom(block, "x' or '1'='1"));
}

void tst_CRkBlock::tasksKeepTheirFlightCount()
{
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    QCOMPARE(block.GetMissionList().first()->m_nFlightCount, 0);
    block.GetMissionList().first()->m_nFlightCount = 7;
    QCOMPARE(block.GetMissionList().first()->m_nFlightCount, 7);
    QCOMPARE(block.GetMissionList().last()->m_nFlightCount, 0);
}

void tst_CRkBlock::taskParameters()
{
    QVERIFY(runSql(
        m_file,
        {"UPDATE " + SurveyAreaTableName
         + " SET plane_type='Quadrotor', camera_type='Thermal', relative_fly_height=320.5,"
           " return_route=1, default_airspeed=17.5, air_line_angle=33.5, banding_offset_left=110,"
           " banding_offset_right=120, expected_route_count=21, expected_mission_count=3,"
           " including_transfer_points=1, generate_frame_route=1, longitudinal_outline_number=4,"
           " lateral_outline_number=5, connect_route=1, direction_of_flight=2,"
           " single_task_mileage=12.25, task_type=2, surround_margin=41.5, pitch_mode_of_tilt=6,"
           " route_generate_mode=1, camera_orientation=7, photograph_mode=8,"
           " margin_between_route_area_edge=42.5, pitch_angle_of_tilt=43.5, flying_mode=9,"
           " route_min_height=44.5, object_height=45.5 WHERE survey_area_guid='a'"}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    const CRkTaskPara* const task = block.GetTaskPara();
    QVERIFY(task);
    QCOMPARE(task->GetAirLineParam().GetRelativeFlyHeight(), 320.5);
    QCOMPARE(task->GetPlaneType(), PlaneTypeQuadrotor);
    QCOMPARE(task->GetCameraType(), CameraTypeThermal);
    QCOMPARE(task->IsReturnRoute(), true);
    QCOMPARE(task->GetDefaultAirspeed(), 17.5);
    QCOMPARE(task->GetAirLineAngle(), 33.5);
    double left = 0;
    double right = 0;
    task->GetBandingOffset(left, right);
    QCOMPARE(left, 110.0);
    QCOMPARE(right, 120.0);
    QCOMPARE(task->GetExpectedRouteCount(), 21);
    QCOMPARE(task->GetExpectedMissionCount(), 3);
    QCOMPARE(task->GetIncludingTransferPoints(), true);
    QCOMPARE(task->GetGenerateFrameRoute(), true);
    QCOMPARE(task->GetLongitudinalOutlineNumber(), 4);
    QCOMPARE(task->GetLateralOutlineNumber(), 5);
    QCOMPARE(task->IsConnectRoute(), true);
    QCOMPARE(task->GetDirectionOfFlight(), 2);
    QCOMPARE(task->GetBlockSingleTaskMileage(), 12.25);
    const CRkExtendedTaskParam* const extended = task->GetExtendedTaskParam();
    QVERIFY(extended);
    QCOMPARE(extended->GetTaskType(), TaskTypeSurround);
    QCOMPARE(extended->GetSurroundMragin(), 41.5);
    QCOMPARE(extended->GetPitchModeOfTilt(), 6);
    QCOMPARE(extended->GetRouteGenerateMode(), RouteGenerateTerrainFollowing);
    QCOMPARE(extended->GetCameraOrientation(), 7);
    QCOMPARE(extended->GetPhotographMode(), 8);
    QCOMPARE(extended->GetMarginBetweenRouteAreaEdge(), 42.5);
    QCOMPARE(extended->GetPitchAngleOfTilt(), 43.5);
    QCOMPARE(extended->GetFlyingMode(), 9);
    QCOMPARE(extended->GetRouteMinHeight(), 44.5);
    QCOMPARE(extended->GetObjectHeight(), 45.5);
}

void tst_CRkBlock::taskParametersByDefault()
{
    QVERIFY(runSql(m_file,
                   {"UPDATE " + SurveyAreaTableName
                    + " SET relative_fly_height='high', air_line_angle=9e999, default_airspeed='?'"
                      " WHERE survey_area_guid='a'"}));
    CRkBlock block;
    QVERIFY(loadFrom(block, "a"));
    const CRkTaskPara* const task = block.GetTaskPara();
    QVERIFY(task);
    QCOMPARE(task->GetAirLineParam().GetRelativeFlyHeight(), 0.0);
    QCOMPARE(task->GetAirLineAngle(), -1.0);
    QCOMPARE(task->GetDefaultAirspeed(), 0.0);
    QCOMPARE(task->GetPlaneType(), PlaneTypeUnknown);
    QCOMPARE(task->IsReturnRoute(), false);
    QCOMPARE(task->GetBlockSingleTaskMileage(), -1.0);
    QVERIFY(!task->GetExtendedTaskParam());
}

void tst_CRkBlock::blocksWithoutTaskParameters()
{
    QVERIFY(runSql(m_file,
                   {"UPDATE " + SurveyAreaTableName
                    + " SET task_type=1, default_airspeed=3 WHERE survey_area_guid='a'"}));
    CRkBlock block;
    block.SetTaskPara(std::make_unique<CRkTaskPara>());
    QVERIFY(block.GetTaskPara());
    QVERIFY(!loadFrom(block, "no such block"));
    QVERIFY(block.GetTaskPara());
    QVERIFY(loadFrom(block, "a"));
    QVERIFY(!block.GetTaskPara());
}

QTEST_GUILESS_MAIN(tst_CRkBlock)
#include "tst_CRkBlock.moc"
