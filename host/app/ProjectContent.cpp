// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/ProjectContent.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkOpenedProjectInfo.h>
#include <RkData/RkData.h>

#include <QFileInfo>
#include <QHash>
#include <QVariant>

namespace {

QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("''"))
        + QLatin1Char('\'');
}

/// One file that is only read.
class Source
{
public:
    explicit Source(const QString& file)
        : m_database(file)
    {
        m_isOpen = QFileInfo::exists(file) && m_database.open();
    }

    /// The columns of those rows of a table that have the value in a column.
    template <typename Visit>
    void forEachRow(const QString& table, const QString& columns, const QString& column,
                    const QString& value, Visit visit)
    {
        if (!isTable(table))
            return;
        QSqlQuery query = m_database.exec(
            QStringLiteral("select %1 from %2 where %3 = ").arg(columns, table, column)
            + quoted(value));
        while (query.next())
            visit(query);
    }

private:
    /// A view in its place could take for ever.
    bool isTable(const QString& name)
    {
        return m_isOpen
            && m_database
                   .exec(QStringLiteral(
                             "select 1 from sqlite_master where type = 'table' and name = ")
                         + quoted(name))
                   .next();
    }

    CRkDataBase m_database;
    bool m_isOpen;
};

void readBlocks(Source& file, const QString& projectId, const QString& blockId,
                ProjectContent& content)
{
    const QString columns =
        QStringLiteral("survey_area_guid, survey_area_name, plane_type, camera_type");
    file.forEachRow(SurveyAreaTableName, columns, QStringLiteral("project_id"), projectId,
                    [&](const QSqlQuery& row) {
                        const QString id = row.value(0).toString();
                        const CRkBlock* block = CRkBlockManager::instance().GetBlock(id);
                        if (!block)
                            return;
                        content.blocks.append({id, row.value(1).toString(),
                                               QPolygonF(block->GetAnchor().toVector()),
                                               block->GetBlockType() == BlockTypeStrip});
                        if (id != blockId)
                            return;
                        content.aircraft = row.value(2).toString();
                        content.camera = row.value(3).toString();
                    });
}

} // namespace

ProjectContent readProjectContent(const CRkOpenedProjectInfo& project, const QString& blockId)
{
    ProjectContent content;
    Source file(project.projectFilePath);
    readBlocks(file, project.projectId, blockId, content);

    QHash<QString, QString> names;
    file.forEachRow(MissionTableName, QStringLiteral("flight_task_guid, flight_task_name"),
                    QStringLiteral("survey_block_id"), blockId, [&](const QSqlQuery& row) {
                        names.insert(row.value(0).toString(), row.value(1).toString());
                    });
    const CRkBlock* block = CRkBlockManager::instance().GetBlock(blockId);
    if (!block)
        return content;
    Source companion(CRkControl::GetFlightMissionFilePath(project.projectFilePath));
    for (const CRkTask* task : block->GetMissionList()) {
        const QString id = task->GetTaskID();
        ProjectContent::Task shown = {names.value(id), task->m_nFlightCount, {}};
        if (shown.name.isEmpty())
            shown.name = id;
        companion.forEachRow(
            FlightMissionTableName, QStringLiteral("flown_at"), QStringLiteral("flight_task_id"),
            id, [&](const QSqlQuery& row) { shown.flights.append(row.value(0).toString()); });
        shown.flights.sort();
        content.tasks.append(shown);
    }
    return content;
}
