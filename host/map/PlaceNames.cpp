// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/PlaceNames.h"

#include <QMultiHash>
#include <QPoint>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double provincesUntil = 256.0 * (1 << 7); // The scale from which cities fill the screen.
constexpr double citiesFrom = 256.0 * (1 << 5);
constexpr double gap = 3; // Pixels between names.
constexpr double cellSize = 128; // Pixels, wider than most names.

bool isShownAt(const PlaceName& name, double scale, double width)
{
    if (name.isProvince)
        return scale < provincesUntil;
    return scale >= citiesFrom && name.extent * scale > width * 0.9;
}

/// Rectangles by the cells of a grid, so that a new one meets its neighbours only.
class Taken
{
public:
    /// Takes the rectangle unless it meets one that is taken.
    bool take(const QRectF& rectangle)
    {
        const QRect cells = cellsOf(rectangle);
        for (int x = cells.left(); x <= cells.right(); ++x) {
            for (int y = cells.top(); y <= cells.bottom(); ++y) {
                const auto [first, end] = qAsConst(m_cells).equal_range({x, y});
                if (std::any_of(first, end,
                                [&](const QRectF& o) { return o.intersects(rectangle); }))
                    return false;
            }
        }
        for (int x = cells.left(); x <= cells.right(); ++x) {
            for (int y = cells.top(); y <= cells.bottom(); ++y)
                m_cells.insert({x, y}, rectangle);
        }
        return true;
    }

private:
    static QRect cellsOf(const QRectF& rectangle)
    {
        const auto cell = [](double pixels) { return int(std::floor(pixels / cellSize)); };
        return {QPoint(cell(rectangle.left()), cell(rectangle.top())),
                QPoint(cell(rectangle.right()), cell(rectangle.bottom()))};
    }

    QMultiHash<QPair<int, int>, QRectF> m_cells;
};

} // namespace

QVector<int> chooseNames(const QVector<PlaceName>& names, double scale,
                         const std::function<QSizeF(const PlaceName&)>& sizeOf)
{
    QVector<int> order(names.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        if (names[a].isProvince != names[b].isProvince)
            return names[a].isProvince;
        return names[a].extent > names[b].extent;
    });
    Taken taken;
    QVector<int> chosen;
    for (int i : qAsConst(order)) {
        const QSizeF size = sizeOf(names[i]);
        if (!isShownAt(names[i], scale, size.width()))
            continue;
        const QRectF rectangle = nameRect(names[i], size, names[i].place * scale);
        if (taken.take(rectangle.adjusted(-gap, -gap, gap, gap)))
            chosen.append(i);
    }
    return chosen;
}

QRectF nameRect(const PlaceName& name, const QSizeF& size, const QPointF& place)
{
    const QPointF corner = place - QPointF(size.width() / 2, size.height() / 2);
    constexpr double dot = 4; // A city's name stands above the dot that marks the city.
    return {name.isProvince ? corner : corner - QPointF(0, size.height() / 2 + dot), size};
}

QString nameInLanguage(const QString& name, bool isChinese)
{
    const auto isForeign = [](QChar c) { return c.unicode() > 0x2e80; };
    const int blank = name.lastIndexOf(QLatin1Char(' '));
    const QString last = name.mid(blank + 1);
    const QString first = name.left(blank);
    const bool isBilingual = blank > 0 && !last.isEmpty() && isForeign(last[0])
        && std::none_of(first.begin(), first.end(), isForeign);
    if (!isBilingual)
        return name;
    return isChinese ? last : first;
}
