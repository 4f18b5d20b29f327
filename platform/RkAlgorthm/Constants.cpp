// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Constants.h"

const QString ProjectTableName = QStringLiteral("project");
const QString SurveyAreaTableName = QStringLiteral("survey_area");
const QString MissionTableName = QStringLiteral("flight_task");
const QString FlightMissionTableName = QStringLiteral("flight_mission");
const QString MarkerPointTableName = QStringLiteral("marker_point");

const QString DateFormat = QStringLiteral("yyyy-MM-dd");
const QString DateTimeSFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

const QString ProjectSuffix = QStringLiteral(".proj");
const QString VANTRELL_VERSION = QStringLiteral("1.0.0");

const QString OrganizationName = QStringLiteral("RkOrganization");
const QString CloundApplicationName = QStringLiteral("RkCloud");
const QString UserInfoGroupName = QStringLiteral("UserInfo");
const QString UserInfoUserID = QStringLiteral("UserID");
