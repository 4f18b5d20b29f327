// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkGraphicsProjectImageItem.h"

#include <QStyleOptionGraphicsItem>

CRkGraphicsProjectImageItem::CRkGraphicsProjectImageItem(QGraphicsItem* parent)
    : QGraphicsPixmapItem(parent)
{
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
    setFlag(QGraphicsItem::ItemIsMovable, false);
}

void CRkGraphicsProjectImageItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                                        QWidget* widget)
{
    QStyleOptionGraphicsItem plain(*option);
    plain.state = QStyle::State_None;
    QGraphicsPixmapItem::paint(painter, &plain, widget);
}
