#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# picture-of-board.sh <program> <picture> [argument...]: starts the program under a virtual display, waits for its board, stores a picture of
# the screen, closes the program, and prints the picture's path. If it shows a box instead (/?, /I, a missing file), the picture shows
# the box, which is answered with Enter.
set -euo pipefail
program=$1 picture=$2
shift 2

if [ -z "${WORTEL_VIRTUAL:-}" ]; then
    export WORTEL_VIRTUAL=1
    exec xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$program" "$picture" "$@"
fi

openbox >/dev/null 2>&1 &
manager=$!
export QT_QPA_PLATFORM=xcb
"$program" "$@" >/dev/null 2>&1 &
game=$!
trap 'kill "$game" "$manager" 2>/dev/null || true' EXIT

window=
for _ in $(seq 150); do
    window=$(xdotool search --onlyvisible --name '^Wortel-Meister [0-9]' 2>/dev/null | head -1) && [ -n "$window" ] && break
    if xdotool search --onlyvisible --name '^(Wortel-Meister - |Über )' >/dev/null 2>&1; then
        sleep 0.5
        mkdir -p "$(dirname "$picture")"
        import -window root "$picture"
        echo "A picture of the box: $picture"
        for _ in $(seq 20); do # until the box has the keyboard
            kill -0 "$game" 2>/dev/null || break
            xdotool key Return
            sleep 0.5
        done
        wait "$game" && exit 0
        exit 1
    fi
    if ! kill -0 "$game" 2>/dev/null; then
        wait "$game" && exit 0 # an argument that only shows something and ends
        exit 1
    fi
    sleep 0.1
done
[ -n "$window" ] || { echo "The board did not appear." >&2; exit 1; }
sleep 2 # the welcome text and its sound
mkdir -p "$(dirname "$picture")"
import -window root "$picture"
kill "$game"
wait "$game" 2>/dev/null || true
echo "A picture of the board: $picture"
