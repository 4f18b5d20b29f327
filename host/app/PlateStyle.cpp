// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/PlateStyle.h"

#include <QPainter>

namespace PlateStyle {

const char* const styleSheet = R"(
QToolButton {
    background-color: rgba(255, 255, 255, 235); border: 1px solid rgb(200, 210, 224);
    border-radius: 4px;
}
QToolButton[role="named"] {
    color: rgb(44, 60, 90); font-size: 13px; font-weight: 600; padding: 0 12px 0 8px;
}
QToolButton:hover { background-color: white; border-color: rgb(58, 136, 244); }
QToolButton:pressed { background-color: rgb(222, 234, 252); }
QToolButton:checked { background-color: rgb(208, 226, 252); border-color: rgb(58, 136, 244); }
QToolButton:focus { border: 2px solid rgb(58, 136, 244); }
QToolButton:disabled {
    background-color: rgba(255, 255, 255, 150); border-color: rgb(216, 223, 233);
}
QLabel {
    color: rgb(84, 106, 146); font-size: 12px; padding: 6px 10px;
    background-color: rgba(255, 255, 255, 235); border: 1px solid rgb(200, 210, 224);
    border-radius: 4px;
}
)";

void draw(QPainter& painter, const QRectF& rectangle)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(200, 210, 224), 1));
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawRoundedRect(rectangle.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.restore();
}

} // namespace PlateStyle
