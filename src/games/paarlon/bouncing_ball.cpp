// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/bouncing_ball.h"

#include <cmath>

BouncingBall::Moved BouncingBall::move(int canvasHeight, int coverWidth)
{
    Moved moved;
    const auto floor = static_cast<float>(canvasHeight);
    DY += Gravity;
    X += DX;
    Y += DY;
    if (Y > floor) {
        moved.bounced = true;
        ++BounceCount;
        DY = -DY * Elasticity;
        if (std::abs(DY) >= Gravity / Elasticity) {
            Y = floor - (Y - floor);
        } else {
            DY = 0;
            Y = floor;
        }
    }
    if (X < 0) {
        DX = -DX * Elasticity;
        X = -X;
    }
    moved.left = X > static_cast<float>(coverWidth);
    return moved;
}
