// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QImage>
#include <QTest>
#include <QWidget>

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

/// Whether the images agree up to rounding in the blending of colours.
inline bool alike(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            if (qAbs(qRed(p) - qRed(q)) > 4 || qAbs(qGreen(p) - qGreen(q)) > 4
                || qAbs(qBlue(p) - qBlue(q)) > 4)
                return false;
        }
    }
    return true;
}

/// Rows for tests at one and at two pixels per unit.
inline void addScales()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("one to one") << 1;
    QTest::newRow("double") << 2;
}
