// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleThumbnail.h"

#include "samples/SamplePalette.h"

#include <QBuffer>
#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QtMath>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace SampleThumbnail {

namespace {

/// Colours of one map style. Heights run from 0 to 1.
struct Style
{
    std::array<QRgb, 5> land; ///< From low to high, evenly spaced.
    QRgb water;
    double waterLevel;
    QRgb contour;
    double contourOpacity;
    QRgb roadEdge;
    QRgb road;
    QRgb accent; ///< Survey areas.
    bool isDark;
};

const std::array<Style, 5>& styles()
{
    static const std::array<Style, 5> all = {{
        {{0xffcfe3c4, 0xffdfe9cb, 0xffefebd0, 0xffe6d8b8, 0xfff3eee4},
         0xff9cc9e3,
         0.30,
         0xff8a7a5c,
         0.30,
         0xffc9a66b,
         0xfffdf3d6,
         0xff1f6fe0,
         false},
        {{0xff4f6b46, 0xff64794f, 0xff7d8458, 0xff9a9069, 0xffb9ab86},
         0xff2c5566,
         0.29,
         0xff2f3f2a,
         0.18,
         0xff5a5a4c,
         0xffd9d3bf,
         0xffffb21e,
         true},
        {{0xfff3efe6, 0xfff6f3ec, 0xfff0ece2, 0xffe8e4da, 0xfff8f6f1},
         0xffb9d7ea,
         0.28,
         0xffb8ab93,
         0.35,
         0xffd5cbb5,
         0xffffffff,
         0xffe2562f,
         false},
        {{0xff12263f, 0xff17304d, 0xff1d3a5a, 0xff264868, 0xff335a7c},
         0xff0a1a30,
         0.30,
         0xff6fa8dc,
         0.22,
         0xff0d1b2e,
         0xff4d7096,
         0xff21d4c5,
         true},
        {{0xffb7c9a1, 0xffd0cd9c, 0xffddbf8a, 0xffc99f72, 0xffb08a6a},
         0xff7fb3c8,
         0.25,
         0xff6b4a32,
         0.30,
         0xff8a6e4e,
         0xfff6e7c8,
         0xffc2185b,
         false},
    }};
    return all;
}

/// A smooth random surface: sums of value noise, each finer and lower than the one before.
class Terrain
{
public:
    explicit Terrain(quint32 seed)
        : m_seed(seed)
    {
    }

    /// Height between 0 and 1 at a place in pixels.
    float height(float x, float y) const
    {
        float sum = 0;
        float weight = 0.56F;
        float frequency = 1 / 150.F;
        for (quint32 octave = 0; octave < 4; ++octave) {
            sum += weight * noise(x * frequency, y * frequency, octave);
            weight *= 0.45F;
            frequency *= 2.1F;
        }
        return std::clamp(sum, 0.F, 1.F);
    }

private:
    float corner(int x, int y, quint32 octave) const
    {
        quint32 hash = m_seed + octave * 0x9e3779b9U;
        hash = (hash ^ quint32(x)) * 0x85ebca6bU;
        hash ^= hash >> 13;
        hash = (hash ^ quint32(y)) * 0xc2b2ae35U;
        hash ^= hash >> 16;
        hash *= 0x7feb352dU;
        return float(hash >> 8) / float(1U << 24U);
    }

    float noise(float x, float y, quint32 octave) const
    {
        const int left = int(std::floor(x));
        const int top = int(std::floor(y));
        const auto smooth = [](float t) { return t * t * t * (t * (t * 6 - 15) + 10); };
        const float u = smooth(x - float(left));
        const float v = smooth(y - float(top));
        const float above = corner(left, top, octave) * (1 - u) + corner(left + 1, top, octave) * u;
        const float below =
            corner(left, top + 1, octave) * (1 - u) + corner(left + 1, top + 1, octave) * u;
        return above * (1 - v) + below * v;
    }

