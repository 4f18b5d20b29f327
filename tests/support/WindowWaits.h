// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QTest>

// A window stands on the screen some time after show() has returned, when the display server says
// so. What is clicked, typed or grabbed before goes nowhere, so tests wait for that word: no longer
// than it takes, and in vain after five seconds.

/// Whether a widget's window or a window comes on the screen.
template <typename Window>
bool comesOnScreen(Window* window)
{
    return QTest::qWaitForWindowExposed(window);
}

/// Whether it gets the keyboard as well.
template <typename Window>
bool comesToFront(Window* window)
{
    return QTest::qWaitForWindowActive(window);
}
