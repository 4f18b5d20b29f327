// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QImage>
#include <QTest>
#include <QWidget>

#include <algorithm>

/// The widget on white ground at `scale` pixels per unit, drawn as it is, shown or not.
inline QImage rendered(QWidget& widget, int scale)
{
    QImage image(widget.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    widget.render(&image);
    return image;
}

/// The colour at the middle of the unit `at` of an image made by `rendered`.
inline QColor colorAt(const QImage& image, QPoint at)
{
    const int scale = qRound(image.devicePixelRatio());
    return image.pixelColor(at * scale + QPoint(scale / 2, scale / 2));
}

/// The smallest rectangle of pixels outside which the images are the same.
inline QRect difference(const QImage& a, const QImage& b)
{
    QRect different;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                different |= QRect(x, y, 1, 1);
        }
    }
    return different;
}

/// How many pixels may differ by more than rounding. On Windows a text blends otherwise with a smooth
/// edge when both are kept in one picture.
#ifdef Q_OS_WIN
constexpr int mostPixelsOfEdges = 12;
#else
constexpr int mostPixelsOfEdges = 0;
#endif

/// Whether the images agree up to rounding in the blending of colours.
inline bool alike(const QImage& a, const QImage& b)
{
    constexpr int rounding = 4;
    constexpr int edge = 80;
    if (a.size() != b.size())
        return false;
    int pixelsOfEdges = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int distance = std::max({qAbs(qRed(p) - qRed(q)), qAbs(qGreen(p) - qGreen(q)),
                                           qAbs(qBlue(p) - qBlue(q))});
            if (distance > edge)
                return false;
            pixelsOfEdges += distance > rounding ? 1 : 0;
        }
    }
    return pixelsOfEdges <= mostPixelsOfEdges;
}

/// Rows for tests at one and at two pixels per unit.
inline void addScales()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("one to one") << 1;
    QTest::newRow("double") << 2;
}
