// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectStoreSql.h"

#include "common/TableSql.h"

#include <RkAlgorthm/RkAlgorthm.h>

namespace ProjectStoreSql {

namespace {

QString quoted(const QString& value)
{
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}

} // namespace

bool staysQuoted(QString value)
{
    return !value.remove(QStringLiteral("''")).contains(QLatin1Char('\''));
}

QStringList createTables()
{
    return {
        "CREATE TABLE IF NOT EXISTS " + ProjectTableName + " " + GetProjectTableContents(),
        "CREATE TABLE IF NOT EXISTS " + SurveyAreaTableName + " " + GetSurveyAreaTableContents(),
        "CREATE TABLE IF NOT EXISTS " + MissionTableName + " " + GetMissionTableContents(),
    };
}

QString insertProject(const NewProject& project)
{
    const QString firstVersion = QStringLiteral("1");
    return "INSERT INTO " + ProjectTableName
        + " (project_name,id,user_id,created_at,version,updated_at,software_version) "
        + QStringLiteral("VALUES ('%1','%2','%3','%4','%5','%6','%7')")
              .arg(project.name, project.id, project.userId, project.now, firstVersion, project.now,
                   VANTRELL_VERSION);
}

QString selectComputedTables(const QStringList& tables)
{
    return TableSql::selectComputedTables(tables);
}

QString selectProject(const QString& userId)
{
    return "select * from " + ProjectTableName + " where user_id=" + quoted(userId);
}

QString selectOutlines(const QString& projectId)
{
    return "select survey_area_coordinate_points from " + SurveyAreaTableName
        + " where project_id=" + quoted(projectId);
}

QString selectBlocks(const QString& projectId)
{
    return "select survey_area_guid, survey_area_name, camera_type from " + SurveyAreaTableName
        + " where project_id = " + quoted(projectId);
}

QString updateName(const QString& newName)
{
    return "UPDATE " + ProjectTableName + " SET project_name = " + quoted(newName);
}

QStringList rewriteIdentifiers(const QString& newName, const CopyIdentifiers& identifiers)
{
    const QString missionId =
        "UPDATE " + MissionTableName + " SET id=" + quoted(identifiers.mission);
    return {
        "UPDATE " + ProjectTableName + " SET id = " + quoted(identifiers.project),
        updateName(newName),
        "UPDATE " + SurveyAreaTableName + " SET project_id=" + quoted(identifiers.project),
        "UPDATE " + SurveyAreaTableName + " SET id=" + quoted(identifiers.surveyArea),
        "UPDATE " + SurveyAreaTableName + " SET survey_area_guid=" + quoted(identifiers.surveyArea),
        "UPDATE " + MissionTableName + " SET survey_block_id=" + quoted(identifiers.surveyArea),
        // Sent twice: the sequence of a copy is fixed, and repeating it changes nothing.
        missionId,
        missionId,
    };
}

QString selectVersion()
{
    return "select version from " + ProjectTableName;
}

QStringList updateRenamed(const QString& newName, const QString& version, const QString& now)
{
    return {
        updateName(newName),
        "UPDATE " + ProjectTableName + " SET version=" + version,
        // The time stands without quotes. SQLite refuses a date with a time so, and the old one
        // stays.
        "UPDATE " + ProjectTableName + " SET updated_at=" + now,
    };
}

} // namespace ProjectStoreSql
