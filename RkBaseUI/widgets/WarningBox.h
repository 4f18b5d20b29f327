// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

class QString;

/// Message boxes as the whole library shows them: with the warning sign, modal, in a window of
/// their own. The texts are plain. Both functions return when the user has closed the box.
namespace WarningBox {

/// Shows a message with the OK button alone.
void show(const QString& title, const QString& text);

/// Asks with OK and Cancel; true after OK.
bool confirm(const QString& title, const QString& text);

} // namespace WarningBox
