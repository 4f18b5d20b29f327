// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockStore.h"

#include "BlockFixture.h"
#include "project/BlockStoreSql.h"
#include "project/ProjectStoreSql.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>

#include <QFileInfo>
#include <QRandomGenerator>
#include <QtTest>

#include <memory>

using BlockStore::Block;

namespace {

/// Ids that a comparison may take for another, and such that break out of a statement.
const QStringList oddIds = {"a",
                            "A",
                            "1",
                            "01",
                            " 1",
                            "1.0",
                            "1e0",
                            "it's",
                            "测区",
                            "%1",
                            "",
                            "x' or '1'='1",
                            "a ",
                            "--",
                            "\"a\"",
                            "\U0001F681",
                            QString(QChar(0xd83d)),
                            QString("a") + QChar(0) + "b"};

QList<Block> blocksOf(const QStringList& ids)
{
    QList<Block> blocks;
    for (const QString& id : ids)
        blocks.append({id, "name", CameraTypeThermal, PlaneTypeQuadrotor});
    return blocks;
}

/// Puts a block with those tasks into the block manager.
CRkBlock* addBlock(const QString& id, const QStringList& taskIds)
{
    auto block = std::make_unique<CRkBlock>();
    block->SetBlockID(id);
    for (const QString& taskId : taskIds)
        block->AddTask(std::make_unique<CRkTask>(taskId));
    CRkBlockManager::instance().AddBlock(block.release());
    return CRkBlockManager::instance().GetBlock(id);
}

QStringList taskIdsOf(const CRkBlock& block)
{
    QStringList ids;
    for (const CRkTask* task : block.GetMissionList())
        ids.append(task->GetTaskID());
    return ids;
}

QList<int> flightsOfTasks(const CRkBlock& block)
{
    QList<int> counts;
    for (const CRkTask* task : block.GetMissionList())
        counts.append(task->m_nFlightCount);
    return counts;
}

/// A statement for each task, as the counts are defined; none for an id that would be a part of it.
QList<int> literalFlights(const QString& projectFile, const CRkBlock& block)
{
    QList<int> counts;
    for (const CRkTask* task : block.GetMissionList()) {
        const QString id = task->GetTaskID();
        const QStringList found = ProjectStoreSql::staysQuoted(id)
            ? readSql(flightsOf(projectFile), BlockStoreSql::countFlights(id))
            : QStringList();
        counts.append(found.value(0).toInt());
    }
    return counts;
}

bool literallyHasTasks(const QString& projectFile, const QString& blockId)
{
    return ProjectStoreSql::staysQuoted(blockId)
        && !readSql(projectFile, BlockStoreSql::selectTasks(blockId)).isEmpty();
}

} // namespace

class tst_BlockStore : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void loadGivesTheProjectAndItsBlocks();
    void missingFileIsNotMade();
    void folderIsNoFile();
    void fileWithoutAProjectOfTheUser();
    void modified_data();
    void modified();
    void oldDatum();
    void lastRowOfAUserHolds();
    void unknownTypes();
    void rowWhoseBlockCannotBeLoaded();
    void projectIdThatIsAStatement();
    void blockInTheManagerStays();
    void blocksAsLoadedOneByOne_data();
    void blocksAsLoadedOneByOne();
    void computedTables_data();
    void computedTables();
    void loadLeavesTheFileAlone();

    void countOfASharedId();
    void countWithoutFlightFile();
    void countOfAFlightFileThatIsNone();
    void countOfTasksThatTheFileLacks();
    void countIsThatOfTheBlock();
    void oddIdsAsAskedOneByOne_data();
    void oddIdsAsAskedOneByOne();
    void recount();
    void recountWithoutProject();
    void manyBlocksWithoutAnIndex();

private:
    const QString& root() const { return m_root; }

    std::unique_ptr<TestHome> m_home;
    QString m_root;
};

void tst_BlockStore::init()
{
    ClearBlocks();
    m_home = std::make_unique<TestHome>();
    m_root = m_home->projectRoot();
}

