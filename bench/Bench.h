// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

/// Timing and one table line per case, shared by the benchmark programs.
namespace bench {

/// The median of the wall times, in seconds, of `runs` calls.
template <typename Work>
double medianSeconds(int runs, Work&& work)
{
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        seconds.push_back(elapsed.count());
    }
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[static_cast<std::size_t>(runs / 2)];
}

/// Prints one line: case, size, our time, the floor's time, ours over the floor's, and the limit of
/// that ratio. Gives false when the limit is missed.
inline bool report(const char* name, long size, double ours, double floor, double limit)
{
    const double ratio = ours / floor;
    const bool met = ratio <= limit;
    std::printf("%-44s %9ld %11.3f ms %11.3f ms %8.3f (<= %g) %s\n", name, size, ours * 1e3,
                floor * 1e3, ratio, limit, met ? "ok" : "MISSED");
    std::fflush(stdout);
    return met;
}

} // namespace bench
