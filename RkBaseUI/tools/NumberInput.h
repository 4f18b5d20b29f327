// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

class QLineEdit;

/// Fields for numbers.
namespace NumberInput {

/// Lets the user type numbers alone, of any size, in the only form that `QString::toDouble` reads:
/// with a decimal point and without group separators, whatever the language of the desktop. What
/// is not finished, such as "-" or "1e", can be typed too.
void accept(QLineEdit& edit);

} // namespace NumberInput
