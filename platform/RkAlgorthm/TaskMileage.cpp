// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "TaskMileage.h"

#include <algorithm>

namespace {

double planeMetres(EPlaneType plane)
{
    switch (plane) {
    case PlaneTypeFixedWingLight:
        return 60000;
    case PlaneTypeFixedWingLongRange:
        return 150000;
    case PlaneTypeVerticalTakeOffLight:
        return 45000;
    case PlaneTypeVerticalTakeOffLongRange:
        return 100000;
    case PlaneTypeQuadrotor:
        return 15000;
    case PlaneTypeHexarotor:
        return 12000;
    default:
        return 0;
    }
}

double cameraFactor(ECameraType camera)
{
    switch (camera) {
    case CameraTypeFiveLens120:
        return 0.85;
    case CameraTypeLaserScanner:
        return 0.75;
    default:
        return 1;
    }
}

constexpr int terrainFollowingMode = 1;
constexpr double terrainFollowingFactor = 0.9;
constexpr double metresPerMetreOfHeight = 10;

} // namespace

double GetSingleTaskMileage(EPlaneType plane, ECameraType camera, int flyingMode, int height)
{
    double metres = planeMetres(plane) * cameraFactor(camera);
    if (flyingMode == terrainFollowingMode)
        metres *= terrainFollowingFactor;
    return std::max(metres - metresPerMetreOfHeight * std::max(height, 0), 0.0);
}
