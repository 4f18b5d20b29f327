// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockStoreSql.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QJsonArray>
#include <QJsonDocument>

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
    for (int first = 0; first < ids.size(); first += idsInAStatement) {
        QJsonArray values;
        for (int i = first; i < std::min(first + idsInAStatement, ids.size()); ++i)
            values.append(mustStandAlone(ids[i]) ? QJsonValue() : QJsonValue(ids[i]));
        statements.append(
            "INSERT INTO temp.asked_id SELECT key + " + QString::number(first)
            + ", value FROM json_each("
            + quoted(QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact)))
            + ')');
    }
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
