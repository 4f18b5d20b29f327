// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkGraphicsBlockItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

CRkGraphicsBlockItem::CRkGraphicsBlockItem(QGraphicsItem* parent)
    : QGraphicsPixmapItem(parent)
{
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
    setFlag(QGraphicsItem::ItemIsMovable, false);
}

void CRkGraphicsBlockItem::SetBlockName(const QString& name)
{
    m_blockName = name;
    update();
}

void CRkGraphicsBlockItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                                 QWidget* widget)
{
    QStyleOptionGraphicsItem plain(*option);
    plain.state = QStyle::State_None;
    QGraphicsPixmapItem::paint(painter, &plain, widget);
    painter->drawText(QRectF(0, 0, 190, 143), Qt::AlignCenter, m_blockName);
}
