// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"

#include <QMouseEvent>
#include <QPushButton>

namespace GalleryParts {

void hover(QWidget& widget)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    QMouseEvent move(QEvent::MouseMove, widget.rect().center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void hover(QWidget& window, const char* button)
{
    hover(*window.findChild<QPushButton*>(QLatin1String(button)));
}

} // namespace GalleryParts
