// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

/// The ball of the intro. All lengths are twips of the window as it was designed, but for the radius; one
/// move is one step of time.
class BouncingBall
{
public:
    static constexpr float Gravity = 0.2F;
    static constexpr float Elasticity = 0.9F;
    static constexpr int lastBounce = 10; ///< after so many the intro is over

    /// What happened in a move.
    struct Moved
    {
        bool bounced = false;
        bool left = false; ///< it is beyond `coverWidth`
    };

    /// `random` is a value of the source of chance, 0 to 1: it gives the speed of the start.
    explicit BouncingBall(double random)
        : DY(static_cast<float>(3 * random - 2))
    {}

    /// Moves the ball over a floor that lies `canvasHeight` below the upper edge.
    Moved move(int canvasHeight, int coverWidth);

    int Radius = 7; ///< pixels
    Colour color = colours::black;
    float X = 5;
    float Y = 3;
    float DX = 1;
    float DY;
    int BounceCount = 0;
};
