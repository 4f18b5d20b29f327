// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/OverWindow.h"

#include <QWidget>

void placeOverWindow(QWidget& dialog, const QWidget& window)
{
    dialog.adjustSize();
    dialog.move(window.mapToGlobal(window.rect().center()) - dialog.rect().center());
}
