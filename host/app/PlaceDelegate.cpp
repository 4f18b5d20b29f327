// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/PlaceDelegate.h"

#include "app/HostIcons.h"

#include <QPainter>

namespace {

constexpr int textLeft = 40;

const QColor ink(26, 38, 62);
const QColor faint(96, 114, 148);
const QColor accent(58, 136, 244);

void drawText(QPainter& painter, const QRect& line, const QString& text, const QColor& colour,
              int pixels, int weight)
{
    QFont font = painter.font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, line.width()));
}

} // namespace

void PlaceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    static const QIcon pin = HostIcons::icon(HostIcons::Shape::Pin, accent);
    const QRect row = option.rect;
    painter->save();
    if (option.state & QStyle::State_Selected)
        painter->fillRect(row, QColor(222, 234, 252));
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(row, QColor(240, 245, 252));
    pin.paint(painter, QRect(row.left() + 11, row.top() + 13, 20, 20));
    const QRect text = row.adjusted(textLeft, 5, -10, -5);
    const int half = text.height() / 2 + 1;
    drawText(*painter, QRect(text.topLeft(), QSize(text.width(), half)),
             index.data(Qt::DisplayRole).toString(), ink, 13, QFont::DemiBold);
    drawText(*painter, text.adjusted(0, half, 0, 0), index.data(CoordinatesRole).toString(), faint,
             11, QFont::Normal);
    painter->restore();
}

QSize PlaceDelegate::sizeHint(const QStyleOptionViewItem& option,
                              const QModelIndex& /*index*/) const
{
    return {option.rect.width(), rowHeight};
}
