// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/Relief.h"

#include <QVector3D>

#include <array>
#include <cmath>

namespace Relief {

namespace {

struct Stop
{
    double share;
    QRgb colour;
};

// Muted, so that what is drawn over it stands out.
constexpr std::array<Stop, 6> stops = {{
    {0.00, qRgb(104, 138, 128)},
    {0.22, qRgb(140, 168, 138)},
    {0.42, qRgb(186, 196, 152)},
    {0.62, qRgb(214, 204, 166)},
    {0.82, qRgb(200, 176, 144)},
    {1.00, qRgb(240, 234, 226)},
}};

constexpr double heightFactor = 1.6; // Slopes are shaded as if they were steeper.

int mixed(int a, int b, double share)
{
    return int(std::lround(a + (b - a) * share));
}

QPointF mixed(const QPointF& a, const QPointF& b, double share)
{
    return a + (b - a) * share;
}

QRgb tint(double share)
{
    if (!(share > stops.front().share))
        return stops.front().colour;
    for (size_t i = 1; i < stops.size(); ++i) {
        if (share > stops[i].share)
            continue;
        const double part = (share - stops[i - 1].share) / (stops[i].share - stops[i - 1].share);
        const QRgb a = stops[i - 1].colour;
        const QRgb b = stops[i].colour;
        return qRgb(mixed(qRed(a), qRed(b), part), mixed(qGreen(a), qGreen(b), part),
                    mixed(qBlue(a), qBlue(b), part));
    }
    return stops.back().colour;
}

/// Level ground keeps its colour; shadow is cool and light is warm.
QRgb shaded(QRgb colour, double brightness)
{
    static const double level = hillshade({0, 0});
    const auto towards = [&](int component, int shadow, int light) {
        return brightness < level ? mixed(shadow, component, std::pow(brightness / level, 0.9))
                                  : mixed(component, light, (brightness - level) * 1.5);
    };
    return qRgb(towards(qRed(colour), 26, 255), towards(qGreen(colour), 38, 252),
                towards(qBlue(colour), 66, 238));
}

} // namespace

QColor elevationColour(double share)
{
    return QColor::fromRgb(tint(share));
}

double hillshade(const QPointF& slope)
{
    static const QVector3D light = QVector3D(-1, 1, 1.42F).normalized();
    const QVector3D normal(float(-slope.x() * heightFactor), float(-slope.y() * heightFactor), 1);
    return qMax(0.0, double(QVector3D::dotProduct(light, normal.normalized())));
}

QImage image(const ElevationModel& model, int pixelsPerInterval)
{
    const int intervals = model.postsPerSide() - 1;
    const int side = intervals * pixelsPerInterval;
    QVector<QPointF> slopes;
    slopes.reserve(model.postsPerSide() * model.postsPerSide());
    for (int row = 0; row <= intervals; ++row) {
        for (int column = 0; column <= intervals; ++column)
            slopes.append(model.slopeAtPost(column, row));
    }
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double posY = intervals - (y + 0.5) / pixelsPerInterval;
        const int row = int(posY);
        for (int x = 0; x < side; ++x) {
            const double posX = (x + 0.5) / pixelsPerInterval;
            const int column = int(posX);
            // Slopes between the posts, too: those of the bilinear surface would show its seams.
            const QPointF* south = &slopes[row * (intervals + 1) + column];
            const QPointF* north = south + intervals + 1;
            const QPointF slope = mixed(mixed(south[0], south[1], posX - column),
                                        mixed(north[0], north[1], posX - column), posY - row);
            const double elevation = model.elevation(QPointF(posX, posY) * model.spacing());
            line[x] = shaded(tint(model.share(elevation)), hillshade(slope));
        }
    }
    return image;
}

} // namespace Relief