void tst_BlockStore::loadGivesTheProjectAndItsBlocks()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "north", {{"t1", 2}}}, {"b2", "south"}};
    const QString file = fixture.write(root());
    const auto project = BlockStore::load(file, "user-1");
    QVERIFY(project);
    QCOMPARE(project->info.projectName, QString("Hill"));
    QCOMPARE(project->info.projectFilePath, file);
    QCOMPARE(project->info.projectId, QString("id-of-Hill"));
    QCOMPARE(project->info.softwareVersion, QString("1.0.0"));
    QCOMPARE(project->info.mapScale, 2000);
    QCOMPARE(project->info.centerLat, 30.66);
    QCOMPARE(project->info.centerLng, 104.06);
    QCOMPARE(project->modified, QString("2026/05/03 12:34"));
    QCOMPARE(project->blocks.size(), 2);
    QCOMPARE(project->blocks[0].id, QString("b1"));
    QCOMPARE(project->blocks[0].name, QString("north"));
    QCOMPARE(project->blocks[0].planeType, PlaneTypeQuadrotor);
    QCOMPARE(project->blocks[0].cameraType, CameraTypeThermal);
    QCOMPARE(project->blocks[1].id, QString("b2"));
    QCOMPARE(taskIdsOf(*CRkBlockManager::instance().GetBlock("b1")), QStringList("t1"));
}

void tst_BlockStore::missingFileIsNotMade()
{
    const QString file = root() + "none/none.proj";
    QVERIFY(QDir().mkpath(root() + "none"));
    QVERIFY(!BlockStore::load(file, "user-1"));
    QVERIFY(!BlockStore::load(QString(), "user-1"));
    addBlock("b", {"t"});
    QVERIFY(BlockStore::count(file, blocksOf({"b"})).isEmpty());
    QCOMPARE(QDir(root() + "none").entryList(QDir::Files), QStringList());
}

void tst_BlockStore::folderIsNoFile()
{
    QVERIFY(QDir().mkpath(root() + "x.proj"));
    QVERIFY(!BlockStore::load(root() + "x.proj", "user-1"));
}

void tst_BlockStore::fileWithoutAProjectOfTheUser()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "north"}};
    const auto project = BlockStore::load(fixture.write(root()), "user-2");
    QVERIFY(project);
    QVERIFY(project->info.projectFilePath.isEmpty());
    QVERIFY(project->info.projectId.isEmpty());
    QVERIFY(project->modified.isEmpty());
    QVERIFY(project->blocks.isEmpty());
}

void tst_BlockStore::modified_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("readable");
    QTest::newRow("time") << "'2026-12-31 23:59:59'"
                          << "2026/12/31 23:59";
    QTest::newRow("no time") << "'yesterday'"
                             << "yesterday";
    QTest::newRow("other format") << "'2026-12-31T23:59:59'"
                                  << "2026-12-31T23:59:59";
    QTest::newRow("no such day") << "'2026-02-30 10:00:00'"
                                 << "2026-02-30 10:00:00";
    QTest::newRow("number") << "20261231"
                            << "20261231";
    QTest::newRow("empty") << "''"
                           << "";
    QTest::newRow("null") << "NULL"
                          << "";
}

void tst_BlockStore::modified()
{
    QFETCH(QString, stored);
    const QString file = BlockFixture{"Hill"}.write(root());
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET updated_at=" + stored}));
    QTEST(BlockStore::load(file, "user-1")->modified, "readable");
}

void tst_BlockStore::oldDatum()
{
    BlockFixture fixture{"Hill"};
    fixture.softwareVersion = "0.9.8";
    const auto project = BlockStore::load(fixture.write(root()), "user-1");
    double lat = 0;
    double lng = 0;
    CRkControl::ResetToWGS84(30.66, 104.06, &lat, &lng);
    QVERIFY(lat != 30.66);
    QCOMPARE(project->info.centerLat, lat);
    QCOMPARE(project->info.centerLng, lng);
}

void tst_BlockStore::lastRowOfAUserHolds()
{
    const QString file = BlockFixture{"Hill"}.write(root());
    QVERIFY(runSql(file,
                   {"INSERT INTO " + ProjectTableName
                    + " (id, project_name, user_id) VALUES ('second', 'Dale', 'user-1')"}));
    const auto project = BlockStore::load(file, "user-1");
    QCOMPARE(project->info.projectName, QString("Dale"));
    QCOMPARE(project->info.projectId, QString("second"));
    QCOMPARE(project->info.mapScale, 0);
    QVERIFY2(project->modified == "2026/05/03 12:34", "a row without a time names none");
}

