// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The places of the first board's affix rows and what depends on the screen's size. The steps fit the
/// default affix lists.
namespace affix_rows {

inline constexpr int tilesInRow = 20;
inline constexpr int prefixTop = 5; ///< pixels

/// 800x600 -> 1, 1024x768 -> 2, 1600x1200 -> 3, 1280x1024 -> 4, 1152x864 -> 5; any other size counts as the
/// smallest screen, on purpose.
int GetScreenResolution(int width, int height);

/// Pixels from the place of prefix `i` (1 to 20) to that of the next one.
int prefixStep(int i);
/// The same for the suffixes.
int suffixStep(int i);
/// Top of the suffix row: the form's height plus an offset by the screen's code, plus 10 pixels for each unit
/// of `addToPosition`.
int suffixTop(int scaleHeight, int screenCode, int addToPosition);

} // namespace affix_rows
