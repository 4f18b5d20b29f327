// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace HostIcons {

namespace {

constexpr int side = 20;

QPainterPath folder()
{
    QPainterPath path(QPointF(3, 16));
    for (const QPointF& corner :
         {QPointF(3, 4.5), QPointF(8, 4.5), QPointF(10, 7), QPointF(17, 7), QPointF(17, 16)})
        path.lineTo(corner);
    path.closeSubpath();
    return path;
}

QPainterPath globe()
{
    QPainterPath path;
    path.addEllipse(QRectF(3, 3, 14, 14));
    path.addEllipse(QRectF(7, 3, 6, 14));
    path.moveTo(3, 10);
    path.lineTo(17, 10);
    return path;
}

QPainterPath lines(std::initializer_list<QLineF> segments)
{
    QPainterPath path;
    for (const QLineF& segment : segments) {
        path.moveTo(segment.p1());
        path.lineTo(segment.p2());
    }
    return path;
}

/// Four corners around something.
QPainterPath frame()
{
    QPainterPath path;
    for (const QPointF& turn : {QPointF(1, 1), QPointF(-1, 1), QPointF(1, -1), QPointF(-1, -1)}) {
        const auto at = [&](double x, double y) {
            return QPointF(10 + x * turn.x(), 10 + y * turn.y());
        };
        path.moveTo(at(7, 3.5));
        path.lineTo(at(7, 7));
        path.lineTo(at(3.5, 7));
    }
    return path;
}

QPainterPath block()
{
    QPainterPath path = frame();
    path.addPolygon(QPolygonF({{6.5, 8}, {12, 6.5}, {13.5, 12}, {8, 13.5}, {6.5, 8}}));
    return path;
}

QPainterPath project()
{
    QPainterPath path = frame();
    path.addRect(QRectF(6, 6, 3, 3));
    path.addRect(QRectF(11, 6.5, 3, 3));
    path.addRect(QRectF(8, 11, 3.5, 3));
    return path;
}

QPainterPath drawing(Shape shape)
{
    switch (shape) {
    case Shape::Projects:
        return folder();
    case Shape::Language:
    case Shape::Country:
        return globe();
    case Shape::Plus:
        return lines({{4.5, 10, 15.5, 10}, {10, 4.5, 10, 15.5}});
    case Shape::Minus:
        return lines({{4.5, 10, 15.5, 10}});
    case Shape::Block:
        return block();
    case Shape::Project:
        return project();
    }
    return {};
}

} // namespace

QIcon icon(Shape shape, const QColor& colour)
{
    QIcon icon;
    for (int scale = 1; scale <= 4; ++scale) {
        QPixmap picture(side * scale, side * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(drawing(shape));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace HostIcons
