// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/AirLineParam.h"

#include <RkAlgorthm/INPUT_PARAM.h>
#include <RkAlgorthm/Numbers.h>
#include <RkAlgorthm/StripPolygon.h>
#include <RkAlgorthm/TaskMileage.h>
#include <RkAlgorthm/Utm.h>
#include <RkData/CRkBlock.h>
#include <RkData/CRkTaskPara.h>

namespace {

constexpr int stripBlockType = 2;
constexpr int surroundTaskType = 2;
constexpr double metresPerKilometre = 1000;

bool outlineToUtm(const QList<QPointF>& outline, std::vector<CRkPoint2D>& utm)
{
    std::vector<CRkPoint2D> points;
    points.reserve(std::size_t(outline.size()));
    for (const QPointF& point : outline)
        points.emplace_back(point.x(), point.y());
    return LatLng2UTM(points, utm);
}

/// Stores the outline, which is that of the strip around it for a strip block.
bool fillPolygon(int blockType, const std::vector<CRkPoint2D>& outline, INPUT_PARAM& param)
{
    if (blockType != stripBlockType) {
        param.vecPolygon = outline;
        return true;
    }
    param.vecStripCenterLine = outline;
    std::vector<CRkPoint2D> strip;
    QList<int> problems;
    // The left offset is stored as a distance; to the left means below 0.
    if (!CreateStripPolygon(outline, -param.dBandingOffsetLeft, param.dBandingOffsetRight, strip,
                            problems)
        || !problems.isEmpty()) {
        return false;
    }
    param.vecPolygon = strip;
    return true;
}

void fillFromTask(const CRkTaskPara& task, INPUT_PARAM& param, bool reset)
{
    param.ePlaneType = task.GetPlaneType();
    param.eCameraType = task.GetCameraType();
    param.nReturnRouteMode = task.IsReturnRoute() ? 2 : 1;
    param.dPlaneTypeConstant = param.ePlaneType == 4 || param.ePlaneType == 6 ? 0 : 150;
    param.dDefaultAirspeed = task.GetDefaultAirspeed();
    param.dAirLineAngle = reset ? -1.0 : task.GetAirLineAngle();
    param.dExpectedRouteCount = task.GetExpectedRouteCount();
    param.dExpectedMissionCount = task.GetExpectedMissionCount();
    param.bIncludeTransferPoints = task.GetIncludingTransferPoints();
    param.bGenerateFrameRoute = task.GetGenerateFrameRoute();
    param.nLongitudinalOutlineNumber = task.GetLongitudinalOutlineNumber();
    param.nLateralOutlineNumber = task.GetLateralOutlineNumber();
    param.bConnectRoute = task.IsConnectRoute();
    const int direction = task.GetDirectionOfFlight();
    param.nDirectionOfFlight = direction == 0 ? 1 : direction;
}

void fillFromExtendedTask(CRkExtendedTaskParam& extended, INPUT_PARAM& param)
{
    param.eTaskType = extended.GetTaskType();
    if (param.eTaskType == surroundTaskType)
        extended.SetSurroundMragin(param.airLineParam.GetRelativeFlyHeight());
    param.dSurroundMargin = extended.GetSurroundMragin();
    param.nPitchModeOfTilt = extended.GetPitchModeOfTilt();
    param.eRouteGenerateMode = extended.GetRouteGenerateMode();
    param.nCameraOrientation = extended.GetCameraOrientation();
    param.nPhotographMode = extended.GetPhotographMode();
    param.dMarginBetweenRouteAreaEdge = extended.GetMarginBetweenRouteAreaEdge();
    param.dPitchAngleOfTilt = extended.GetPitchAngleOfTilt();
    param.nFlyingMode = extended.GetFlyingMode();
    param.dRouteMinHeight = extended.GetRouteMinHeight();
    param.dObjectHeight = extended.GetObjectHeight();
}

/// The distance flown in one task, in metres. What is worked out is stored in the task.
double singleTaskDistance(CRkTaskPara& task, const INPUT_PARAM& param, bool reset)
{
    const double stored = task.GetBlockSingleTaskMileage();
    // A stored 0 is somebody's choice.
    if (!reset && !(stored < 0.0))
        return stored * metresPerKilometre;
    const int height = qrealToIntNumber(param.airLineParam.GetRelativeFlyHeight());
    const double computed =
        GetSingleTaskMileage(param.ePlaneType, param.eCameraType, param.nFlyingMode, height);
    task.SetBlockSingleTaskMileage(computed / metresPerKilometre);
    return computed;
}

} // namespace

bool UpdateAirLineParam(CRkBlock* block, INPUT_PARAM& param, bool reset)
{
    CRkTaskPara* const task = block ? block->GetTaskPara() : nullptr;
    CRkExtendedTaskParam* const extended = task ? task->GetExtendedTaskParam() : nullptr;
    if (!extended)
        return false;
    const QList<QPointF> outline = block->GetAnchor();
    if (outline.isEmpty())
        return false;

    param.airLineParam = task->GetAirLineParam();
    std::vector<CRkPoint2D> utm;
    if (!outlineToUtm(outline, utm))
        return false;

    param.dBandingOffsetLeft = 0.0;
    param.dBandingOffsetRight = 0.0;
    task->GetBandingOffset(param.dBandingOffsetLeft, param.dBandingOffsetRight);
    if (!fillPolygon(block->GetBlockType(), utm, param))
        return false;

    param.nBlockType = block->GetBlockType();
    fillFromTask(*task, param, reset);
    fillFromExtendedTask(*extended, param);
    param.dSingleTaskDistance = singleTaskDistance(*task, param, reset);
    return true;
}
