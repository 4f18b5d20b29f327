// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QStringList>
#include <QTest>

/// Shows the window and names what has the keyboard at first and after each press of Tab, `count`
/// names in all; none when the window does not become the active one.
inline QStringList tabStops(QWidget& window, int count)
{
    window.show();
    QApplication::setActiveWindow(&window);
    if (!QTest::qWaitFor([&window] { return window.isActiveWindow(); }))
        return {};
    QStringList stops;
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            QTest::keyClick(&window, Qt::Key_Tab);
        const QWidget* focused = QApplication::focusWidget();
        stops.append(focused ? focused->objectName() : QString());
    }
    return stops;
}

/// Whether a dialog that is embedded in a window leaves the keyboard with the field that has it.
template <typename Dialog>
bool leavesFocusWhenEmbedded()
{
    QWidget window;
    auto* field = new QLineEdit(&window);
    field->setFocus();
    const Dialog dialog(&window);
    return window.focusWidget() == field;
}
