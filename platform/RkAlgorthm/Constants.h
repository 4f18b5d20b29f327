// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QString>

// Tables of a project file, and of the flights in its companion file. Plain SQL identifiers.
RKALGORTHM_EXPORT extern const QString ProjectTableName;
RKALGORTHM_EXPORT extern const QString SurveyAreaTableName;
RKALGORTHM_EXPORT extern const QString MissionTableName;
RKALGORTHM_EXPORT extern const QString FlightMissionTableName;
RKALGORTHM_EXPORT extern const QString MarkerPointTableName;

/// Dates on the screen and in filters: numeric, "-" between the numbers, no blanks.
RKALGORTHM_EXPORT extern const QString DateFormat;
/// Times in project files; local time.
RKALGORTHM_EXPORT extern const QString DateTimeSFormat;

/// Suffix of a project file, with its dot.
RKALGORTHM_EXPORT extern const QString ProjectSuffix;
/// Version of the application, written into each new project.
RKALGORTHM_EXPORT extern const QString VANTRELL_VERSION;

// Where QSettings keep the id (text) of the current user: organisation, application, group and key.
RKALGORTHM_EXPORT extern const QString OrganizationName;
RKALGORTHM_EXPORT extern const QString CloundApplicationName;
RKALGORTHM_EXPORT extern const QString UserInfoGroupName;
RKALGORTHM_EXPORT extern const QString UserInfoUserID;
