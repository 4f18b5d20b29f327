// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockStore.h"

#include "project/BlockStoreSql.h"
#include "project/ProjectStoreSql.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/RkData.h>

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <memory>
#include <vector>

namespace BlockStore {

namespace {

bool open(CRkDataBase& database, const QString& file)
{
    return QFileInfo::exists(file) && database.open();
}

/// Whether the file is a database whose tables hold what they answer.
bool isSound(CRkDataBase& database, const QStringList& tables)
{
    QSqlQuery query =
        database.exec("select exists(" + ProjectStoreSql::selectComputedTables(tables) + ")");
    return query.next() && !query.value(0).toBool();
}

/// The companion file; empty when no project is open.
QString flightFile(const QString& projectFile)
{
    return projectFile.isEmpty() ? QString() : CRkControl::GetFlightMissionFilePath(projectFile);
}

QString readableTime(const QString& stored)
{
    const QString readable = QLocale::c().toString(QLocale::c().toDateTime(stored, DateTimeSFormat),
                                                   QStringLiteral("yyyy/MM/dd hh:mm"));
    return readable.isEmpty() ? stored : readable;
}

void readProject(CRkDataBase& database, const QString& file, const QString& userId,
                 Project& project)
{
    QSqlQuery query = database.exec(ProjectStoreSql::selectProject(userId));
    const QSqlRecord columns = query.record();
    const auto value = [&](const char* column) {
        const int index = columns.indexOf(QLatin1String(column));
        return index < 0 ? QVariant() : query.value(index);
    };
    while (query.next()) {
        CRkOpenedProjectInfo& info = project.info;
        info.projectName = value("project_name").toString();
        info.projectFilePath = file;
        info.projectId = value("id").toString();
        info.mapScale = value("map_scale").toInt();
        info.softwareVersion = value("software_version").toString();
        info.centerLat = value("center_position_lat").toDouble();
        info.centerLng = value("center_position_lng").toDouble();
        if (SoftwareVersionIsOld(info.softwareVersion)) {
            CRkControl::GetInstance()->ResetToWGS84(info.centerLat, info.centerLng, &info.centerLat,
                                                    &info.centerLng);
        }
        const QVariant modified = value("updated_at");
        if (modified.isValid() && !modified.isNull())
            project.modified = readableTime(modified.toString());
    }
}

QList<Block> readBlocks(CRkDataBase& database, const QString& projectId)
{
    QList<Block> blocks;
    if (!ProjectStoreSql::staysQuoted(projectId))
        return blocks;
    QSqlQuery query = database.exec(BlockStoreSql::selectBlocks(projectId));
    while (query.next()) {
        Block block;
        block.id = query.value(0).toString();
        block.name = query.value(1).toString();
        // A block of an unknown type counts as one of the first type.
        block.cameraType = GetCameraTypeByString(query.value(2).toString());
        if (block.cameraType == 0)
            block.cameraType = ECameraType(1);
        block.planeType = GetPlaneTypeByString(query.value(3).toString());
        if (block.planeType == 0)
            block.planeType = EPlaneType(1);
        blocks.append(block);
    }
    return blocks;
}

/// Whether the block is in the block manager, now or since before.
bool isLoaded(const QString& blockId, const CRkOpenedProjectInfo& info, CRkDataBase& database)
{
    if (CRkBlockManager::instance().GetBlock(blockId))
        return true;
    auto block = std::make_unique<CRkBlock>();
    block->SetBlockID(blockId);
    if (!block->Load(SurveyAreaTableName, info.projectId, info.softwareVersion, &database))
        return false;
    CRkBlockManager::instance().AddBlock(block.release());
    return true;
}

QList<Block> loadedBlocks(const QList<Block>& blocks, const CRkOpenedProjectInfo& info,
                          CRkDataBase& database)
{
    if (!database.exec(BlockStoreSql::selectCollations()).next()) {
        const QStringList statements = BlockStoreSql::makeIndexedCopies();
        for (const QString& statement : statements)
            database.exec(statement);
    }
    QList<Block> loaded;
    for (const Block& block : blocks) {
        if (isLoaded(block.id, info, database))
            loaded.append(block);
    }
    return loaded;
}

/// Asks the same question about many ids: by one statement about all where that is possible, and by
/// a statement each for the rest. Gives the answers in the order of the ids, 0 for none.
template <typename AskOne>
std::vector<int> askAll(CRkDataBase& database, const QStringList& ids, const QString& aboutAll,
                        AskOne askOne)
{
    bool isTableMade = true;
    const QStringList statements = BlockStoreSql::makeIdTable(ids);
    for (const QString& statement : statements)
        isTableMade = database.exec(statement).isActive() && isTableMade;

    std::vector<int> answers(std::size_t(ids.size()), 0);
    QSqlQuery query = database.exec(aboutAll);
    while (query.next())
        answers[std::size_t(query.value(0).toInt())] = query.value(1).toInt();

    for (int i = 0; i < ids.size(); ++i) {
        if (!isTableMade || BlockStoreSql::mustStandAlone(ids[i]))
            answers[std::size_t(i)] = askOne(ids[i]);
    }
    return answers;
}

/// Those blocks that have a task in the file.
QStringList blocksWithTasks(const QString& projectFile, const QStringList& blockIds)
{
    CRkDataBase database(projectFile);
    if (!open(database, projectFile) || !isSound(database, {MissionTableName}))
        return {};
    const std::vector<int> hasTasks =
        askAll(database, blockIds, BlockStoreSql::selectBlocksWithTasks(), [&](const QString& id) {
            return ProjectStoreSql::staysQuoted(id)
                    && database.exec(BlockStoreSql::selectTasks(id)).next()
                ? 1
                : 0;
        });
    database.close();
    QStringList ids;
    for (int i = 0; i < blockIds.size(); ++i) {
        if (hasTasks[std::size_t(i)] != 0)
            ids.append(blockIds[i]);
    }
    return ids;
}

/// Writes the number of flights of each task into the task; 0 where the file does not tell.
void countFlights(CRkDataBase& database, const QList<CRkTask*>& tasks)
{
    std::vector<int> counts(std::size_t(tasks.size()), 0);
    if (isSound(database, {FlightMissionTableName})) {
        QStringList ids;
        for (const CRkTask* task : tasks)
            ids.append(task->GetTaskID());
        counts =
            askAll(database, ids, BlockStoreSql::countFlightsOfTasks(), [&](const QString& id) {
                if (!ProjectStoreSql::staysQuoted(id))
                    return 0;
                QSqlQuery query = database.exec(BlockStoreSql::countFlights(id));
                return query.next() ? query.value(0).toInt() : 0;
            });
    }
    for (int i = 0; i < tasks.size(); ++i)
        tasks[i]->m_nFlightCount = counts[std::size_t(i)];
}

} // namespace

std::optional<Project> load(const QString& projectFile, const QString& userId)
{
    CRkDataBase database(projectFile);
    if (!open(database, projectFile))
        return std::nullopt;
    Project project;
    if (isSound(database, {ProjectTableName, SurveyAreaTableName, MissionTableName})) {
        readProject(database, projectFile, userId, project);
        project.blocks =
            loadedBlocks(readBlocks(database, project.info.projectId), project.info, database);
    }
    database.close();
    return project;
}

QHash<QString, BlockCounts> count(const QString& projectFile, const QList<Block>& blocks)
{
    QStringList blockIds;
    for (const Block& block : blocks)
        blockIds.append(block.id);
    blockIds.removeDuplicates(); // The blocks of a copied project share one id.

    QHash<QString, BlockCounts> counts;
    QHash<QString, QList<CRkTask*>> tasksOfBlocks;
    QList<CRkTask*> tasks;
    const QStringList idsWithTasks = blocksWithTasks(projectFile, blockIds);
    for (const QString& id : idsWithTasks) {
        const CRkBlock* block = CRkBlockManager::instance().GetBlock(id);
        if (!block)
            continue;
        counts.insert(id, BlockCounts());
        tasksOfBlocks.insert(id, block->GetMissionList());
        tasks += tasksOfBlocks[id];
    }

    CRkDataBase database(flightFile(projectFile));
    if (!open(database, flightFile(projectFile)))
        return counts;
    countFlights(database, tasks);
    database.close();
    for (auto entry = counts.begin(); entry != counts.end(); ++entry) {
        for (const CRkTask* task : qAsConst(tasksOfBlocks[entry.key()])) {
            ++entry->tasks;
            entry->flights += task->m_nFlightCount;
        }
    }
    return counts;
}

void recountFlights(const QString& projectFile, const CRkBlock& block)
{
    CRkDataBase database(flightFile(projectFile));
    if (open(database, flightFile(projectFile)))
        countFlights(database, block.GetMissionList());
}

} // namespace BlockStore
