// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// The colours of a question or input box: those of a kind of tile, or of what it is about.
enum class BoxStyle : std::uint8_t { Plain, Prefix, Wortel, Suffix, HiScore, Retype, Confirm };

/// The sign of a notice box.
enum class BoxSign : std::uint8_t { None, Smiley, Write, Info };
