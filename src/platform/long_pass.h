// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <functional>

/// A pass over a long text lets events through on its way, so that a bar moves and a hand can stop it. It
/// asks every thousand characters, which it passes in some ten microseconds: nobody sees a bar that moves
/// more often, and the questions would cost more than the pass.

/// Asked every `passStride` characters with the count of characters that are done. False ends the pass. An
/// empty one is never asked.
using PassStep = std::function<bool(qsizetype done)>;

inline constexpr qsizetype passStride = 1000;

/// Asks `step` where a stride ends at `done`. True if the pass goes on.
inline bool passGoesOn(const PassStep &step, qsizetype done)
{
    return done % passStride != 0 || !step || step(done);
}
