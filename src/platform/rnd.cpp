// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/rnd.h"

#include "platform/text.h"

#include <cmath>

int Rnd::absInt(double factor, double offset)
{
    return static_cast<int>(std::abs(Int((*this)() * factor + offset)));
}
