// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QtNumeric>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

using Outline = std::vector<QPointF>;

/// Random outlines of every kind that could fool a faster search.
class RandomOutlines
{
public:
    explicit RandomOutlines(unsigned seed)
        : m_engine(seed)
    {
    }

    static constexpr int kinds = 15;

    Outline make(int kind, int count)
    {
        switch (kind) {
        case 0:
            return filled(count, [this] { return QPointF(real(-1, 1), real(-1, 1)); });
        case 1: // crossings, touches, repeated vertices, collinear runs on a coarse grid
            return filled(count, [this] { return QPointF(whole(-3, 3), whole(-3, 3)); });
        case 2:
            return star(count, 0);
        case 3:
            return star(count, 0.3);
        case 4: // one line, turned: parallel but for rounding
            return turned(
                filled(count, [this] { return QPointF(whole(0, 40), whole(0, 9) == 0 ? 1 : 0); }));
        case 5:
            return turned(comb(count));
        case 6:
            return scaled(make(whole(0, 5), count), whole(0, 1) ? 1e150 : 1e-150);
        case 7:
            return scaled(make(whole(0, 5), count), std::pow(10.0, whole(-320, 308)));
        case 8:
            return withOdd(make(whole(0, 5), count));
        case 9: // lines through the origin, so that many crossings lie there
            return filled(count, [this] {
                const int way = whole(0, 3);
                return whole(-2, 2) * QPointF(way % 2 ? 1 : way, way ? 1 : 0);
            });
        case 10: // far from the origin, as UTM coordinates are
            return moved(make(whole(0, 5), count), QPointF(5e5, 3.3e6));
        case 11:
            return nearlyStraight(count);
        case 12:
            return touching(star(count, 0.5));
        case 13:
            return onMirroredLines(count);
        default:
            return mixedScales(count);
        }
    }

    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_engine); }
    double real(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_engine);
    }

    Outline comb(int count)
    {
        Outline outline;
        const double height = real(0.1, 20);
        for (int i = 0; i < count / 4; ++i) {
            for (const QPointF& corner :
                 {QPointF(i, 0), QPointF(i, height), QPointF(i + 0.5, height), QPointF(i + 0.5, 0)})
                outline.push_back(corner);
        }
        outline.emplace_back(count / 4, -1);
        outline.emplace_back(0, -1);
        return outline;
    }

    Outline star(int count, double inner)
    {
        std::vector<double> angles;
        for (int i = 0; i < count; ++i)
            angles.push_back(real(0, 6.28));
        std::sort(angles.begin(), angles.end());
        Outline outline;
        for (const double angle : angles) {
            const double radius = real(inner, 1);
            outline.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
        }
        return outline;
    }

    /// A triangle with many vertices on a side in this direction, at irregular distances.
    Outline alongLine(int count, const QPointF& direction)
    {
        Outline outline = {{0, 0}};
        for (int i = 0; i < count - 2; ++i)
            outline.push_back(outline.back() + direction * whole(1, 1000) / 4);
        outline.push_back(outline.back() + QPointF(-direction.y(), direction.x()));
        return outline;
    }

    /// A band that winds outwards.
    static Outline squareSpiral(int count)
    {
        Outline spiral;
        Outline back;
        const int signX[] = {1, -1, -1, 1};
        const int signY[] = {1, 1, -1, -1};
        for (int i = 0; i < count / 2; ++i) {
            const double radius = 1 + i / 4.0;
            spiral.emplace_back(signX[i % 4] * radius, signY[i % 4] * radius);
            back.emplace_back(signX[i % 4] * (radius + 0.4), signY[i % 4] * (radius + 0.4));
        }
        spiral.insert(spiral.end(), back.rbegin(), back.rend());
        return spiral;
    }

    /// A line that goes to and fro along the two sides of an angle, each time further out, with 16
    /// vertices each way.
    static Outline nestedAngles(int count)
    {
        constexpr int pieces = 8;
        Outline outline;
        for (int i = 0; i < count; ++i) {
            const double shift = i * 0.001;
            Outline angle;
            for (int j = 0; j < pieces; ++j)
                angle.emplace_back(-10 - shift + (20 + 2 * shift) * j / pieces, -shift);
            for (int j = 0; j < pieces; ++j)
                angle.emplace_back(10 + shift, -shift + (20 + shift) * j / (pieces - 1));
            if (i % 2 == 1)
                std::reverse(angle.begin(), angle.end());
            outline.insert(outline.end(), angle.begin(), angle.end());
        }
        return outline;
    }

    Outline turned(Outline outline)
    {
        const double angle = real(0, 6.28);
        for (QPointF& point : outline) {
            point = QPointF(point.x() * std::cos(angle) - point.y() * std::sin(angle),
                            point.x() * std::sin(angle) + point.y() * std::cos(angle));
        }
        return outline;
    }

