#!/bin/sh
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Makes every sound of the program anew and measures it. Needs python3, espeak-ng and sox.
# The results are committed; the build never runs this.
set -eu
export PYTHONDONTWRITEBYTECODE=1

here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)

for tool in python3 espeak-ng sox; do
    command -v "$tool" >/dev/null || { echo "make-sounds: $tool is missing" >&2; exit 1; }
done

python3 "$here/make_sounds.py" "$root/resources/sounds"
python3 "$here/make_vowels.py" "$root/data/sounds kurz lang"
python3 "$here/report.py" "$root/resources/sounds" "$root/data/sounds kurz lang" >"$here/report.tmp"
mv "$here/report.tmp" "$here/report.txt"
