// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CRkAirLineParam.h>
#include <RkAlgorthm/CRkPoint2D.h>
#include <RkAlgorthm/SurveyEnums.h>

#include <vector>

/// Everything that the flight-line generator is given for one block. Coordinates are UTM metres (x
/// easting, y northing), lengths metres, angles degrees.
struct INPUT_PARAM
{
    int nBlockType = 0; ///< an EBlockType
    std::vector<CRkPoint2D> vecPolygon; ///< open ring
    CRkAirLineParam airLineParam;
    EPlaneType ePlaneType = PlaneTypeUnknown;
    ECameraType eCameraType = CameraTypeUnknown;
    int nReturnRouteMode = 0; ///< 1 one way, 2 there and back
    double dPlaneTypeConstant = 0;
    double dSingleTaskDistance = 0;
    double dDefaultAirspeed = 0; ///< metres a second
    double dAirLineAngle = 0; ///< below 0: the generator chooses
    std::vector<CRkPoint2D> vecStripCenterLine; ///< strip blocks only
    double dBandingOffsetLeft = 0;
    double dBandingOffsetRight = 0;
    double dExpectedRouteCount = 0;
    double dExpectedMissionCount = 0;
    bool bIncludeTransferPoints = false;
    bool bGenerateFrameRoute = false;
    int nLongitudinalOutlineNumber = 0;
    int nLateralOutlineNumber = 0;
    bool bConnectRoute = false;
    int nDirectionOfFlight = 0;
    ETaskType eTaskType = TaskTypeOrthophoto;
    double dSurroundMargin = 0;
    int nPitchModeOfTilt = 0;
    ERouteGenerateMode eRouteGenerateMode = RouteGenerateLevel;
    int nCameraOrientation = 0;
    int nPhotographMode = 0;
    double dMarginBetweenRouteAreaEdge = 0;
    double dPitchAngleOfTilt = 0;
    int nFlyingMode = 0;
    double dRouteMinHeight = 0;
    double dObjectHeight = 0;
};
