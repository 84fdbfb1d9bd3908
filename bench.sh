#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds and runs every benchmark. A line each: name, ratio, limit, and "over" where it is over. ./bench.sh <text> runs those whose names hold the text.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")"
. tools/setup/packages.sh
install_missing "${build_packages[@]}" "${display_packages[@]}" lynx
build_preset bench
result=0
QT_QPA_PLATFORM=offscreen build/bench/bin/wortel_bench "$@" || result=1
[ $# -gt 0 ] || bench/start.sh build/bench/bin/wortel || result=1
[ $# -gt 0 ] || bench/start_size.sh build/bench/bin/wortel || result=1
[ $# -gt 0 ] || bench/game_at_rest.sh build/bench/bin/wortel || result=1
exit $result
