// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMouseEvent;

/// What board and tools agree on about touch screens: a finger is the left button, and the right one if it
/// rests.
namespace finger {

inline constexpr int longPressTime = 600; ///< milliseconds

/// True if the event was made from a touch.
bool isBehind(const QMouseEvent &event);

} // namespace finger
