// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostIcons.h"

#include <QGuiApplication>
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

QPainterPath polyline(std::initializer_list<QPointF> points)
{
    QPainterPath path(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
    return path;
}

/// A folded sheet.
QPainterPath map()
{
    QPainterPath path = polyline({{3, 5},
                                  {7.7, 3.2},
                                  {12.3, 5},
                                  {17, 3.2},
                                  {17, 15},
                                  {12.3, 16.8},
                                  {7.7, 15},
                                  {3, 16.8},
                                  {3, 5}});
    path.addPath(lines({{7.7, 3.2, 7.7, 15}, {12.3, 5, 12.3, 16.8}}));
    return path;
}

QPainterPath mountains()
{
    QPainterPath path = polyline({{2.5, 16}, {8, 5.5}, {13.5, 16}, {2.5, 16}});
    path.addPath(polyline({{11.2, 11.2}, {13.4, 8}, {17.5, 16}, {13.5, 16}}));
    return path;
}

QPainterPath cube()
{
    QPainterPath path =
        polyline({{10, 3}, {16.2, 6.5}, {16.2, 13.5}, {10, 17}, {3.8, 13.5}, {3.8, 6.5}, {10, 3}});
    path.addPath(polyline({{3.8, 6.5}, {10, 10}, {16.2, 6.5}}));
    path.addPath(lines({{10, 10, 10, 17}}));
    return path;
}

/// A screen on its foot.
QPainterPath computer()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(2.8, 3.8, 14.4, 9.6), 1.4, 1.4);
    path.addPath(lines({{10, 13.4, 10, 16.4}, {6.6, 16.4, 13.4, 16.4}}));
    return path;
}

/// Dividers.
QPainterPath dividers()
{
    QPainterPath path = polyline({{5, 17}, {10, 5.6}, {15, 17}});
    path.addEllipse(QPointF(10, 3.9), 1.7, 1.7);
    path.addPath(lines({{7.1, 12.2, 12.9, 12.2}}));
    return path;
}

/// A turned grid.
QPainterPath grid()
{
    QPainterPath path = polyline({{10, 2.8}, {17.2, 10}, {10, 17.2}, {2.8, 10}, {10, 2.8}});
    path.addPath(lines({{6.4, 6.4, 13.6, 13.6}, {13.6, 6.4, 6.4, 13.6}}));
    return path;
}

QPainterPath sun()
{
    QPainterPath path;
    path.addEllipse(QPointF(10, 10), 3.4, 3.4);
    for (int ray = 0; ray < 8; ++ray) {
        const QLineF line = QLineF::fromPolar(1, ray * 45);
        path.moveTo(QPointF(10, 10) + line.p2() * 5.8);
        path.lineTo(QPointF(10, 10) + line.p2() * 7.4);
    }
    return path;
}

/// An antenna on a tripod.
QPainterPath antenna()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(5.6, 3, 8.8, 3.4), 1.6, 1.6);
    path.addPath(lines({{10, 6.4, 10, 17}, {10, 9.2, 5, 17}, {10, 9.2, 15, 17}}));
    return path;
}

/// Cross hairs.
QPainterPath crossHairs()
{
    QPainterPath path;
    path.addEllipse(QPointF(10, 10), 5, 5);
    path.addPath(lines(
        {{10, 2.5, 10, 7.5}, {10, 12.5, 10, 17.5}, {2.5, 10, 7.5, 10}, {12.5, 10, 17.5, 10}}));
    return path;
}

/// Most of a circle, with a head.
QPainterPath turn()
{
    QPainterPath path;
    path.arcMoveTo(QRectF(3.5, 3.5, 13, 13), 40);
    path.arcTo(QRectF(3.5, 3.5, 13, 13), 40, 285);
    path.addPath(polyline({{15.4, 2.4}, {15.2, 6.2}, {11.4, 6}}));
    return path;
}

QPainterPath lens()
{
    QPainterPath path;
    path.addEllipse(QPointF(8.6, 8.6), 5.1, 5.1);
    path.addPath(lines({{12.4, 12.4, 16.6, 16.6}}));
    return path;
}

QPainterPath pin()
{
    QPainterPath path(QPointF(10, 17.5));
    path.cubicTo(6.2, 12.8, 4.6, 10.6, 4.6, 8);
    path.arcTo(QRectF(4.6, 2.6, 10.8, 10.8), 180, -180);
    path.cubicTo(15.4, 10.6, 13.8, 12.8, 10, 17.5);
    path.addEllipse(QPointF(10, 8), 1.9, 1.9);
    return path;
}

/// A ring with marks outside and a dot inside.
QPainterPath target()
{
    QPainterPath path;
    path.addEllipse(QPointF(10, 10), 5.4, 5.4);
    path.addEllipse(QPointF(10, 10), 1.4, 1.4);
    path.addPath(lines(
        {{10, 2.2, 10, 4.6}, {10, 15.4, 10, 17.8}, {2.2, 10, 4.6, 10}, {15.4, 10, 17.8, 10}}));
    return path;
}

/// A polygon with its vertices.
QPainterPath outline()
{
    const QPolygonF corners({{4.4, 8}, {11.6, 4.2}, {15.8, 11}, {7.4, 15.8}});
    constexpr double dot = 1.7;
    QPainterPath path;
    for (int i = 0; i < corners.size(); ++i) {
        const QLineF edge(corners[i], corners[(i + 1) % corners.size()]);
        path.addEllipse(corners[i], dot, dot);
        path.moveTo(edge.pointAt(dot / edge.length()));
        path.lineTo(edge.pointAt(1 - dot / edge.length()));
    }
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
    case Shape::Whole:
        return frame();
    case Shape::Map:
        return map();
    case Shape::Terrain:
        return mountains();
    case Shape::Scene:
        return cube();
    case Shape::Computer:
        return computer();
    case Shape::Tools:
        return dividers();
    case Shape::Earthwork:
        return grid();
    case Shape::Light:
        return sun();
    case Shape::Antenna:
        return antenna();
    case Shape::Coordinates:
        return crossHairs();
    case Shape::Turn:
        return turn();
    case Shape::Search:
        return lens();
    case Shape::Pin:
        return pin();
    case Shape::Locate:
        return target();
    case Shape::Outline:
        return outline();
    case Shape::Close:
        return lines({{5.5, 5.5, 14.5, 14.5}, {14.5, 5.5, 5.5, 14.5}});
    }
    return {};
}

} // namespace

namespace {

QPen pen(const QColor& colour, double width)
{
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPixmap emptyPicture(double scale)
{
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    return picture;
}

} // namespace

QIcon icon(Shape shape, const QColor& colour)
{
    QIcon icon;
    for (int scale = 1; scale <= 4; ++scale) {
        QPixmap picture = emptyPicture(scale);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen(colour, 1.6));
        painter.drawPath(drawing(shape));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

QCursor cursor(Shape shape)
{
    QPixmap picture = emptyPicture(qGuiApp->devicePixelRatio());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(drawing(shape), pen(Qt::white, 4));
    painter.strokePath(drawing(shape), pen(QColor(9, 2, 38), 1.8));
    painter.end();
    return QCursor(picture);
}

} // namespace HostIcons
