// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/UploadArraySql.h"

#include "common/TableSql.h"

#include <RkAlgorthm/Constants.h>

namespace UploadArraySql {

namespace {

QString selectWhere(const QString& table, const QString& column, const QString& id)
{
    return "select * from " + table + " where " + column + " = '" + id + "'";
}

} // namespace

QString selectComputedTables()
{
    return TableSql::selectComputedTables(
        {ProjectTableName, SurveyAreaTableName, MissionTableName, MarkerPointTableName});
}

QString selectProject()
{
    return "select * from " + ProjectTableName;
}

QString selectBlocks(const QString& projectId)
{
    return selectWhere(SurveyAreaTableName, QStringLiteral("project_id"), projectId);
}

QString selectTasks(const QString& blockId)
{
    return selectWhere(MissionTableName, QStringLiteral("survey_block_id"), blockId);
}

QString selectPoints(const QString& projectId)
{
    return selectWhere(MarkerPointTableName, QStringLiteral("project_id"), projectId);
}

} // namespace UploadArraySql
