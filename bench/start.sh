#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# start.sh <program>: processor time and peak memory from the program's start to its painted board, as ratios to those of kanagram (Debian's game of
# anagrams, a Qt program of the same kind) to its first window, on the same virtual display. Best of three. The waits of the splash cost no processor time.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
program=$(realpath "$1")

if [ -z "${WORTEL_VIRTUAL:-}" ]; then
    . tools/setup/packages.sh
    install_missing kanagram time
    export WORTEL_VIRTUAL=1
    exec xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$program"
fi

. bench/starts.sh
size 100
read -r other_cpu other_memory < <(best 'anagram' 0.3 kanagram)
read -r own_cpu own_memory < <(best '^Wortel-Meister [0-9]' 0.3 "$program")
tell start 0.35 0.45 "$own_cpu" "$own_memory" "$other_cpu" "$other_memory"
