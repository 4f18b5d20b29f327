// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/Contours.h"

#include <array>
#include <cmath>

namespace {

struct Corner
{
    QPointF place;
    double height; ///< Above the contour.
};

/// Where the contour crosses the side, whose ends are on different sides of it.
QPointF crossing(const Corner& a, const Corner& b)
{
    return a.place + (b.place - a.place) * (a.height / (a.height - b.height));
}

/// The contour's pieces in a square whose corners go around.
void addPieces(QVector<QLineF>& pieces, const std::array<Corner, 4>& corners)
{
    std::array<QPointF, 4> crossings;
    size_t count = 0;
    for (size_t i = 0; i < 4; ++i) {
        const Corner& a = corners[i];
        const Corner& b = corners[(i + 1) % 4];
        if ((a.height >= 0) != (b.height >= 0))
            crossings[count++] = crossing(a, b);
    }
    // A saddle has four; each piece then cuts one corner off.
    for (size_t i = 0; i + 1 < count; i += 2)
        pieces.append({crossings[i], crossings[i + 1]});
}

} // namespace

QVector<Contour> contours(const ElevationModel& model, double interval)
{
    QVector<Contour> lines;
    const int first = int(std::ceil(model.lowest() / interval));
    const int last = int(std::floor(model.highest() / interval));
    for (int level = first; level <= last; ++level) {
        Contour line;
        line.elevation = level * interval;
        const auto corner = [&](int column, int row) {
            return Corner{QPointF(column, row) * model.spacing(),
                          model.post(column, row) - line.elevation};
        };
        for (int row = 0; row + 1 < model.postsPerSide(); ++row) {
            for (int column = 0; column + 1 < model.postsPerSide(); ++column)
                addPieces(line.pieces,
                          {corner(column, row), corner(column + 1, row),
                           corner(column + 1, row + 1), corner(column, row + 1)});
        }
        lines.append(line);
    }
    return lines;
}
