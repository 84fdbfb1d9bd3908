#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# fuzz.sh [seconds] [target...]: builds the fuzz targets and runs each for so long (60 s) from the committed corpus. What breaks one
# lies in build/fuzz/found; mend the reader, and add the file to the corpus.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/../.."
. tools/setup/packages.sh
seconds=${1:-60}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(backup ini link list page picture session settings text)
install_missing "${build_packages[@]}" clang libclang-rt-14-dev
build_preset fuzz
[ -w /dev/shm ] && export TMPDIR=/dev/shm
mkdir -p build/fuzz/found
for target in "${targets[@]}"; do
    mkdir -p "build/fuzz/corpus/$target"
    "build/fuzz/bin/fuzz_$target" -max_total_time="$seconds" -max_len=2048 -timeout=10 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/found/$target-" "build/fuzz/corpus/$target" "tests/fuzz/corpus/$target" \
        >"build/fuzz/found/$target.log" 2>&1 || { tail -40 "build/fuzz/found/$target.log"; echo "$target: broken"; exit 1; }
    echo "$target: $(grep -o 'number_of_executed_units: *[0-9]*' "build/fuzz/found/$target.log" | grep -o '[0-9]*$') inputs, nothing broken"
done
