#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds, and runs all tests. ./test.sh asan does the same under address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")"
. tools/setup/packages.sh
preset=${1:-dev}
install_missing "${build_packages[@]}" "${display_packages[@]}" "${test_packages[@]}"
build_preset "$preset"
cd "build/$preset"
mkdir -p Testing
status=0
ctest --output-on-failure -j2 | tee Testing/ctest.log || status=$?
grep -ho '[0-9]* runs killed.*' Testing/Temporary/LastTest.log || true
grep 'tests passed' Testing/ctest.log
exit "$status"
