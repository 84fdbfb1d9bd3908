// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMouseEvent;

/// What board, tools and lists agree on about touch screens: a finger or a pen is the left button, and the
/// right one if it rests (`LongPress`).
namespace finger {

/// True if the event was made from a touch or by a pen.
bool isBehind(const QMouseEvent &event);

} // namespace finger
