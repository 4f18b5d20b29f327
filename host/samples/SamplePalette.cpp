// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SamplePalette.h"

#include <QVector>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr std::size_t paletteSize = 256;

int channel(QRgb colour, int index)
{
    return int((colour >> (8 * index)) & 0xffU);
}

/// A run of pixels that will share one colour.
struct Box
{
    std::vector<QRgb>::iterator begin;
    std::vector<QRgb>::iterator end;
    int widestChannel = 0;
    int width = 0;

    Box(std::vector<QRgb>::iterator from, std::vector<QRgb>::iterator to)
        : begin(from)
        , end(to)
    {
        for (int index = 0; index < 3; ++index) {
            const auto [low, high] = std::minmax_element(begin, end, [index](QRgb a, QRgb b) {
                return channel(a, index) < channel(b, index);
            });
            const int spread = channel(*high, index) - channel(*low, index);
            if (spread > width) {
                width = spread;
                widestChannel = index;
            }
        }
    }

    QRgb mean() const
    {
        std::array<qint64, 3> sum = {};
        for (auto pixel = begin; pixel != end; ++pixel) {
            for (int index = 0; index < 3; ++index)
                sum[std::size_t(index)] += channel(*pixel, index);
        }
        const qint64 count = std::distance(begin, end);
        return qRgb(int(sum[2] / count), int(sum[1] / count), int(sum[0] / count));
    }
};

std::vector<Box> cut(std::vector<QRgb>& pixels)
{
    std::vector<Box> boxes = {Box(pixels.begin(), pixels.end())};
    while (boxes.size() < paletteSize) {
        const auto widest =
            std::max_element(boxes.begin(), boxes.end(),
                             [](const Box& a, const Box& b) { return a.width < b.width; });
        if (widest->width == 0)
            break;
        const int index = widest->widestChannel;
        const auto middle = widest->begin + std::distance(widest->begin, widest->end) / 2;
        std::nth_element(widest->begin, middle, widest->end,
                         [index](QRgb a, QRgb b) { return channel(a, index) < channel(b, index); });
        const Box upper(middle, widest->end);
        *widest = Box(widest->begin, middle);
        boxes.push_back(upper);
    }
    return boxes;
}

} // namespace

QImage withPalette(const QImage& image)
{
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    std::vector<QRgb> pixels;
    pixels.reserve(std::size_t(source.width()) * std::size_t(source.height()));
    for (int y = 0; y < source.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        pixels.insert(pixels.end(), line, line + source.width());
    }
    QVector<QRgb> palette;
    for (const Box& box : cut(pixels))
        palette.append(box.mean());
    return source.convertToFormat(QImage::Format_Indexed8, palette);
}
