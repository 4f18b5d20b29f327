// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

/// Draws `area` of the widget as `paint(QPainter&)` paints it, in the widget's coordinates. The
/// result is kept in `kept`, which is drawn again the next time: smooth shapes and texts cost more
/// than a whole button. Set `kept` to null when what `paint` paints has changed; another size or
/// density is seen here. Of the widget's own painter, `paint` finds font and layout direction, but
/// not pen and brush. What does not lie wholly in the widget is painted directly, and so is what a
/// transformation turns or distorts.
template <typename Paint>
void paintOnce(QPainter& painter, const QWidget& widget, const QRect& area, QPixmap& kept,
               const Paint& paint)
{
    if (area.isEmpty())
        return;
    const QTransform transform = painter.deviceTransform();
    const qreal ratio = transform.m11();
    if (transform.type() > QTransform::TxScale || ratio != transform.m22() || ratio <= 0
        || !widget.rect().contains(area)) {
        paint(painter);
        return;
    }

    const QSize size = area.size() * ratio;
    if (kept.size() != size || kept.devicePixelRatio() != ratio) {
        kept = QPixmap(size);
        kept.setDevicePixelRatio(ratio);
        kept.fill(Qt::transparent);
        QPainter keptPainter(&kept);
        // Whole: otherwise what was not set on it would come from the picture's own font.
        QFont font = painter.font();
        font.resolve(QFont::AllPropertiesResolved);
        keptPainter.setFont(font);
        keptPainter.setLayoutDirection(painter.layoutDirection());
        keptPainter.translate(-area.topLeft());
        paint(keptPainter);
    }
    painter.drawPixmap(area.topLeft(), kept);
}
