#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# make.sh [preset]: takes the pictures of the handbook (data/hilfe/bilder) and of the README (docs/board.png) anew from the running program, on a
# virtual display. Looks at nothing of the user: settings are in memory, the data are those of the source tree.
set -euo pipefail
cd "$(dirname "$0")/../.."
preset=${1:-dev}
source tools/setup/packages.sh
install_missing "${build_packages[@]}" "${display_packages[@]}"
[ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target screenshots

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/run" "$work/board" "$work/handbook" data/hilfe/bilder
chmod 700 "$work/run"
export HOME=$work XDG_CONFIG_HOME=$work XDG_DATA_HOME=$work XDG_RUNTIME_DIR=$work/run LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb

# take <scale> <screen> <what> <folder>: one run of the program on a display of its own.
take() {
    QT_SCALE_FACTOR=$1 timeout 300 xvfb-run -a -s "-screen 0 ${2}x24" \
        bash -c 'openbox & manager=$!; "$0" "$1" "$2" "$3"; state=$?; kill $manager; exit $state' \
        "build/$preset/bin/screenshots" "$3" "$PWD/data" "$4"
}
take 1 1366x768 board "$work/board"
take 2 2732x1536 handbook "$work/handbook"

# Few colours are enough for flat faces, and keep the files small.
convert "$work/board/board.png" -strip +dither -colors 128 PNG8:docs/board.png
for picture in "$work/handbook"/*.png; do
    convert "$picture" -strip +dither -colors 96 "PNG8:data/hilfe/bilder/$(basename "$picture")"
done
du -bc data/hilfe/bilder/*.png docs/board.png
