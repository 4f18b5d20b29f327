// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

class CRkBlock;
struct INPUT_PARAM;

/// Fills the record that flight lines are generated from with what the block and its task
/// parameters say. The outline goes in as UTM, for a strip block as the outline of the strip with
/// the UTM centre line beside it. With `reset` the generator is to choose the angle of the lines
/// (-1), and the distance of a single task is worked out anew; without, it is worked out only when
/// the stored one is below 0 (a stored 0 is used as it is). A distance worked out here is stored in
/// the task parameters. For task type 2 the surround margin becomes the relative flying height, in
/// the task parameters as well.
///
/// True when the record was filled. False, with the record as it was, for a null block, one without
/// task parameters or their extended part, or without outline points; false, with the record filled
/// in part, when the outline cannot be taken to UTM or the strip cannot be outlined without folds.
/// The block stays the caller's.
///
///     INPUT_PARAM param;
///     if (UpdateAirLineParam(block, param, false))
///         generate(param);
RKBASEUI_EXPORT bool UpdateAirLineParam(CRkBlock* block, INPUT_PARAM& param, bool reset);
