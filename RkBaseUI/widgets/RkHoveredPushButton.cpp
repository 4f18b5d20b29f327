// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/RkHoveredPushButton.h"

#include <QCursor>
#include <QStyleOptionButton>
#include <QStylePainter>

RkHoveredPushButton::RkHoveredPushButton(QWidget* parent)
    : RkHoveredPushButton(QString(), parent)
{
}

RkHoveredPushButton::RkHoveredPushButton(const QString& text, QWidget* parent)
    : RkHoveredPushButton(
        text, QStringLiteral("RkHoveredPushButton{color:rgb(58,136,244);border:none;}"), parent)
{
}

RkHoveredPushButton::RkHoveredPushButton(const QString& text, const QString& styleSheet,
                                         QWidget* parent)
    : QPushButton(text, parent)
{
    if (!styleSheet.isEmpty())
        setStyleSheet(styleSheet);
    setMinimumHeight(25);
}

void RkHoveredPushButton::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    // Asking for the mouse may be a question to the display server; not when the answer is known.
    if (!(option.state & QStyle::State_MouseOver)
        && rect().contains(mapFromGlobal(QCursor::pos()))) {
        option.state |= QStyle::State_MouseOver;
    }
    QStylePainter painter(this);
    drawButton(painter, option);
}

void RkHoveredPushButton::drawButton(QStylePainter& painter, QStyleOptionButton& option)
{
    painter.drawControl(QStyle::CE_PushButton, option);
}
