// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

// Every public header of the library, less the settings of the reference implementation.

#include <RkAlgorthm/ComboJson.h>
#include <RkAlgorthm/Constants.h>
#include <RkAlgorthm/CRkAirLineParam.h>
#include <RkAlgorthm/CRkCreateAirline.h>
#include <RkAlgorthm/CRkPoint2D.h>
#include <RkAlgorthm/CRkVector3D.h>
#include <RkAlgorthm/CurrentUser.h>
#include <RkAlgorthm/Gravity.h>
#include <RkAlgorthm/INPUT_PARAM.h>
#include <RkAlgorthm/Numbers.h>
#include <RkAlgorthm/PointLatLng.h>
#include <RkAlgorthm/ServerAddress.h>
#include <RkAlgorthm/SoftwareVersion.h>
#include <RkAlgorthm/StripPolygon.h>
#include <RkAlgorthm/SurveyEnums.h>
#include <RkAlgorthm/TableLayouts.h>
#include <RkAlgorthm/TaskMileage.h>
#include <RkAlgorthm/TypeNames.h>
#include <RkAlgorthm/Uid.h>
#include <RkAlgorthm/Utm.h>