void tst_BlockStore::unknownTypes()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {}, "glider", "pinhole"}, {"b2", "two", {}, "", ""}};
    const auto project = BlockStore::load(fixture.write(root()), "user-1");
    QCOMPARE(project->blocks.size(), 2);
    for (const Block& block : project->blocks) {
        QCOMPARE(int(block.planeType), 1);
        QCOMPARE(int(block.cameraType), 1);
    }
}

void tst_BlockStore::rowWhoseBlockCannotBeLoaded()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one"}, {"b2", "two"}};
    const QString file = fixture.write(root());
    QVERIFY(runSql(file,
                   {"UPDATE " + SurveyAreaTableName
                    + " SET survey_area_guid=NULL WHERE survey_area_guid='b1'"}));
    const auto project = BlockStore::load(file, "user-1");
    QCOMPARE(project->blocks.size(), 1);
    QCOMPARE(project->blocks[0].id, QString("b2"));
    QVERIFY(!CRkBlockManager::instance().GetBlock("b1"));
}

void tst_BlockStore::projectIdThatIsAStatement()
{
    BlockFixture fixture{"Hill"};
    fixture.id = "x' or '1'='1";
    fixture.blocks = {{"b1", "one"}};
    const QString file = fixture.write(root());
    QVERIFY(runSql(file, {"UPDATE " + SurveyAreaTableName + " SET project_id='other'"}));
    addBlock("b1", {});
    QVERIFY(BlockStore::load(file, "user-1")->blocks.isEmpty());
}

void tst_BlockStore::blockInTheManagerStays()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 1}}}};
    const CRkBlock* known = addBlock("b1", {"other"});
    QVERIFY(BlockStore::load(fixture.write(root()), "user-1"));
    QCOMPARE(CRkBlockManager::instance().GetBlock("b1"), known);
    QCOMPARE(taskIdsOf(*known), QStringList("other"));
}

void tst_BlockStore::blocksAsLoadedOneByOne_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::newRow("our tables") << QStringList();
    // Letter case then does not matter: each block has the tasks of the other, too.
    QTest::newRow("a column with a collation")
        << QStringList({"ALTER TABLE " + MissionTableName + " RENAME TO other",
                        "CREATE TABLE " + MissionTableName
                            + " (flight_task_guid TEXT, survey_block_id TEXT COLLATE NOCASE)",
                        "INSERT INTO " + MissionTableName
                            + " SELECT flight_task_guid, survey_block_id FROM other"});
}

void tst_BlockStore::blocksAsLoadedOneByOne()
{
    QFETCH(QStringList, statements);
    BlockFixture fixture{"Hill"};
    fixture.softwareVersion = "0.9.8";
    for (const char* id : {"a", "A", "1", "01", "it's", "测区", "a"})
        fixture.blocks.append({id, "name", {{QString("t-") + id, 0}, {"u", 0}}});
    const QString file = fixture.write(root());
    QVERIFY(runSql(file,
                   {"UPDATE " + SurveyAreaTableName
                        + " SET block_type = 1 + rowid % 2, survey_area_coordinate_points ="
                          " '30.' || rowid || ',104;30,105;31,105'",
                    "INSERT INTO " + SurveyAreaTableName
                        + " (survey_area_guid, project_id) VALUES (NULL, 'id-of-Hill')"}));
    QVERIFY(runSql(file, statements));

    const auto project = BlockStore::load(file, "user-1");
    QCOMPARE(project->blocks.size(), fixture.blocks.size());
    for (int i = 0; i < project->blocks.size(); ++i) {
        const QString id = fixture.blocks[i].id;
        QCOMPARE(project->blocks[i].id, id);
        CRkDataBase database(file);
        QVERIFY(database.open());
        CRkBlock expected;
        expected.SetBlockID(id);
        QVERIFY(expected.Load(SurveyAreaTableName, "id-of-Hill", "0.9.8", &database));
        const CRkBlock* block = CRkBlockManager::instance().GetBlock(id);
        QCOMPARE(taskIdsOf(*block), taskIdsOf(expected));
        QCOMPARE(block->GetAnchor(), expected.GetAnchor());
        QCOMPARE(block->GetBlockType(), expected.GetBlockType());
    }
}