    quint32 m_seed;
};

struct Rgb
{
    float r;
    float g;
    float b;
};

Rgb toRgb(QRgb colour)
{
    return {float(qRed(colour)), float(qGreen(colour)), float(qBlue(colour))};
}

Rgb mix(const Rgb& a, const Rgb& b, float share)
{
    return {a.r + (b.r - a.r) * share, a.g + (b.g - a.g) * share, a.b + (b.b - a.b) * share};
}

Rgb landColour(const Style& style, float height)
{
    const float position = height * float(style.land.size() - 1);
    const std::size_t band = std::min(std::size_t(position), style.land.size() - 2);
    return mix(toRgb(style.land[band]), toRgb(style.land[band + 1]), position - float(band));
}

/// How much of a contour line covers a pixel of that height and slope (height a pixel).
float contourCover(float height, float slope)
{
    constexpr float lines = 22;
    constexpr float halfWidth = 1.1F;
    const float level = height * lines;
    const float distance = std::abs(level - std::round(level)) / std::max(slope * lines, 1e-4F);
    return std::clamp(halfWidth + 0.5F - distance, 0.F, 1.F);
}

QRgb terrainPixel(const Style& style, float height, float slopeX, float slopeY)
{
    const float light =
        std::clamp(1 + (slopeX + slopeY) * (style.isDark ? 16.F : 9.F), 0.72F, 1.2F);
    const float slope = std::hypot(slopeX, slopeY);
    const float shore = float(style.waterLevel);
    Rgb colour = landColour(style, (height - shore) / (1 - shore));
    colour = {colour.r * light, colour.g * light, colour.b * light};
    colour = mix(colour, toRgb(style.contour),
                 float(style.contourOpacity) * contourCover(height, slope));
    const float wet = std::clamp((shore - height) / std::max(slope, 1e-4F) + 0.5F, 0.F, 1.F);
    colour = mix(colour, toRgb(style.water), wet);
    const auto channel = [](float value) { return int(std::clamp(value, 0.F, 255.F)); };
    return qRgb(channel(colour.r), channel(colour.g), channel(colour.b));
}

QImage drawTerrain(const Style& style, quint32 seed)
{
    const Terrain terrain(seed);
    constexpr int stride = width + 1;
    std::vector<float> heights(std::size_t(stride) * (height + 1));
    for (int y = 0; y <= height; ++y) {
        for (int x = 0; x <= width; ++x) {
            // Most sums of noise lie between a quarter and three quarters; spread them.
            const float raw = terrain.height(float(x), float(y));
            heights[std::size_t(y) * stride + std::size_t(x)] =
                std::clamp((raw - 0.2F) / 0.6F, 0.F, 1.F);
        }
    }

    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const float* here = &heights[std::size_t(y) * stride + std::size_t(x)];
            line[x] = terrainPixel(style, here[0], here[1] - here[0], here[stride] - here[0]);
        }
    }
    return image;
}

/// A road or river from one side of the picture to the other.
QPainterPath makeWay(QRandomGenerator& random)
{
    const auto between = [&](double low, double high) {
        return low + (high - low) * random.generateDouble();
    };
    const bool isUpright = random.bounded(2) == 0;
    const double length = isUpright ? height : width;
    const double breadth = isUpright ? width : height;
    const auto point = [&](double along) {
        const QPointF p(along * length, between(0.1, 0.9) * breadth);
        return isUpright ? p.transposed() : p;
    };
    QPainterPath way(point(-0.05));
    const QPointF bend = point(0.45);
    const QPointF lead = isUpright ? QPointF(0, length * 0.18) : QPointF(length * 0.18, 0);
    way.cubicTo(point(0.2), bend - lead, bend);
    way.cubicTo(bend + lead, point(0.8), point(1.05));
    return way;
}

