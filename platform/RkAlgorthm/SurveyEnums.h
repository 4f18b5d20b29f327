// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// Shape of a survey area.
enum EBlockType : int {
    BlockTypeNone = 0,
    BlockTypeArea = 1, ///< the outline is a ring
    BlockTypeStrip = 2, ///< the outline is a centre line
};

/// Aircraft. Texts for them are in TypeNames.h.
enum EPlaneType : int {
    PlaneTypeUnknown = 0,
    PlaneTypeFixedWingLight = 1,
    PlaneTypeFixedWingLongRange = 2,
    PlaneTypeVerticalTakeOffLight = 3,
    PlaneTypeQuadrotor = 4,
    PlaneTypeVerticalTakeOffLongRange = 5,
    PlaneTypeHexarotor = 6,
};

/// Cameras and other sensors. Texts for them are in TypeNames.h.
enum ECameraType : int {
    CameraTypeUnknown = 0,
    CameraTypeSingleLens24 = 1,
    CameraTypeSingleLens42 = 2,
    CameraTypeSingleLens61 = 3,
    CameraTypeFiveLens120 = 4,
    CameraTypeMultispectral = 5,
    CameraTypeThermal = 6,
    CameraTypeLaserScanner = 7,
};

/// What a flight task is for.
enum ETaskType : int {
    TaskTypeOrthophoto = 0,
    TaskTypeOblique = 1,
    TaskTypeSurround = 2,
};

/// How the height of a route is laid over the ground.
enum ERouteGenerateMode : int {
    RouteGenerateLevel = 0,
    RouteGenerateTerrainFollowing = 1,
};
