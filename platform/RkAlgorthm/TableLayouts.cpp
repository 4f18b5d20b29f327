// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "TableLayouts.h"

QString GetProjectTableContents()
{
    return QStringLiteral(
        "(id TEXT, project_name TEXT, user_id TEXT, created_at TEXT, updated_at TEXT, "
        "version TEXT, software_version TEXT, map_scale INTEGER, "
        "center_position_lat REAL, center_position_lng REAL, image_data TEXT)");
}

QString GetSurveyAreaTableContents()
{
    return QStringLiteral(
        "(id TEXT, survey_area_guid TEXT, project_id TEXT, survey_area_name TEXT, "
        "camera_type TEXT, plane_type TEXT, block_type INTEGER, "
        "survey_area_coordinate_points TEXT)");
}

QString GetMissionTableContents()
{
    return QStringLiteral(
        "(id TEXT, flight_task_guid TEXT, survey_block_id TEXT, flight_task_name TEXT)");
}

QString GetMarkerPointTableContents()
{
    return QStringLiteral("(id TEXT, project_id TEXT, name TEXT, lat REAL, lng REAL)");
}

QString GetFlightMissionTableContents()
{
    return QStringLiteral("(id TEXT, flight_task_id TEXT, flown_at TEXT)");
}
