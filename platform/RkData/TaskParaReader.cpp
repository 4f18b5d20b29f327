// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "TaskParaReader.h"

#include "CRkTaskPara.h"

#include <RkAlgorthm/TypeNames.h>

#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <cmath>

namespace {

class Row
{
public:
    Row(const QSqlQuery& query, const QSqlRecord& columns)
        : m_query(query)
        , m_columns(columns)
    {
    }

    bool has(const QString& column) const { return !value(column).isNull(); }
    QString text(const QString& column) const { return value(column).toString(); }

    double number(const QString& column, double otherwise) const
    {
        bool isNumber = false;
        const double found = value(column).toDouble(&isNumber);
        return isNumber && std::isfinite(found) ? found : otherwise;
    }
    int integer(const QString& column) const { return value(column).toInt(); }
    bool flag(const QString& column) const { return integer(column) != 0; }

private:
    QVariant value(const QString& column) const
    {
        const int index = m_columns.indexOf(column);
        return index < 0 ? QVariant() : m_query.value(index);
    }

    const QSqlQuery& m_query;
    const QSqlRecord& m_columns;
};

std::unique_ptr<CRkExtendedTaskParam> readExtended(const Row& row)
{
    auto extended = std::make_unique<CRkExtendedTaskParam>();
    extended->SetTaskType(ETaskType(row.integer(QStringLiteral("task_type"))));
    extended->SetSurroundMragin(row.number(QStringLiteral("surround_margin"), 0));
    extended->SetPitchModeOfTilt(row.integer(QStringLiteral("pitch_mode_of_tilt")));
    extended->SetRouteGenerateMode(
        ERouteGenerateMode(row.integer(QStringLiteral("route_generate_mode"))));
    extended->SetCameraOrientation(row.integer(QStringLiteral("camera_orientation")));
    extended->SetPhotographMode(row.integer(QStringLiteral("photograph_mode")));
    extended->SetMarginBetweenRouteAreaEdge(
        row.number(QStringLiteral("margin_between_route_area_edge"), 0));
    extended->SetPitchAngleOfTilt(row.number(QStringLiteral("pitch_angle_of_tilt"), 0));
    extended->SetFlyingMode(row.integer(QStringLiteral("flying_mode")));
    extended->SetRouteMinHeight(row.number(QStringLiteral("route_min_height"), 0));
    extended->SetObjectHeight(row.number(QStringLiteral("object_height"), 0));
    return extended;
}

} // namespace

std::unique_ptr<CRkTaskPara> readTaskPara(const QSqlQuery& query, const QSqlRecord& columns)
{
    const Row row(query, columns);
    if (!row.has(QStringLiteral("relative_fly_height")))
        return nullptr;

    auto parameters = std::make_unique<CRkTaskPara>();
    CRkAirLineParam airLine;
    airLine.SetRelativeFlyHeight(row.number(QStringLiteral("relative_fly_height"), 0));
    parameters->SetAirLineParam(airLine);
    parameters->SetPlaneType(GetPlaneTypeByString(row.text(QStringLiteral("plane_type"))));
    parameters->SetCameraType(GetCameraTypeByString(row.text(QStringLiteral("camera_type"))));
    parameters->SetReturnRoute(row.flag(QStringLiteral("return_route")));
    parameters->SetDefaultAirspeed(row.number(QStringLiteral("default_airspeed"), 0));
    parameters->SetAirLineAngle(row.number(QStringLiteral("air_line_angle"), -1));
    parameters->SetBandingOffset(row.number(QStringLiteral("banding_offset_left"), 0),
                                 row.number(QStringLiteral("banding_offset_right"), 0));
    parameters->SetExpectedRouteCount(row.integer(QStringLiteral("expected_route_count")));
    parameters->SetExpectedMissionCount(row.integer(QStringLiteral("expected_mission_count")));
    parameters->SetIncludingTransferPoints(row.flag(QStringLiteral("including_transfer_points")));
    parameters->SetGenerateFrameRoute(row.flag(QStringLiteral("generate_frame_route")));
    parameters->SetLongitudinalOutlineNumber(
        row.integer(QStringLiteral("longitudinal_outline_number")));
    parameters->SetLateralOutlineNumber(row.integer(QStringLiteral("lateral_outline_number")));
    parameters->SetConnectRoute(row.flag(QStringLiteral("connect_route")));
    parameters->SetDirectionOfFlight(row.integer(QStringLiteral("direction_of_flight")));
    parameters->SetBlockSingleTaskMileage(row.number(QStringLiteral("single_task_mileage"), -1));
    if (row.has(QStringLiteral("task_type")))
        parameters->SetExtendedTaskParam(readExtended(row));
    return parameters;
}
