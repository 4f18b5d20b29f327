// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

// Every public header of the library, less the settings of the reference implementation.

#include <RkData/CRkBlock.h>
#include <RkData/CRkBlockManager.h>
#include <RkData/CRkControl.h>
#include <RkData/CRkDataBase.h>
#include <RkData/CRkExtendedTaskParam.h>
#include <RkData/CRkTask.h>
#include <RkData/CRkTaskPara.h>
