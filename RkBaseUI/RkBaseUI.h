// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// Every public header of the library.

#include <RkBaseUI/AirLineParam.h>
#include <RkBaseUI/AntennaHeight.h>
#include <RkBaseUI/CRkActionView.h>
#include <RkBaseUI/CRkBaseDialog.h>
#include <RkBaseUI/CRkBaseWidget.h>
#include <RkBaseUI/CRkBlockManagerTable.h>
#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkCityDateFilterWidget.h>
#include <RkBaseUI/CRkCitySelectWidget.h>
#include <RkBaseUI/CRkCoordFormat.h>
#include <RkBaseUI/CRkDateSelectWidget.h>
#include <RkBaseUI/CRkGraphicsBlockItem.h>
#include <RkBaseUI/CRkGraphicsPixmapItem.h>
#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkLightDir.h>
#include <RkBaseUI/CRkLightWgt.h>
#include <RkBaseUI/CRkMenuButton.h>
#include <RkBaseUI/CRkMessageBox.h>
#include <RkBaseUI/CRkNoflyApplyUpload.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>
#include <RkBaseUI/CRkOpenedProjectInfo.h>
#include <RkBaseUI/CRkParameterEditPage.h>
#include <RkBaseUI/CRkProcessDialog.h>
#include <RkBaseUI/CRkProgressWgt.h>
#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <RkBaseUI/CRkSlider.h>
#include <RkBaseUI/CRkSystemInfo.h>
#include <RkBaseUI/CRkTableDelegate.h>
#include <RkBaseUI/CRkTipPushButton.h>
#include <RkBaseUI/CRkVerHighCalculator.h>
#include <RkBaseUI/CRkVolumeWgt.h>
#include <RkBaseUI/CoordinateFormat.h>
#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/LightDirection.h>
#include <RkBaseUI/PolygonChecks.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/RkCitySelectByCity.h>
#include <RkBaseUI/RkCitySelectByProvince.h>
#include <RkBaseUI/RkEditorDescriptor.h>
#include <RkBaseUI/RkHoveredPushButton.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkBaseUI/SquareGridVolume.h>
#include <RkBaseUI/ToolTypes.h>
#include <RkBaseUI/WebService.h>
