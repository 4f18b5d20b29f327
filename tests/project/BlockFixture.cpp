// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "BlockFixture.h"

#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/RkData.h>

QString sqlText(QString text)
{
    return "'" + text.replace("'", "''") + "'";
}

QString flightsOf(const QString& projectFile)
{
    return CRkControl::GetFlightMissionFilePath(projectFile);
}

QString BlockFixture::write(const QString& root) const
{
    QStringList project = {
        "BEGIN",
        "CREATE TABLE " + ProjectTableName + " " + GetProjectTableContents(),
        "CREATE TABLE " + SurveyAreaTableName + " " + GetSurveyAreaTableContents(),
        "CREATE TABLE " + MissionTableName + " " + GetMissionTableContents(),
        "INSERT INTO " + ProjectTableName
            + " (project_name,id,user_id,updated_at,software_version,map_scale,"
              "center_position_lat,center_position_lng) VALUES ("
            + sqlText(name) + "," + sqlText(id) + "," + sqlText(userId) + "," + sqlText(modified)
            + "," + sqlText(softwareVersion) + ",2000,30.66,104.06)",
    };
    QStringList flights = {
        "BEGIN", "CREATE TABLE " + FlightMissionTableName + " " + GetFlightMissionTableContents()};
    for (const Block& block : blocks) {
        project.append("INSERT INTO " + SurveyAreaTableName
                       + " (survey_area_guid,project_id,survey_area_name,camera_type,plane_type)"
                         " VALUES ("
                       + sqlText(block.id) + "," + sqlText(id) + "," + sqlText(block.name) + ","
                       + sqlText(block.cameraType) + "," + sqlText(block.planeType) + ")");
        for (const Task& task : block.tasks) {
            project.append("INSERT INTO " + MissionTableName
                           + " (flight_task_guid,survey_block_id) VALUES (" + sqlText(task.id) + ","
                           + sqlText(block.id) + ")");
            for (int i = 0; i < task.flights; ++i)
                flights.append("INSERT INTO " + FlightMissionTableName
                               + " (id,flight_task_id) VALUES ('flight'," + sqlText(task.id) + ")");
        }
    }
    project.append("COMMIT");
    flights.append("COMMIT");
    const QString path = file(root);
    return runSql(path, project) && runSql(flightsOf(path), flights) ? path : QString();
}
