// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkGraphicsProjectTextItem.h"

#include "project/CaptionText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr qreal captionWidth = 190;
constexpr qreal captionHeight = 32;
constexpr qreal paintedNameWidth = 180;

} // namespace

CRkGraphicsProjectTextItem::CRkGraphicsProjectTextItem(QGraphicsItem* parent)
    : QGraphicsTextItem(parent)
{
    setFont(QApplication::font());
    setDefaultTextColor(Qt::black);
    setTextInteractionFlags(Qt::TextEditorInteraction);
}

void CRkGraphicsProjectTextItem::SetPlainText(const QString& text)
{
    setPlainText(text);
    m_name = text;
    m_nameBeforeEditing = text;
    m_toolTipBeforeEditing = toolTip();
}

void CRkGraphicsProjectTextItem::buildDisplayAndToolTip()
{
    setPlainText(CaptionText::elided(m_name, font()));
    setToolTip(tr("Name:%1\n Size:%2\n Modification time:%3").arg(m_name, m_size, m_modified));
}

QRectF CRkGraphicsProjectTextItem::boundingRect() const
{
    QRectF rect = QGraphicsTextItem::boundingRect();
    rect.setWidth(std::max(rect.width(), captionWidth));
    rect.setHeight(std::max(rect.height(), captionHeight));
    return rect;
}

void CRkGraphicsProjectTextItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                                       QWidget* widget)
{
    if (isSelected() || hasFocus()) {
        QGraphicsTextItem::paint(painter, option, widget);
        painter->setPen(Qt::white);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(boundingRect().adjusted(0, 0, -1, -1));
        return;
    }
    painter->setFont(font());
    painter->setPen(defaultTextColor());
    painter->drawText(QRectF(0, 0, captionWidth, captionHeight), Qt::AlignCenter,
                      CaptionText::elided(m_name, font(), paintedNameWidth));
}

void CRkGraphicsProjectTextItem::focusInEvent(QFocusEvent* event)
{
    QGraphicsTextItem::focusInEvent(event);
    setPlainText(m_name);
    m_nameBeforeEditing = m_name;
    m_toolTipBeforeEditing = toolTip();
}

void CRkGraphicsProjectTextItem::focusOutEvent(QFocusEvent* event)
{
    QGraphicsTextItem::focusOutEvent(event);
    const QString text = CaptionText::withoutTrailingBlanks(toPlainText());
    buildDisplayAndToolTip();
    if (text == m_name)
        return;
    m_name = text;
    emit editFinished(text);
}

void CRkGraphicsProjectTextItem::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        clearFocus();
        return;
    }
    // The handler of releases passes every event on to the editor by its own type, presses
    // included.
    QGraphicsTextItem::keyReleaseEvent(event);
}
