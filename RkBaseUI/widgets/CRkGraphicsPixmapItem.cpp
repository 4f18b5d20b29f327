// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkGraphicsPixmapItem.h"

#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QPainterPath>

CRkGraphicsPixmapItem::CRkGraphicsPixmapItem(QGraphicsItem* parent)
    : QGraphicsPixmapItem(parent)
{
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
}

void CRkGraphicsPixmapItem::SetNormalPixmap(const QPixmap& pixmap)
{
    m_normalPixmap = pixmap;
    setPixmap(pixmap);
}

void CRkGraphicsPixmapItem::SetName(const QString& name)
{
    m_name = name;
    update();
}

void CRkGraphicsPixmapItem::SetChecked(bool checked)
{
    m_checked = checked;
    showState();
}

void CRkGraphicsPixmapItem::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    showState();
}

void CRkGraphicsPixmapItem::SetHighlight(bool highlight)
{
    m_highlight = highlight;
    showState();
}

void CRkGraphicsPixmapItem::itemClicked()
{
    emit pixmapItemClicked();
}

QPainterPath CRkGraphicsPixmapItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void CRkGraphicsPixmapItem::showState()
{
    if (m_highlight)
        setPixmap(m_highlightPixmap);
    else if (!m_enabled)
        setPixmap(m_disabledPixmap);
    else
        setPixmap(m_checked ? m_checkedPixmap : m_normalPixmap);
}

void CRkGraphicsPixmapItem::hoverEnterEvent(QGraphicsSceneHoverEvent* /*event*/)
{
    if (m_enabled && !m_highlight && !m_checked)
        setPixmap(m_hoverPixmap.isNull() ? m_normalPixmap : m_hoverPixmap);
}

void CRkGraphicsPixmapItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* /*event*/)
{
    if (m_enabled && !m_highlight && !m_checked)
        setPixmap(m_normalPixmap);
}

void CRkGraphicsPixmapItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsPixmapItem::mousePressEvent(event);
    if (event->button() != Qt::LeftButton || !m_enabled || m_highlight)
        return;
    m_pressed = true;
    if (!m_pressPixmap.isNull())
        setPixmap(m_pressPixmap);
    event->accept(); // Otherwise the scene would not send the release here.
}

void CRkGraphicsPixmapItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsPixmapItem::mouseReleaseEvent(event);
    if (!m_pressed)
        return;
    m_pressed = false;
    showState();
    emit pixmapItemClicked();
}
