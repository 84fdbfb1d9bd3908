// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QColor>

/// The window system's colour of one written 0x00BBGGRR.
constexpr QColor toQColor(Colour colour)
{
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                  static_cast<int>(colour >> 16 & 0xFF));
}

/// What controls and boxes of their own making share.
namespace paint {
inline constexpr QColor frame{0x5B, 0x6F, 0x91};       ///< of what takes or shows text
inline constexpr QColor activeFrame{0x1E, 0x5F, 0xD8}; ///< of what is in use
inline constexpr QColor face{0xF4, 0xF7, 0xFC};        ///< of a button
inline constexpr QColor running{0xFF, 0xC8, 0x3C};     ///< of the tool whose mode runs
inline constexpr QColor ink{0x08, 0x1C, 0x5C};         ///< on the blue gradient
} // namespace paint
