// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

/// The size of the whole program, in percent: what a stored text wishes for, and what a screen allows. A
/// screen is given in pixels as they are at 100 %.
namespace program_size {

inline constexpr int automatic = 0; ///< a wish: as large as the screen suggests
inline constexpr int smallest = 100;
inline constexpr int largest = 300;
inline constexpr int step = 25;

/// The wish that a stored text stands for, with or without a percent sign. A number comes to the nearest
/// quarter step from 100 to 300; no text, no number, 0 and less are `automatic`.
int wishOf(const QString &stored);
/// The text that is stored for a wish, and the one that is shown.
QString storedText(int wish);
QString textOf(int wish);

/// The largest quarter step at which the screen still has 1,000 by 600 pixels; `smallest` for a small one.
int suggested(QSize screen);
/// The largest step at which every window of the program still fits on the screen.
int most(QSize screen);
/// The size that a wish comes to on that screen.
int onScreen(int wish, QSize screen);
/// The next step above or below `now`, which need not be one, within what the screen allows.
int larger(int now, QSize screen);
int smaller(int now);

} // namespace program_size
