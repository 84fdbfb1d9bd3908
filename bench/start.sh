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

home=$(mktemp -d)
trap 'kill %1 2>/dev/null || true; rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run QT_QPA_PLATFORM=xcb
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
openbox >/dev/null 2>&1 &
sleep 0.5

# sample <name of the window> <settle seconds> <program> [argument...]: prints "<processor seconds> <peak KiB>" at the moment the window stands, all
# threads included.
sample() {
    local title=$1 settle=$2
    shift 2
    "$@" >/dev/null 2>&1 &
    local game=$! ticks=0 peak=0
    for _ in $(seq 200); do
        [ -n "$(xdotool search --all --onlyvisible --pid "$game" --name "$title" 2>/dev/null)" ] && break
        sleep 0.05
    done
    sleep "$settle"
    ticks=$(awk '{sub(/.*\) /, ""); print $12 + $13}' "/proc/$game/stat")
    peak=$(awk '/VmHWM/ {print $2}' "/proc/$game/status")
    kill "$game"
    wait "$game" 2>/dev/null || true
    awk -v t="$ticks" -v hz="$(getconf CLK_TCK)" -v p="$peak" 'BEGIN {printf "%.3f %d\n", t / hz, p}'
}

best() { # best <name> <settle> <command...>: least processor time and least memory of three starts
    for _ in 1 2 3; do sample "$@"; done | awk 'NR == 1 {c = $1; m = $2} {if ($1 < c) c = $1; if ($2 < m) m = $2} END {print c, m}'
}

read -r other_cpu other_memory < <(best 'anagram' 0.3 kanagram)
read -r own_cpu own_memory < <(best '^Wortel-Meister [0-9]' 0.3 "$program")
awk -v c="$own_cpu" -v oc="$other_cpu" -v m="$own_memory" -v om="$other_memory" '
    function row(name, ratio, limit) { printf "%-58s %7.2f  limit %5.2f%s\n", name, ratio, limit, (ratio > limit) ? "  over" : ""; return ratio > limit }
    BEGIN {
        over = row(sprintf("start: processor time (%.2f s to %.2f s)", c, oc), c / oc, 0.35)
        over += row(sprintf("start: peak memory (%.0f MB to %.0f MB)", m / 1024, om / 1024), m / om, 0.45)
        exit over > 0
    }'
