// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/SampleTerrain.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace {

constexpr int postsPerSide = 200;
constexpr double spacing = 5.0; // Metres.

double square(double value)
{
    return value * value;
}

/// 1 in the middle, fading to 0 some two radii away.
double bump(double distance, double radius)
{
    return std::exp(-square(distance / radius));
}

double smooth(double share)
{
    return share * share * (3 - 2 * share);
}

/// -1 to 1, without visible order, and the same for the same place of the lattice.
double random(int column, int row, unsigned octave)
{
    quint32 bits = quint32(column) * 374761393U + quint32(row) * 668265263U + octave * 2246822519U;
    bits = (bits ^ (bits >> 13)) * 1274126177U;
    bits ^= bits >> 16;
    return double(bits & 0xffffU) / 0x7fff - 1;
}

/// Random numbers on a lattice, joined smoothly.
double noise(double x, double y, double wavelength, unsigned octave)
{
    const double column = std::floor(x / wavelength);
    const double row = std::floor(y / wavelength);
    const double right = smooth(x / wavelength - column);
    const double up = smooth(y / wavelength - row);
    const auto at = [=](int addColumn, int addRow) {
        return random(int(column) + addColumn, int(row) + addRow, octave);
    };
    return (at(0, 0) * (1 - right) + at(1, 0) * right) * (1 - up)
        + (at(0, 1) * (1 - right) + at(1, 1) * right) * up;
}

/// From the middle line of the ridge, which bends twice.
double ridgeDistance(double x, double y)
{
    const double line = 790 + 55 * std::sin(x / 130) - 0.22 * (x - 500);
    return y - line;
}

double elevationAt(double x, double y)
{
    const double slope = 486 + 0.016 * x + 0.010 * y;
    const double hill = 46 * bump(std::hypot(x - 285, (y - 455) * 0.86), 165)
        + 11 * bump(std::hypot(x - 375, y - 330), 95);
    const double ridge = 34 * bump(ridgeDistance(x, y), 85) * smooth(qBound(0.0, x / 420, 1.0))
        * (0.82 + 0.18 * std::sin(x / 62));
    // Steep sides and an almost level floor, as of a quarry.
    const double pitReach = std::hypot((x - 705) * 0.84, y - 345) + 14 * noise(x, y, 90, 9);
    const double pit = 30 * (1 - smooth(qBound(0.0, (pitReach - 48) / 118, 1.0)));
    const double valley = 14 * bump(y - 130 - 60 * std::sin(x / 165), 70);
    const double small = 2.6 * noise(x, y, 120, 1) + 1.3 * noise(x, y, 52, 2)
        + 0.55 * noise(x, y, 24, 3) + 0.2 * noise(x, y, 12, 4);
    return slope + hill + ridge - pit - valley + small;
}

} // namespace

ElevationModel sampleTerrain()
{
    return {postsPerSide, spacing, elevationAt};
}