void tst_BlockStore::computedTables_data()
{
    QTest::addColumn<QString>("table");
    for (const QString& table : {ProjectTableName, SurveyAreaTableName, MissionTableName})
        QTest::newRow(qPrintable(table)) << table;
}

void tst_BlockStore::computedTables()
{
    QFETCH(QString, table);
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 1}}}};
    const QString file = fixture.write(root());
    QVERIFY(runSql(file,
                   {"ALTER TABLE " + table + " RENAME TO other",
                    "CREATE VIEW " + table
                        + " AS WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n)"
                          " SELECT other.* FROM other, n"}));
    const auto project = BlockStore::load(file, "user-1");
    QVERIFY2(project, "the file can be opened");
    QVERIFY(project->info.projectId.isEmpty());
    QVERIFY(project->blocks.isEmpty());
    addBlock("b1", {"t1"});
    if (table == MissionTableName)
        QVERIFY(BlockStore::count(file, blocksOf({"b1"})).isEmpty());
}

void tst_BlockStore::loadLeavesTheFileAlone()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 1}}}};
    const QString file = fixture.write(root());
    const QByteArray project = readFile(file);
    const QByteArray flights = readFile(flightsOf(file));
    QVERIFY(BlockStore::load(file, "user-1"));
    QCOMPARE(BlockStore::count(file, blocksOf({"b1"})).value("b1").flights, 1);
    QCOMPARE(readFile(file), project);
    QCOMPARE(readFile(flightsOf(file)), flights);
    QCOMPARE(QFileInfo(file).dir().entryList(QDir::Files).size(), 2);
}

void tst_BlockStore::countOfASharedId()
{
    BlockFixture fixture{"copy"};
    fixture.blocks = {{"S", "one", {{"t1", 1}, {"t2", 2}}}, {"S", "two", {{"t3", 4}}}};
    const QString file = fixture.write(root());
    const auto project = BlockStore::load(file, "user-1");
    QCOMPARE(project->blocks.size(), 2);
    const auto counts = BlockStore::count(file, project->blocks);
    QCOMPARE(counts.size(), 1);
    QCOMPARE(counts["S"].tasks, 3);
    QCOMPARE(counts["S"].flights, 7);
}

void tst_BlockStore::countWithoutFlightFile()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 1}}}};
    const QString file = fixture.write(root());
    QVERIFY(QFile::remove(flightsOf(file)));
    addBlock("b1", {"t1"})->GetMissionList()[0]->m_nFlightCount = 5;
    const auto counts = BlockStore::count(file, blocksOf({"b1"}));
    QCOMPARE(counts["b1"].tasks, 0);
    QCOMPARE(counts["b1"].flights, 0);
    QVERIFY(!QFileInfo::exists(flightsOf(file)));
    QCOMPARE(CRkBlockManager::instance().GetBlock("b1")->GetMissionList()[0]->m_nFlightCount, 5);

    QVERIFY2(QDir().mkpath(flightsOf(file)), "a folder cannot be opened either");
    QCOMPARE(BlockStore::count(file, blocksOf({"b1"}))["b1"].tasks, 0);
    QCOMPARE(CRkBlockManager::instance().GetBlock("b1")->GetMissionList()[0]->m_nFlightCount, 5);
}

void tst_BlockStore::countOfAFlightFileThatIsNone()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 1}, {"it's", 1}}}};
    const QString file = fixture.write(root());
    QVERIFY(writeFile(flightsOf(file), "Backup list of the field office, kept here by mistake."));
    addBlock("b1", {"t1", "it's"})->GetMissionList()[0]->m_nFlightCount = 5;
    const auto counts = BlockStore::count(file, blocksOf({"b1"}));
    QCOMPARE(counts["b1"].tasks, 2);
    QCOMPARE(counts["b1"].flights, 0);
    QCOMPARE(CRkBlockManager::instance().GetBlock("b1")->GetMissionList()[0]->m_nFlightCount, 0);

    QVERIFY(QFile::remove(flightsOf(file)));
    QVERIFY(runSql(flightsOf(file),
                   {"CREATE TABLE other (id, flight_task_id)",
                    "CREATE VIEW " + FlightMissionTableName
                        + " AS WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n)"
                          " SELECT 'f' id, 't1' flight_task_id FROM n"}));
    QCOMPARE(BlockStore::count(file, blocksOf({"b1"}))["b1"].tasks, 2);
    QCOMPARE(BlockStore::count(file, blocksOf({"b1"}))["b1"].flights, 0);
}

