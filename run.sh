#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds and starts the game. Arguments are passed on: ./run.sh board.wlx, ./run.sh /L
# On a machine without a display it starts the game under a virtual one and stores a picture of the board.
set -euo pipefail

# Paths on the command line are meant from where the user stands.
arguments=()
for argument in "$@"; do
    if [ -f "$argument" ]; then arguments+=("$(realpath -- "$argument")"); else arguments+=("$argument"); fi
done

cd "$(dirname "$(realpath "$0")")"
. tools/setup/packages.sh
install_missing "${build_packages[@]}"
build_preset release
program=build/release/bin/wortel

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$program" "${arguments[@]}"
fi

echo "There is no display. Starting the game under a virtual one."
install_missing "${display_packages[@]}"
exec tools/setup/picture-of-board.sh "$program" "$PWD/build/board.png" "${arguments[@]}"
