// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Numbers.h"

#include <QtGlobal>

#include <cmath>
#include <limits>

int qrealToIntNumber(double value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value))
        return 0;
    if (value >= Limits::max())
        return Limits::max();
    if (value <= Limits::min())
        return Limits::min();
    return qRound(value);
}
