// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// A colour as the program writes it: 0x00BBGGRR, that is R + 256 * G + 65536 * B.
using Colour = std::uint32_t;

/// The colours of the kinds of tiles, which buttons and boxes take up, and of the board.
namespace colours {
inline constexpr Colour prefixBack = 0x00FFFF;
inline constexpr Colour prefixText = 0xFF0000;
inline constexpr Colour wortelBack = 0x0000FF;
inline constexpr Colour wortelText = 0xFFFFFF;
inline constexpr Colour suffixBack = 0xFF0000;
inline constexpr Colour suffixText = 0x00FFFF;
inline constexpr Colour white = 0xFFFFFF;
inline constexpr Colour black = 0x000000;
/// Behind the board where no picture lies: RGB(0, 128, 192).
inline constexpr Colour board = 0xC08000;
} // namespace colours