void tst_BlockStore::countOfTasksThatTheFileLacks()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"gone", 3}}}, {"b2", "two", {{"here", 1}}}};
    const QString file = fixture.write(root());
    const auto project = BlockStore::load(file, "user-1");
    QVERIFY(runSql(file, {"DELETE FROM " + MissionTableName + " WHERE survey_block_id='b1'"}));
    const auto counts = BlockStore::count(file, project->blocks);
    QVERIFY2(!counts.contains("b1"), "the file has no task of the block any more");
    QCOMPARE(counts["b2"].tasks, 1);

    // A task without its identifier is a task.
    QVERIFY(runSql(file, {"INSERT INTO " + MissionTableName + " (survey_block_id) VALUES ('b1')"}));
    QCOMPARE(BlockStore::count(file, project->blocks)["b1"].flights, 3);
    QVERIFY(runSql(file, {"ALTER TABLE " + MissionTableName + " DROP COLUMN flight_task_guid"}));
    QVERIFY(BlockStore::count(file, project->blocks).isEmpty());
}

void tst_BlockStore::countIsThatOfTheBlock()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 1}}}, {"b2", "two", {{"t2", 1}}}};
    const QString file = fixture.write(root());
    addBlock("b1", {"t1", "t1", "t2"});
    addBlock("b2", {});
    const auto counts = BlockStore::count(file, blocksOf({"b1", "b2", "unknown"}));
    QCOMPARE(counts["b1"].tasks, 3);
    QCOMPARE(counts["b1"].flights, 3);
    QCOMPARE(counts["b2"].tasks, 0);
    QVERIFY(!counts.contains("unknown"));
}

void tst_BlockStore::oddIdsAsAskedOneByOne_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("index");
    const QString index = "CREATE INDEX %1_i ON %1 (%2)";
    QTest::newRow("text") << "TEXT" << QString();
    QTest::newRow("text with an index") << "TEXT" << index;
    QTest::newRow("integer") << "INTEGER" << QString();
    QTest::newRow("integer with an index") << "INTEGER" << index;
    QTest::newRow("real") << "REAL" << QString();
    QTest::newRow("no type") << "" << QString();
    QTest::newRow("no type with an index") << "" << index;
    QTest::newRow("blob") << "BLOB" << QString();
    QTest::newRow("without letter case") << "TEXT COLLATE NOCASE" << index;
    QTest::newRow("without trailing blanks") << "TEXT COLLATE RTRIM" << QString();
}

void tst_BlockStore::oddIdsAsAskedOneByOne()
{
    QFETCH(QString, type);
    QFETCH(QString, index);
    const QString file = root() + "odd/odd.proj";
    QVERIFY(runSql(file,
                   {"CREATE TABLE " + MissionTableName + " (flight_task_guid, survey_block_id "
                    + type + ")"}));
    // Columns that the statements could take for their own.
    QVERIFY(runSql(flightsOf(file),
                   {"CREATE TABLE " + FlightMissionTableName
                    + " (id, number, value, asked_id, "
                      "flight_task_id "
                    + type + ")"}));
    QRandomGenerator random(7);
    const auto anyId = [&] { return oddIds[random.bounded(oddIds.size())]; };
    QStringList tasks = {"BEGIN"};
    QStringList flights = {"BEGIN"};
    const QStringList values = {"'a'", "'A'",  "1",    "'1'",     "'01'",   "1.0",         "x'61'",
                                "''",  "NULL", "'a '", "'it''s'", "'测区'", "'\U0001F681'"};
    for (int i = 0; i < 300; ++i) {
        const QString value = values[random.bounded(values.size())];
        if (i % 10 == 0)
            tasks.append("INSERT INTO " + MissionTableName + " VALUES ('t', " + value + ")");
        flights.append("INSERT INTO " + FlightMissionTableName + " VALUES ("
                       + (i % 7 == 0 ? "NULL" : "'f'") + ", 5, 'a', 'a', " + value + ")");
    }
    QVERIFY(runSql(file, tasks << "COMMIT"));
    QVERIFY(runSql(flightsOf(file), flights << "COMMIT"));
    if (!index.isEmpty()) {
        QVERIFY(runSql(file, {index.arg(MissionTableName, "survey_block_id")}));
        QVERIFY(runSql(flightsOf(file), {index.arg(FlightMissionTableName, "flight_task_id")}));
    }

    for (const QString& id : oddIds) {
        QStringList taskIds;
        for (int i = random.bounded(8); i >= 0; --i)
            taskIds.append(anyId());
        addBlock(id, taskIds);
    }
    const auto counts = BlockStore::count(file, blocksOf(oddIds));
    int withFlights = 0;
    for (const QString& id : oddIds) {
        const CRkBlock& block = *CRkBlockManager::instance().GetBlock(id);
        QCOMPARE(counts.contains(id), literallyHasTasks(file, id));
        if (!counts.contains(id))
            continue;
        const QList<int> expected = literalFlights(file, block);
        QCOMPARE(flightsOfTasks(block), expected);
        QCOMPARE(counts[id].tasks, expected.size());
        QCOMPARE(counts[id].flights, std::accumulate(expected.begin(), expected.end(), 0));
        withFlights += counts[id].flights > 0 ? 1 : 0;
    }
    QVERIFY(withFlights > 0);
}

