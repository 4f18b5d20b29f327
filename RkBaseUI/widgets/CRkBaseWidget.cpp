// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkBaseWidget.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>

CRkBaseWidget::CRkBaseWidget(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setWindowIcon(QApplication::windowIcon());
}

void CRkBaseWidget::EnableMove(bool enabled)
{
    m_moveEnabled = enabled;
}

void CRkBaseWidget::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    if ((event->buttons() & Qt::LeftButton) && m_moveEnabled) {
        m_dragging = true;
        m_dragOffset = event->globalPos() - pos();
    }
}

void CRkBaseWidget::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    m_dragging = false;
}

void CRkBaseWidget::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
    if ((event->buttons() & Qt::LeftButton) && m_dragging && m_moveEnabled)
        move(event->globalPos() - m_dragOffset);
}

void CRkBaseWidget::showEvent(QShowEvent* event)
{
    m_dragging = false; // The release after a press that closed a popup went elsewhere.
    // A frameless window that is shown again otherwise stays unmapped, and so unpainted, on some
    // systems.
    setAttribute(Qt::WA_Mapped, true);
    QWidget::showEvent(event);
}
