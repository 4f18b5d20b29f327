// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/PageStyle.h"

#include <QLabel>
#include <QVariant>

const char* const PageStyle::scrollBar = R"(
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar::handle:vertical {
    background: rgb(198, 205, 216); border-radius: 4px; min-height: 40px; margin: 1px;
}
QScrollBar::add-line, QScrollBar::sub-line { height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

QLabel* PageStyle::makeLabel(const char* role, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setProperty("role", QLatin1String(role));
    label->setTextFormat(Qt::PlainText);
    return label;
}
