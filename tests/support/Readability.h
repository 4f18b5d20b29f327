// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

inline double luminance(QRgb colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
        + 0.0722 * linear(qBlue(colour));
}

inline double contrast(QRgb a, QRgb b)
{
    const auto [dark, bright] = std::minmax({luminance(a), luminance(b)});
    return (bright + 0.05) / (dark + 0.05);
}

/// The ground of a part of a picture, which is its most frequent colour, and the contrast of what
/// stands out most from it.
struct Reading
{
    QColor ground;
    double contrast = 0.0;
};

inline Reading read(const QImage& image, const QRect& part)
{
    QHash<QRgb, int> counts;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb ground = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > counts.value(ground))
            ground = it.key();
    }
    Reading reading{QColor(ground)};
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        reading.contrast = std::max(reading.contrast, contrast(it.key(), ground));
    return reading;
}
