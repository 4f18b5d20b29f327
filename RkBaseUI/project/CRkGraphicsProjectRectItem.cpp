// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkGraphicsProjectRectItem.h"

#include <QPainter>

CRkGraphicsProjectRectItem::CRkGraphicsProjectRectItem(QGraphicsItem* parent)
    : QGraphicsRectItem(parent)
{
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
    setPen(Qt::NoPen); // No border, so that the bounding rectangle is the rectangle itself.
}

void CRkGraphicsProjectRectItem::paint(QPainter* painter,
                                       const QStyleOptionGraphicsItem* /*option*/,
                                       QWidget* /*widget*/)
{
    QColor fill = Qt::white;
    if (isSelected())
        fill = QColor(196, 219, 252);
    else if (hasFocus())
        fill = QColor(0, 243, 254);
    painter->fillRect(boundingRect(), fill);
}
