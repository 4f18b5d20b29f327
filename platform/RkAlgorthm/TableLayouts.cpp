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
        "survey_area_coordinate_points TEXT, "
        "relative_fly_height REAL, return_route INTEGER, default_airspeed REAL, "
        "air_line_angle REAL, banding_offset_left REAL, banding_offset_right REAL, "
        "expected_route_count INTEGER, expected_mission_count INTEGER, "
        "including_transfer_points INTEGER, generate_frame_route INTEGER, "
        "longitudinal_outline_number INTEGER, lateral_outline_number INTEGER, "
        "connect_route INTEGER, direction_of_flight INTEGER, single_task_mileage REAL, "
        "task_type INTEGER, surround_margin REAL, pitch_mode_of_tilt INTEGER, "
        "route_generate_mode INTEGER, camera_orientation INTEGER, photograph_mode INTEGER, "
        "margin_between_route_area_edge REAL, pitch_angle_of_tilt REAL, flying_mode INTEGER, "
        "route_min_height REAL, object_height REAL)");
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
