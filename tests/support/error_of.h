// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/runtime_error.h"

/// The number of the error that `step` raises, or 0.
template <typename Step> int errorOf(Step step)
{
    try {
        step();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
