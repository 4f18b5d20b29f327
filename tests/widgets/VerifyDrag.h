// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "support/WindowWaits.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

/// Verifies that the window follows the mouse from a press at `at` until the release, and no
/// longer.
inline void verifyDrag(QWidget& dialog, QPoint at)
{
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::LeftButton, {}, at);
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseMove(window, at + QPoint(30, 20));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
    QTest::mouseMove(window, at + QPoint(0, 7));
    QCOMPARE(dialog.pos(), QPoint(130, 147));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at);
    QTest::mouseMove(window, at + QPoint(40, 40));
    QCOMPARE(dialog.pos(), QPoint(130, 147));
}
