// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkTipPushButton.h"

#include "widgets/PaintOnce.h"

#include <QPainter>

CRkTipPushButton::CRkTipPushButton(QWidget* parent)
    : QPushButton(parent)
{
}

void CRkTipPushButton::SetTipVisible(bool visible)
{
    m_tipVisible = visible;
    tipChanged();
    repaint();
}

void CRkTipPushButton::SetTipText(const QString& text)
{
    m_tipText = text;
    tipChanged();
}

void CRkTipPushButton::SetTipSize(const QSize& size)
{
    m_tipSize = size;
    tipChanged();
}

void CRkTipPushButton::SetTipMargin(int top, int right)
{
    m_tipMarginTop = top;
    m_tipMarginRight = right;
    tipChanged();
}

void CRkTipPushButton::SetTipBackgroundColor(const QColor& color)
{
    m_tipBackgroundColor = color;
    tipChanged();
}

void CRkTipPushButton::tipChanged()
{
    m_tipPicture = QPixmap();
    update();
}

// Font and palette show in the tip.
void CRkTipPushButton::changeEvent(QEvent* event)
{
    m_tipPicture = QPixmap();
    QPushButton::changeEvent(event);
}

void CRkTipPushButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (!m_tipVisible)
        return;

    const QRect tip(QPoint(rect().right() - m_tipMarginRight - m_tipSize.width(),
                           rect().top() + m_tipMarginTop),
                    m_tipSize);
    QPainter painter(this);
    // Not every change of it is told: an active window may have another one than an inactive.
    if (m_tipTextPen != painter.pen()) {
        m_tipTextPen = painter.pen();
        m_tipPicture = QPixmap();
    }
    paintOnce(painter, *this, tip, m_tipPicture,
              [this, &tip](QPainter& tipPainter) { paintTip(tipPainter, tip); });
}

void CRkTipPushButton::paintTip(QPainter& painter, const QRect& tip) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_tipBackgroundColor);
    painter.drawEllipse(tip);
    if (!m_tipText.isEmpty()) {
        painter.setPen(m_tipTextPen);
        painter.drawText(tip, Qt::AlignCenter, m_tipText);
    }
}
