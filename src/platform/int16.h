// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/runtime_error.h"

#include <concepts>
#include <cstdint>
#include <limits>

/// A signed 16-bit number that raises error 6 (overflow) instead of wrapping. Used where the width is
/// behaviour: counts of lists, indexes, board coordinates of the tile commands, tile counters.
class Int16
{
public:
    constexpr Int16() = default;
    /// Throws RuntimeError 6 outside of -32768 to 32767.
    template <std::integral T>
    constexpr Int16(T value)
        : value_(checked(static_cast<long long>(value)))
    {} // NOLINT

    constexpr operator int() const { return value_; } // NOLINT: it is a number
    constexpr std::int16_t value() const { return value_; }

    constexpr Int16 &operator+=(int other) { return *this = Int16(static_cast<long long>(value_) + other); }
    constexpr Int16 &operator-=(int other) { return *this = Int16(static_cast<long long>(value_) - other); }
    constexpr Int16 &operator++() { return *this += 1; }

private:
    static constexpr std::int16_t checked(long long value)
    {
        if (value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max())
            throw RuntimeError::of(RuntimeError::Overflow);
        return static_cast<std::int16_t>(value);
    }

    std::int16_t value_ = 0;
};
