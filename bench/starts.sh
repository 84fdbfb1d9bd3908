# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# To be sourced by what measures starts, within a virtual display: a home of its own with a window manager, and what a start costs.

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

size() { # size <percent>: the game's size from its next start on
    mkdir -p "$XDG_CONFIG_HOME/Wortel-Meister"
    printf '[Settings]\nProgramSize=%s\n' "$1" >"$XDG_CONFIG_HOME/Wortel-Meister/settings.ini"
}

# tell <what> <limit of the processor time> <limit of the memory> <cpu> <memory> <other cpu> <other memory>: two rows; fails if one is over its limit.
tell() {
    awk -v what="$1" -v lc="$2" -v lm="$3" -v c="$4" -v m="$5" -v oc="$6" -v om="$7" '
        function row(name, ratio, limit) { printf "%-58s %7.2f  limit %5.2f%s\n", name, ratio, limit, (ratio > limit) ? "  over" : ""; return ratio > limit }
        BEGIN {
            over = row(sprintf("%s: processor time (%.2f s to %.2f s)", what, c, oc), c / oc, lc)
            over += row(sprintf("%s: peak memory (%.0f MB to %.0f MB)", what, m / 1024, om / 1024), m / om, lm)
            exit over > 0
        }'
}
