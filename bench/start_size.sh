#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# start_size.sh <program>: processor time and peak memory of a start at 200 % as ratios to those at 100 %, on the same virtual display. Best of three.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
program=$(realpath "$1")

if [ -z "${WORTEL_VIRTUAL:-}" ]; then
    export WORTEL_VIRTUAL=1
    exec xvfb-run -a -s "-screen 0 1920x1080x24" "$0" "$program"
fi

. bench/starts.sh
size 100
read -r plain_cpu plain_memory < <(best '^Wortel-Meister [0-9]' 0.3 "$program")
size 200
read -r large_cpu large_memory < <(best '^Wortel-Meister [0-9]' 0.3 "$program")
tell 'start at 200 %' 1.6 1.8 "$large_cpu" "$large_memory" "$plain_cpu" "$plain_memory"