void drawWays(QPainter& painter, const Style& style, QRandomGenerator& random)
{
    const auto stroke = [&](const QPainterPath& way, QRgb colour, double breadth) {
        painter.strokePath(
            way, QPen(QColor(colour), breadth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    if (random.bounded(2) == 0)
        stroke(makeWay(random), style.water, 9);
    const int roads = random.bounded(1, 4);
    for (int i = 0; i < roads; ++i) {
        const QPainterPath way = makeWay(random);
        const double breadth = i == 0 ? 5 : 3;
        stroke(way, style.roadEdge, breadth + 2);
        stroke(way, style.road, breadth);
    }
}

/// Metres to pixels, with the areas in the middle and air around them.
QTransform viewOf(const QVector<SampleGeometry::Area>& areas)
{
    QRectF box;
    for (const SampleGeometry::Area& area : areas)
        box = box.united(area.outline.boundingRect());
    const double metres = std::max(box.width() / width, box.height() / height) * 1.5;
    return QTransform()
        .translate(width / 2.0, height / 2.0)
        .scale(1 / metres, -1 / metres)
        .translate(-box.center().x(), -box.center().y());
}

/// The line around a city. Rings of islands and enclaves hang together in one polygon by edges that
/// run to them and back; those are left out.
QPainterPath borderLine(const QPolygonF& boundary)
{
    using Edge = std::array<double, 4>;
    const auto edgeFrom = [&](int i) {
        const QPointF& a = boundary[i];
        const QPointF& b = boundary[(i + 1) % boundary.size()];
        const bool isAscending = std::make_pair(a.x(), a.y()) < std::make_pair(b.x(), b.y());
        return isAscending ? Edge{a.x(), a.y(), b.x(), b.y()} : Edge{b.x(), b.y(), a.x(), a.y()};
    };
    std::map<Edge, int> uses;
    for (int i = 0; i < boundary.size(); ++i)
        ++uses[edgeFrom(i)];

    QPainterPath line(boundary.value(0));
    for (int i = 0; i < boundary.size(); ++i) {
        const QPointF& next = boundary[(i + 1) % boundary.size()];
        if (uses[edgeFrom(i)] == 1)
            line.lineTo(next);
        else
            line.moveTo(next);
    }
    return line;
}

void drawBoundary(QPainter& painter, const QPolygonF& boundary, const Style& style)
{
    QPainterPath outside;
    outside.addRect(-1, -1, width + 2, height + 2);
    outside.addPolygon(boundary);
    outside.setFillRule(Qt::OddEvenFill);
    painter.fillPath(outside, style.isDark ? QColor(0, 0, 0, 80) : QColor(255, 255, 255, 110));
    QPen pen(style.isDark ? QColor(255, 255, 255, 190) : QColor(90, 60, 120, 200), 3);
    pen.setDashPattern({5, 2, 1.4, 2});
    painter.strokePath(borderLine(boundary), pen);
}

/// Parallel lines over the whole of a shape, clipped to it.
void drawFlightLines(QPainter& painter, const SampleGeometry::Area& area, const QPolygonF& outline,
                     const QTransform& view, const QColor& colour)
{
    QPainterPath clip;
    clip.addPolygon(outline);
    painter.save();
    painter.setClipPath(clip);
    painter.setPen(QPen(colour, 2));
    if (area.isStrip()) {
        painter.drawPolyline(view.map(area.centreLine));
    } else {
        const QRectF box = outline.boundingRect();
        const int reach = qCeil(std::hypot(box.width(), box.height()) / 2);
        painter.translate(box.center());
        painter.rotate(-area.flightAngle);
        for (int y = -reach; y <= reach; y += 9)
            painter.drawLine(QPointF(-reach, y), QPointF(reach, y));
    }
    painter.restore();
}

void drawAreas(QPainter& painter, const Scene& scene, const QTransform& view, const Style& style)
{
    const QColor accent(style.accent);
    QColor fill = accent;
    fill.setAlpha(style.isDark ? 95 : 80);
    QColor lines = accent;
    lines.setAlpha(170);
    for (const SampleGeometry::Area& area : scene.areas) {
        const QPolygonF outline = view.map(area.outline);
        painter.setBrush(fill);
        painter.setPen(
            QPen(QColor(255, 255, 255, 220), 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolygon(outline);
        drawFlightLines(painter, area, outline, view, lines);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(accent, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolygon(outline);
    }
}

void drawMarkers(QPainter& painter, const Scene& scene, const QTransform& view)
{
    painter.setPen(QPen(QColor(40, 40, 40), 2));
    painter.setBrush(QColor(255, 214, 10));
    for (const QPointF& marker : scene.markers)
        painter.drawEllipse(view.map(marker), 5, 5);
}

/// The corner of the picture that hides least of the survey areas.
QRectF freeCorner(const Scene& scene, const QTransform& areaView, double side)
{
    constexpr double margin = 10;
    const double right = width - side - margin;
    const double bottom = height - side - margin;
    QRectF best;
    double leastHidden = -1;
    for (const QPointF& corner : {QPointF(right, bottom), QPointF(margin, bottom),
                                  QPointF(right, margin), QPointF(margin, margin)}) {
        const QRectF frame(corner, QSizeF(side, side));
        double hidden = 0;
        for (const SampleGeometry::Area& area : scene.areas)
            hidden += SampleGeometry::surface(areaView.map(area.outline).intersected(frame));
        if (leastHidden < 0 || hidden < leastHidden) {
            leastHidden = hidden;
            best = frame;
        }
    }
    return best;
}

/// The whole city in a corner, with a dot where the project is.
void drawLocator(QPainter& painter, const Scene& scene, const QTransform& areaView,
                 const Style& style)
{
    constexpr double side = 92;
    const QRectF frame = freeCorner(scene, areaView, side);
    painter.setPen(QPen(style.isDark ? QColor(255, 255, 255, 60) : QColor(0, 0, 0, 40), 2));
    painter.setBrush(style.isDark ? QColor(8, 18, 34, 215) : QColor(255, 255, 255, 225));
    painter.drawRoundedRect(frame, 8, 8);

    const QRectF box = scene.cityBoundary.boundingRect();
    const double scale = (side - 18) / std::max(box.width(), box.height());
    const QTransform view = QTransform()
                                .translate(frame.center().x(), frame.center().y())
                                .scale(scale, -scale)
                                .translate(-box.center().x(), -box.center().y());
    const QPolygonF city = view.map(scene.cityBoundary);
    QPainterPath surface;
    surface.addPolygon(city);
    painter.fillPath(surface, style.isDark ? QColor(60, 88, 120) : QColor(214, 222, 232));
    const QColor border = style.isDark ? QColor(150, 178, 210) : QColor(110, 125, 145);
    painter.strokePath(borderLine(city), QPen(border, 2));

    const QPointF place = view.map(scene.areas.first().outline.boundingRect().center());
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(QColor(style.accent));
    painter.drawEllipse(place, 6, 6);
}

} // namespace

QImage draw(const Scene& scene)
{
    QRandomGenerator random(scene.seed);
    const Style& style = styles()[random.bounded(quint32(styles().size()))];
    QImage image = drawTerrain(style, random.generate());
    const QTransform view = viewOf(scene.areas);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawWays(painter, style, random);
    drawBoundary(painter, view.map(scene.cityBoundary), style);
    drawAreas(painter, scene, view, style);
    drawMarkers(painter, scene, view);
    drawLocator(painter, scene, view, style);
    return image;
}

QByteArray toBase64(const QImage& image, Format format)
{
    QByteArray file;
    QBuffer buffer(&file);
    if (format == Format::Jpeg)
        image.save(&buffer, "JPG", 88);
    else
        withPalette(image).save(&buffer, "PNG");
    return file.toBase64();
}

} // namespace SampleThumbnail
