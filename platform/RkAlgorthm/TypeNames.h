// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>
#include <RkAlgorthm/SurveyEnums.h>

#include <QString>

// Types are stored and shown by their English names. The comparison is exact.

/// The type of that name; CameraTypeUnknown for any other text.
RKALGORTHM_EXPORT ECameraType GetCameraTypeByString(const QString& name);

/// The type of that name; PlaneTypeUnknown for any other text.
RKALGORTHM_EXPORT EPlaneType GetPlaneTypeByString(const QString& name);

/// The name of a type; for a type that this version does not know "Camera " and its number. Empty
/// for types below 1.
RKALGORTHM_EXPORT QString GetCameraStringByType(ECameraType type);

/// The name of a type; for a type that this version does not know "Aircraft " and its number. Empty
/// for types below 1.
RKALGORTHM_EXPORT QString GetPlaneStringByType(EPlaneType type);
