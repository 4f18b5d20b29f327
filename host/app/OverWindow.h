// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

class QWidget;

/// Gives a dialog that has no parent to stand over the size of its content and puts it over the
/// middle of a window.
void placeOverWindow(QWidget& dialog, const QWidget& window);
