// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/SurveyEnums.h>

/// The part of a block's task parameters that depends on the kind of the task. A plain value.
class CRkExtendedTaskParam
{
public:
    /// What the task is for.
    ETaskType GetTaskType() const { return m_taskType; }
    void SetTaskType(ETaskType value) { m_taskType = value; }

    /// How far routes reach beyond the area, in metres.
    double GetSurroundMragin() const { return m_surroundMragin; }
    void SetSurroundMragin(double value) { m_surroundMragin = value; }

    /// How the camera tilts along the route.
    int GetPitchModeOfTilt() const { return m_pitchModeOfTilt; }
    void SetPitchModeOfTilt(int value) { m_pitchModeOfTilt = value; }

    /// How the height of a route is laid over the ground.
    ERouteGenerateMode GetRouteGenerateMode() const { return m_routeGenerateMode; }
    void SetRouteGenerateMode(ERouteGenerateMode value) { m_routeGenerateMode = value; }

    /// How the camera is mounted.
    int GetCameraOrientation() const { return m_cameraOrientation; }
    void SetCameraOrientation(int value) { m_cameraOrientation = value; }

    /// What triggers the camera.
    int GetPhotographMode() const { return m_photographMode; }
    void SetPhotographMode(int value) { m_photographMode = value; }

    /// Distance between the outermost route and the edge of the area, in metres.
    double GetMarginBetweenRouteAreaEdge() const { return m_marginBetweenRouteAreaEdge; }
    void SetMarginBetweenRouteAreaEdge(double value) { m_marginBetweenRouteAreaEdge = value; }

    /// Pitch of the tilted camera, in degrees.
    double GetPitchAngleOfTilt() const { return m_pitchAngleOfTilt; }
    void SetPitchAngleOfTilt(double value) { m_pitchAngleOfTilt = value; }

    /// 0 on one level, 1 following the terrain.
    int GetFlyingMode() const { return m_flyingMode; }
    void SetFlyingMode(int value) { m_flyingMode = value; }

    /// Lowest height of a route above the ground, in metres.
    double GetRouteMinHeight() const { return m_routeMinHeight; }
    void SetRouteMinHeight(double value) { m_routeMinHeight = value; }

    /// Height of the surveyed object above the ground, in metres.
    double GetObjectHeight() const { return m_objectHeight; }
    void SetObjectHeight(double value) { m_objectHeight = value; }

private:
    ETaskType m_taskType = TaskTypeOrthophoto;
    double m_surroundMragin = 0;
    int m_pitchModeOfTilt = 0;
    ERouteGenerateMode m_routeGenerateMode = RouteGenerateLevel;
    int m_cameraOrientation = 0;
    int m_photographMode = 0;
    double m_marginBetweenRouteAreaEdge = 0;
    double m_pitchAngleOfTilt = 0;
    int m_flyingMode = 0;
    double m_routeMinHeight = 0;
    double m_objectHeight = 0;
};
