// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// Every public header of the library.

#include <RkBaseUI/CRkBaseDialog.h>
#include <RkBaseUI/CRkBaseWidget.h>
#include <RkBaseUI/CRkGraphicsBlockItem.h>
#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkBaseUI/ToolTypes.h>
