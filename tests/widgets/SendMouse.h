// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

Q_DECLARE_METATYPE(Qt::MouseButton)

/// Sends one mouse event to the widget, `at` in its own coordinates, `held` the buttons held during
/// it: for the combinations of buttons that QTest does not make.
inline void sendMouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
                      Qt::MouseButtons held)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}