private:
    template <typename Make>
    static Outline filled(int count, Make make)
    {
        Outline outline;
        for (int i = 0; i < count; ++i)
            outline.push_back(make());
        return outline;
    }

    static Outline scaled(Outline outline, double factor)
    {
        for (QPointF& point : outline)
            point *= factor;
        return outline;
    }

    static Outline moved(Outline outline, const QPointF& by)
    {
        for (QPointF& point : outline)
            point += by;
        return outline;
    }

    Outline withOdd(Outline outline)
    {
        const double odd[] = {qQNaN(), qInf(), -qInf(), 1e308, -1e308,
                              1e101,   5e-324, 1e-101,  0.0,   -0.0};
        for (int i = whole(1, 4); i > 0 && !outline.empty(); --i) {
            QPointF& point = outline[std::size_t(whole(0, int(outline.size()) - 1))];
            (whole(0, 1) ? point.rx() : point.ry()) = odd[whole(0, 9)];
        }
        return outline;
    }

    /// Vertices along one line, off it by a few units in the last place; often one that falls by 45
    /// degrees, so that some edges are flat and some steep.
    Outline nearlyStraight(int count)
    {
        const double width = real(-1, 1);
        const QPointF along(width, whole(0, 1) ? real(-1, 1) : -width);
        const QPointF start = QPointF(real(-1, 1), real(-1, 1)) * std::pow(10.0, whole(-3, 6));
        return filled(count, [&] {
            QPointF point = start + along * whole(0, 60) / 7.0;
            point.rx() *= 1 + whole(-3, 3) * std::numeric_limits<double>::epsilon();
            point.ry() *= 1 + whole(-3, 3) * std::numeric_limits<double>::epsilon();
            return point;
        });
    }

    /// Vertices on two lines that fall by 45 degrees, as far from the centre on either side.
    Outline onMirroredLines(int count)
    {
        const double shift = real(0, 1);
        return filled(count, [&] {
            const double along = whole(0, 1) ? whole(-9, 9) : real(-9, 9);
            QPointF point(along + (whole(0, 1) ? shift : -shift), -along);
            point.rx() *= 1 + whole(-3, 3) * std::numeric_limits<double>::epsilon();
            return point;
        });
    }

    /// Some vertex is put on, or a hair beside, an edge elsewhere.
    Outline touching(Outline outline)
    {
        const int n = int(outline.size());
        const int edge = whole(0, n - 1);
        const QPointF on = outline[std::size_t(edge)]
            + real(0, 1) * (outline[std::size_t((edge + 1) % n)] - outline[std::size_t(edge)])
                * (1 + whole(-2, 2) * 1e-16);
        outline[std::size_t(whole(0, n - 1))] = on;
        return outline;
    }

    Outline mixedScales(int count)
    {
        return filled(count, [this] {
            const double scale = std::pow(10.0, whole(-17, 0));
            return QPointF(0.3, 0.7) + QPointF(real(-1, 1), real(-1, 1)) * scale;
        });
    }

    std::mt19937_64 m_engine;
};
