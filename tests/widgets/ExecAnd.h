// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "support/WindowWaits.h"

#include <QDialog>
#include <QTest>
#include <QTimer>

/// Runs the dialog and, once it is on the screen, the action; gives what its `exec` returned.
template <typename Dialog, typename Action>
int execAnd(Dialog& dialog, const Action& action)
{
    QTimer::singleShot(0, &dialog, [&dialog, &action] {
        if (comesOnScreen(&dialog))
            action();
        else
            dialog.reject();
    });
    return dialog.exec();
}