void tst_BlockStore::recount()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "one", {{"t1", 2}, {"t2", 0}}}};
    const QString file = fixture.write(root());
    CRkBlock& block = *addBlock("b1", {"t1", "t2", "t3"});
    block.GetMissionList()[2]->m_nFlightCount = 9;
    BlockStore::recountFlights(file, block);
    QCOMPARE(flightsOfTasks(block), QList<int>({2, 0, 0}));

    QVERIFY(runSql(
        flightsOf(file),
        {"INSERT INTO " + FlightMissionTableName + " (id, flight_task_id) VALUES ('f', 't2')"}));
    BlockStore::recountFlights(file, block);
    QCOMPARE(flightsOfTasks(block), QList<int>({2, 1, 0}));

    QVERIFY(QFile::remove(flightsOf(file)));
    BlockStore::recountFlights(file, block);
    QCOMPARE(flightsOfTasks(block), QList<int>({2, 1, 0}));
    QVERIFY(!QFileInfo::exists(flightsOf(file)));
}

void tst_BlockStore::recountWithoutProject()
{
    // The companion of no file would be a file in the working folder.
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_home->path()));
    QVERIFY(runSql(m_home->path() + "/_flight.db",
                   {"CREATE TABLE " + FlightMissionTableName + " (id, flight_task_id)",
                    "INSERT INTO " + FlightMissionTableName + " VALUES ('f', 't1')"}));
    CRkBlock& block = *addBlock("b1", {"t1"});
    block.GetMissionList()[0]->m_nFlightCount = 9;
    BlockStore::recountFlights(QString(), block);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(flightsOfTasks(block), QList<int>({9}));
}

void tst_BlockStore::manyBlocksWithoutAnIndex()
{
    // Each block read by a pass over the file would take hours.
    constexpr int blockCount = 50000;
    const QString file = BlockFixture{"large"}.write(root());
    const QString numbers = " WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n LIMIT "
        + QString::number(blockCount) + ") SELECT ";
    QVERIFY(runSql(file,
                   {"INSERT INTO " + SurveyAreaTableName
                        + " (survey_area_guid, project_id, survey_area_name)" + numbers
                        + "'b' || i, 'id-of-large', 'block ' || i FROM n",
                    "INSERT INTO " + MissionTableName + " (flight_task_guid, survey_block_id)"
                        + numbers + "'t' || i, 'b' || i FROM n"}));
    QVERIFY(runSql(flightsOf(file),
                   {"INSERT INTO " + FlightMissionTableName + " (id, flight_task_id)" + numbers
                    + "i, 't' || (i / 2) FROM n"}));
    const auto project = BlockStore::load(file, "user-1");
    QCOMPARE(project->blocks.size(), blockCount);
    const auto counts = BlockStore::count(file, project->blocks);
    QCOMPARE(counts.size(), blockCount);
    QCOMPARE(counts["b1"].flights, 2);
    QCOMPARE(counts["b25000"].flights, 1);
    QCOMPARE(counts["b25001"].flights, 0);
    QCOMPARE(counts["b25001"].tasks, 1);
}

QTEST_GUILESS_MAIN(tst_BlockStore)
#include "tst_BlockStore.moc"
