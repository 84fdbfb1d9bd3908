// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The fuzzer's way into one target, which the build names.
#include "fuzz/targets.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    fuzz::WORTEL_FUZZ_TARGET(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
