// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockStoreSql.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <algorithm>

namespace BlockStoreSql {

namespace {

const QLatin1Char quote('\'');

QString quoted(const QString& value)
{
    return quote + value + quote;
}

QStringList makeIndexedCopy(const QString& table, const QString& column)
{
    return {
        "CREATE TEMP TABLE " + table + " AS SELECT * FROM main." + table,
        "CREATE INDEX temp." + table + "_" + column + " ON " + table + " (" + column + ")",
    };
}

} // namespace

QString selectBlocks(const QString& projectId)
{
    return "select survey_area_guid, survey_area_name, camera_type, plane_type from "
        + SurveyAreaTableName + " where project_id = " + quoted(projectId);
}

QString selectTasks(const QString& blockId)
{
    return "select flight_task_guid from " + MissionTableName
        + " where survey_block_id = " + quoted(blockId);
}

QString countFlights(const QString& taskId)
{
    return "select count(id) as FlightTimes from " + FlightMissionTableName
        + " where flight_task_id = " + quoted(taskId);
}

QString selectCollations()
{
    return QStringLiteral("select 1 from main.sqlite_master where sql like '%collate%'");
}

QStringList makeIndexedCopies()
{
    return QStringList(QStringLiteral("PRAGMA temp_store=MEMORY"))
        + makeIndexedCopy(SurveyAreaTableName, QStringLiteral("survey_area_guid"))
        + makeIndexedCopy(MissionTableName, QStringLiteral("survey_block_id"));
}

bool mustStandAlone(const QString& id)
{
    return std::any_of(id.cbegin(), id.cend(),
                       [](QChar c) { return c == quote || c.isNull() || c.isSurrogate(); });
}

QStringList makeIdTable(const QStringList& ids)
{
    constexpr int idsInAStatement = 1000;
    QStringList statements = {
        QStringLiteral("PRAGMA temp_store=MEMORY"),
        // A column without a type: it does not change how values are compared with it.
        QStringLiteral("CREATE TEMP TABLE asked_id (number INTEGER PRIMARY KEY, value)"),
    };
    QString rows;
    int rowCount = 0;
    const auto insertRows = [&] {
        if (rowCount > 0)
            statements.append("INSERT INTO temp.asked_id VALUES " + rows);
        rows.clear();
        rowCount = 0;
    };
    for (int i = 0; i < ids.size(); ++i) {
        if (mustStandAlone(ids[i]))
            continue;
        if (++rowCount > 1)
            rows += QLatin1Char(',');
        rows += QLatin1Char('(');
        rows += QString::number(i);
        rows += QLatin1Char(',');
        rows += quoted(ids[i]);
        rows += QLatin1Char(')');
        if (rowCount == idsInAStatement)
            insertRows();
    }
    insertRows();
    return statements;
}

QString selectBlocksWithTasks()
{
    return "select asked.number, 1, task.flight_task_guid from temp.asked_id as asked join "
        + MissionTableName + " as task on task.survey_block_id = asked.value group by asked.number";
}

QString countFlightsOfTasks()
{
    return "select asked.number, count(flight.id) from temp.asked_id as asked join "
        + FlightMissionTableName
        + " as flight on flight.flight_task_id = asked.value group by asked.number";
}

} // namespace BlockStoreSql
