// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>
#include <vector>

/// Speed is told as ratios against a baseline measured in the same run, because machines differ and are
/// noisy. A file of benchmarks registers its rows:
///
///     static const bench::Row row{"board: draw 1,000 tiles", 1.3, [] { return bench::ratio([] { work(); },
///     [] { baseline(); }); }};
namespace bench {

struct Row
{
    /// `limit` is the largest ratio that is good.
    Row(const char *name, double limit, std::function<double()> measure);

    const char *name;
    double limit;
    std::function<double()> measure;
};

std::vector<const Row *> &rows();

/// Seconds of one call.
template <typename Work> double seconds(Work &&work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Best time of `work` over best time of `baseline`, called in turn, so that a noisy moment hits both.
template <typename Work, typename Baseline> double ratio(Work &&work, Baseline &&baseline, int rounds = 9)
{
    double best = std::numeric_limits<double>::max();
    double bestBaseline = best;
    for (int round = 0; round < rounds; ++round) {
        bestBaseline = std::min(bestBaseline, seconds(baseline));
        best = std::min(best, seconds(work));
    }
    return best / std::max(bestBaseline, 1e-9);
}

/// Keeps the optimiser from throwing a result away.
template <typename Value> void keep(const Value &value) { asm volatile("" : : "r,m"(value) : "memory"); }

} // namespace bench
