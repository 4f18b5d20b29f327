// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

/// The nearest integer; halves go as qRound takes them. What is beyond an int gives the largest or
/// the smallest one, not-a-number gives 0.
RKALGORTHM_EXPORT int qrealToIntNumber(double value);
