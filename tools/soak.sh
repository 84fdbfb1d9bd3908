#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# soak.sh [seconds [seed]]: plays random events over the whole program under both sanitizers, life after life, for that long (an hour), and
# draws what it holds over the time: memory, open files, threads. The seed is random and printed; soak.sh 60 SEED plays the same again.
# A crash, a sanitizer's report, a hang, a house in disorder or a curve that climbs ends it with 1. All it writes is below build/soak.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
. tools/setup/packages.sh
seconds=${1:-3600}
seed=${2:-$((RANDOM * 32768 + RANDOM))}
preset=${WORTEL_SOAK_PRESET:-asan}
install_missing "${build_packages[@]}"
[ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target tst_torture
folder=$PWD/build/soak
mkdir -p "$folder"
rm -f "$folder"/*.csv "$folder"/*.txt "$folder"/*.svg
echo "seed $seed, $seconds s; every life is noted in $folder/curve.csv, the present one in trail.txt"

status=0
# What is freed is kept for a while, which must not look like a leak; what Qt and its fonts keep to the end is none of ours.
ASAN_OPTIONS=quarantine_size_mb=16:detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
    WORTEL_SOAK_SECONDS=$seconds WORTEL_SOAK_EVENTS=2000000000 WORTEL_SOAK_SEED=$seed WORTEL_SOAK_FOLDER=$folder \
    QT_QPA_PLATFORM=offscreen QTEST_FUNCTION_TIMEOUT=$((1000 * (seconds + 600))) LC_ALL=C.UTF-8 \
    "build/$preset/bin/tst_torture" SoakTest >"$folder/report.txt" 2>&1 || status=$?
grep -E 'events in|FAIL|grow|ERROR|runtime error|SUMMARY' "$folder/report.txt" || true
if [ "$status" -ne 0 ]; then
    echo "It ended with $status. The last events (all of them in trail.txt; $(head -1 "$folder/trail.txt") plays them again):"
    tail -5 "$folder/trail.txt"
fi

# Each curve from its least to its greatest value, one point a life.
awk -F, -v file="$folder/curve.svg" '
    { time[NR] = $1; for (i = 1; i <= 3; ++i) { v = $(i + 3); value[i, NR] = v
        if (NR == 1 || v < least[i]) least[i] = v
        if (NR == 1 || v > most[i]) most[i] = v } }
    END {
        if (NR < 2) exit
        split("memory (KB),open files,threads", name, ",")
        print "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"820\" height=\"480\" font-family=\"sans-serif\" font-size=\"12\">" > file
        for (i = 1; i <= 3; ++i) {
            span = most[i] - least[i]; if (span == 0) span = 1
            low = 150 * i
            points = ""
            for (n = 1; n <= NR; ++n)
                points = points sprintf("%.1f,%.1f ", 10 + 800 * n / NR, low - 110 * (value[i, n] - least[i]) / span)
            printf "<text x=\"10\" y=\"%d\">%s: %d to %d</text><polyline fill=\"none\" stroke=\"black\" points=\"%s\"/>\n", low - 120, name[i], least[i], most[i], points > file
            printf "%-12s %8d at first, %8d at last, from %d to %d in %d lives\n", name[i], value[i, 1], value[i, NR], least[i], most[i], NR
        }
        print "</svg>" > file
    }' "$folder/curve.csv"
echo "The curves: $folder/curve.svg"
exit "$status"
