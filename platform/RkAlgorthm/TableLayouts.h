// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QString>

// The columns of each table, in parentheses, as they follow the table's name in CREATE TABLE. All
// ids are text. No column is a key or unique, because a copied project gives many rows one id, and
// every column may stay empty.

/// One row that describes the project.
RKALGORTHM_EXPORT QString GetProjectTableContents();

/// Survey areas (blocks); `project_id` is the project's `id`. Outlines are written
/// "lat,lng;lat,lng". From `relative_fly_height` on follow the task parameters, in the units of
/// CRkTaskPara and CRkExtendedTaskParam; flags are 0 or 1.
RKALGORTHM_EXPORT QString GetSurveyAreaTableContents();

/// Flight tasks; `survey_block_id` is the `survey_area_guid` of their area.
RKALGORTHM_EXPORT QString GetMissionTableContents();

/// Marker points; `project_id` is the project's `id`.
RKALGORTHM_EXPORT QString GetMarkerPointTableContents();

/// Flights, in the companion file; `flight_task_id` is the `flight_task_guid` of their task.
RKALGORTHM_EXPORT QString GetFlightMissionTableContents();
