// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <random>

/// The program's source of chance: a uniform value in the half-open range 0 to 1. One generator is made at
/// start and handed to every room; a test seeds it to fix each random choice.
class Rnd
{
public:
    explicit Rnd(std::uint64_t seed)
        : engine_(seed)
    {}

    /// The next value, 0 <= value < 1.
    double operator()() { return static_cast<double>(engine_() >> 11) * 0x1.0p-53; }

    /// abs(Int(Rnd * factor + offset)): the draw that most procedures use for a place or an index.
    int absInt(double factor, double offset = 0.0);

    /// Where the program seeds anew from the clock. Folded into the one seeded generator, which this call
    /// only steps.
    void Randomize() { engine_.discard(1); }

private:
    std::mt19937_64 engine_;
};
