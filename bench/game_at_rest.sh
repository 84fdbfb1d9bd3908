#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# game_at_rest.sh <program>: the processor time of a running game while nobody plays, over a minute of a virtual display, as a share of one core.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
program=$(realpath "$1")
limit=0.005

if [ -z "${WORTEL_VIRTUAL:-}" ]; then
    export WORTEL_VIRTUAL=1
    exec xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$program"
fi

home=$(mktemp -d)
trap 'kill %1 %2 2>/dev/null || true; rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run QT_QPA_PLATFORM=xcb
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
openbox >/dev/null 2>&1 &
sleep 0.5
"$program" >/dev/null 2>&1 &
game=$!
window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Wortel-Meister [0-9]' | head -1)
sleep 4
eval "$(xdotool getwindowgeometry --shell "$window")"
# The stopwatch: its place in the right panel, which is 288 pixels wide on this screen.
xdotool mousemove $((X + WIDTH - 288 + 33)) $((Y + HEIGHT - 68)) click 1 mousemove $((X + 300)) $((Y + 300))
sleep 3
ticks() { awk '{sub(/.*\) /, ""); print $12 + $13}' "/proc/$game/stat"; }
before=$(ticks)
sleep 60
awk -v t="$(($(ticks) - before))" -v hz="$(getconf CLK_TCK)" -v limit="$limit" 'BEGIN {
    share = t / hz / 60
    printf "%-58s %7.4f  limit %6.4f%s\n", "game: a minute in which nobody plays, share of a core", share, limit, (share > limit) ? "  over" : ""
    exit share > limit }'
