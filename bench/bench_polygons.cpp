// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Checking outlines for crossings, against GEOS isValid on one of the same rings and against a
// tenth of the vertices, and for convexity, against a bare loop over the vertices. GEOS takes more
// than 20 seconds each for the largest star and the largest turned spiral; "--quick" leaves it out
// there.

#include "Bench.h"

#include <RkBaseUI/PolygonChecks.h>

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <utility>

namespace {

using Outline = std::vector<QPointF>;

constexpr double fullTurn = 6.283185307179586;
constexpr int sizes[] = {1000, 10000, 100000};

std::mt19937_64& random()
{
    static std::mt19937_64 engine(1);
    return engine;
}

double randomBelow(double limit)
{
    return std::uniform_real_distribution<double>(0, limit)(random());
}

QPointF polar(double radius, double angle)
{
    return QPointF(radius * std::cos(angle), radius * std::sin(angle));
}

Outline turned(Outline outline, double angle)
{
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    for (QPointF& point : outline)
        point =
            QPointF(point.x() * cosine - point.y() * sine, point.x() * sine + point.y() * cosine);
    return outline;
}

/// Random distances from the middle at random, rising angles.
Outline star(int count)
{
    std::vector<double> angles(static_cast<std::size_t>(count));
    for (double& angle : angles)
        angle = randomBelow(fullTurn);
    std::sort(angles.begin(), angles.end());
    Outline outline;
    for (const double angle : angles)
        outline.push_back(polar(randomBelow(1), angle));
    return outline;
}

/// A band between two random sky lines.
Outline skylines(int count)
{
    Outline outline;
    for (int i = 0; i < count / 2; ++i)
        outline.emplace_back(i + randomBelow(0.9), 1 + randomBelow(100));
    for (int i = count / 2; i-- > 0;)
        outline.emplace_back(i + randomBelow(0.9), -1 - randomBelow(100));
    return outline;
}

/// Around a random tree on a square grid: a simple outline that winds through the plane.
Outline aroundRandomTree(int count)
{
    // Depth first over the cells of a grid, two vertices a cell; the outline keeps to the right of
    // the tree's branches.
    const int side = std::max(2, int(std::sqrt(count / 2.0)));
    const int dx[] = {1, 0, -1, 0};
    const int dy[] = {0, 1, 0, -1};
    std::vector<int> open(static_cast<std::size_t>(side * side), 0);
    std::vector<char> seen(open.size(), 0);
    std::vector<int> path = {0};
    seen[0] = 1;
    while (!path.empty()) {
        const int cell = path.back();
        std::vector<int> ways;
        for (int way = 0; way < 4; ++way) {
            const int x = cell % side + dx[way];
            const int y = cell / side + dy[way];
            if (x >= 0 && x < side && y >= 0 && y < side && !seen[std::size_t(y * side + x)])
                ways.push_back(way);
        }
        if (ways.empty()) {
            path.pop_back();
            continue;
        }
        const int way = ways[std::size_t(randomBelow(double(ways.size())))];
        const int next = cell + dx[way] + dy[way] * side;
        open[std::size_t(cell)] |= 1 << way;
        open[std::size_t(next)] |= 1 << (way + 2) % 4;
        seen[std::size_t(next)] = 1;
        path.push_back(next);
    }
    // Walk with one hand on the wall, and shake every corner a little.
    Outline outline;
    int cell = 0;
    int way = 0;
    const int startCell = cell;
    const int startWay = way;
    do {
        const int right = (way + 3) % 4;
        if (open[std::size_t(cell)] & 1 << right) {
            way = right;
            cell += dx[way] + dy[way] * side;
            continue;
        }
        const double x = cell % side + 0.25 * (dx[right] + dx[way]);
        const double y = cell / side + 0.25 * (dy[right] + dy[way]);
        outline.emplace_back(x + randomBelow(0.05), y + randomBelow(0.05));
        if (open[std::size_t(cell)] & 1 << way)
            cell += dx[way] + dy[way] * side;
        else
            way = (way + 1) % 4;
    } while (cell != startCell || way != startWay);
    return outline;
}

/// A band that winds outwards ten times.
Outline roundSpiral(int count)
{
    Outline outline;
    Outline back;
    for (int i = 0; i < count / 2; ++i) {
        const double turns = 10.0 * i / (count / 2);
        outline.push_back(polar(1 + turns, turns * fullTurn));
        back.push_back(polar(1.5 + turns, turns * fullTurn));
    }
    outline.insert(outline.end(), back.rbegin(), back.rend());
    return outline;
}

/// The same with straight sides: as many windings as an eighth of the vertices.
Outline squareSpiral(int count)
{
    const int sx[] = {1, -1, -1, 1};
    const int sy[] = {1, 1, -1, -1};
    Outline outline;
    Outline back;
    for (int i = 0; i < count / 2; ++i) {
        const double radius = 1 + i / 4.0;
        outline.emplace_back(sx[i % 4] * radius, sy[i % 4] * radius);
        back.emplace_back(sx[i % 4] * (radius + 0.4), sy[i % 4] * (radius + 0.4));
    }
    outline.insert(outline.end(), back.rbegin(), back.rend());
    return outline;
}

/// Teeth of up to this height, a part of which is random, as is as large a part of their widths.
Outline comb(int count, double height, double randomPart)
{
    Outline outline;
    const int teeth = (count - 2) / 4;
    for (int i = 0; i < teeth; ++i) {
        const double top = height * (1 - randomBelow(randomPart));
        const double right = i + 0.75 - randomBelow(randomPart);
        outline.emplace_back(i, 0);
        outline.emplace_back(i, top);
        outline.emplace_back(right, top);
        outline.emplace_back(right, 0);
    }
    outline.emplace_back(teeth, -1);
    outline.emplace_back(0, -1);
    return outline;
}

Outline shortComb(int count)
{
    return comb(count, 10, 0.5);
}

Outline longComb(int count)
{
    return comb(count, 10.0 * count, 0.5);
}

/// Of equal teeth: others cross themselves by rounding when they are turned.
Outline turnedComb(int count)
{
    return turned(comb(count, 10, 0), 0.3);
}

Outline turnedSquareSpiral(int count)
{
    return turned(squareSpiral(count), 0.3);
}

/// The time of isValid in seconds. Clears `areRight` for an outline that GEOS takes for crossing.
double geosTime(const Outline& outline, int runs, bool& areRight)
{
    const GEOSContextHandle_t context = GEOS_init_r();
    GEOSCoordSequence* const points =
        GEOSCoordSeq_create_r(context, unsigned(outline.size() + 1), 2);
    for (std::size_t i = 0; i <= outline.size(); ++i) {
        const QPointF& point = outline[i % outline.size()];
        GEOSCoordSeq_setXY_r(context, points, unsigned(i), point.x(), point.y());
    }
    GEOSGeometry* const polygon =
        GEOSGeom_createPolygon_r(context, GEOSGeom_createLinearRing_r(context, points), nullptr, 0);
    bool isValid = false;
    const double seconds =
        bench::medianSeconds(runs, [&] { isValid = GEOSisValid_r(context, polygon) == 1; });
    GEOSGeom_destroy_r(context, polygon);
    GEOS_finish_r(context);
    areRight = areRight && isValid;
    return seconds;
}

struct Family
{
    const char* name;
    Outline (*make)(int count);
    bool isSlowForGeos;
};

/// Our time and that of the floor, taken one after the other.
using Times = std::pair<double, double>;

bool reportMedian(const char* name, std::size_t size, std::vector<Times> rounds, double limit)
{
    const auto middle = rounds.begin() + std::ptrdiff_t(rounds.size() / 2);
    std::nth_element(rounds.begin(), middle, rounds.end(), [](const Times& a, const Times& b) {
        return a.first / a.second < b.first / b.second;
    });
    return bench::report(name, long(size), middle->first, middle->second, limit);
}

/// A few outlines, another one for each run, so that the processor cannot learn its way through a
/// small one.
std::vector<Outline> outlinesOf(const Family& family, int size)
{
    const int runs = size < 100000 ? 31 : 5;
    std::vector<Outline> outlines;
    for (int run = 0; run < runs; ++run)
        outlines.push_back(family.make(size));
    return outlines;
}

/// The median time. Clears `areRight` when one of them is said to cross itself.
double crossingTime(std::vector<Outline> outlines, bool& areRight)
{
    std::size_t next = 0;
    bool crosses = false;
    const double seconds = bench::medianSeconds(int(outlines.size()), [&] {
        crosses = isSelfIntersection(std::move(outlines[next++])) || crosses;
    });
    if (crosses)
        std::printf("a crossing that is none\n");
    areRight = areRight && !crosses;
    return seconds;
}

bool benchCrossings(const Family& family, bool quick)
{
    // In rounds, because a machine may be slower for a while.
    constexpr int rounds = 7;
    bool met = true;
    std::vector<Times> growth[2];
    std::vector<Times> againstGeos[2];
    for (int round = 0; round < rounds; ++round) {
        double seconds[3];
        for (int i = 0; i < 3; ++i) {
            std::vector<Outline> outlines = outlinesOf(family, sizes[i]);
            const Outline ring = outlines.front();
            seconds[i] = crossingTime(std::move(outlines), met);
            if (i > 0)
                growth[i - 1].emplace_back(seconds[i], seconds[i - 1]);
            const bool takesLong = i == 2 && family.isSlowForGeos;
            if (i == 1 || (takesLong && (quick || round > 0)))
                continue;
            againstGeos[i / 2].emplace_back(seconds[i], geosTime(ring, i == 0 ? 5 : 1, met));
        }
    }
    char name[64];
    for (int i = 0; i < 2; ++i) {
        std::snprintf(name, sizeof name, "crossings, %s / a tenth of it", family.name);
        met = reportMedian(name, std::size_t(sizes[i + 1]), growth[i], 14) && met;
        std::snprintf(name, sizeof name, "crossings, %s / GEOS isValid", family.name);
        if (!againstGeos[i].empty())
            met = reportMedian(name, std::size_t(sizes[2 * i]), againstGeos[i], i == 0 ? 1 : 0.1)
                && met;
    }
    return met;
}

/// Against the loop over a vector that is not copied; the argument is moved in and out of a copy
/// made beforehand.
bool benchConvex()
{
    bool met = true;
    for (const int size : sizes) {
        Outline circle;
        for (int i = 0; i < size; ++i)
            circle.push_back(polar(1000, fullTurn * i / size));
        constexpr int runs = 51;
        std::vector<Outline> copies(runs, circle);
        std::size_t next = 0;
        int convex = 0;
        const double ours = bench::medianSeconds(
            runs, [&] { convex += isConvex(std::move(copies[next++])) ? 1 : 0; });
        const double floor = bench::medianSeconds(runs, [&] {
            const std::size_t n = circle.size();
            bool agree = true;
            for (std::size_t i = 0; i < n && agree; ++i) {
                const QPointF& p = circle[i];
                const QPointF& m = circle[i + 1 < n ? i + 1 : i + 1 - n];
                const QPointF& q = circle[i + 2 < n ? i + 2 : i + 2 - n];
                agree = (p.y() - m.y()) * (q.x() - m.x()) - (q.y() - m.y()) * (p.x() - m.x()) > 0;
            }
            convex += agree ? 1 : 0;
        });
        met = bench::report("convexity / bare loop", size, ours, floor, 1.5) && met;
        std::printf("found convex: %d of %d\n", convex, 2 * runs);
        met = convex == 2 * runs && met;
    }
    return met;
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
    const Family families[] = {
        {"random star", star, true},
        {"random sky lines", skylines, false},
        {"around a random tree", aroundRandomTree, false},
        {"round spiral", roundSpiral, false},
        {"square spiral", squareSpiral, false},
        {"turned square spiral", turnedSquareSpiral, true},
        {"comb", shortComb, false},
        {"comb of long teeth", longComb, false},
        {"turned comb", turnedComb, false},
    };
    bool met = true;
    for (const Family& family : families)
        met = benchCrossings(family, quick) && met;
    met = benchConvex() && met;
    return met ? 0 : 1;
}
