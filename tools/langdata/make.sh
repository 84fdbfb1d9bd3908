#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Makes data/facit/*.lex and report.txt anew from data/text, data/affix, the word rules beside this
# script and two Debian packages, which are taken apart below build/langdata and not installed.
# Needs: cmake, a C++ compiler, qt6-base-dev, libhunspell-dev, tesseract-ocr (for its word list tools).
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$(cd "$here/../.." && pwd)
work=$top/build/langdata
packages=(hunspell-de-de-frami tesseract-ocr-deu)

die() { echo "make.sh: $*" >&2; exit 1; }

for tool in cmake apt-get dpkg-deb combine_tessdata dawg2wordlist; do
    command -v "$tool" >/dev/null || die "$tool is missing (combine_tessdata and dawg2wordlist: package tesseract-ocr)"
done

mkdir -p "$work/packages" "$work/sources"
cd "$work/packages"
for package in "${packages[@]}"; do
    compgen -G "${package}_*.deb" >/dev/null || apt-get -q download "$package" \
        || die "cannot get the package $package (apt-get update?)"
    dpkg-deb -x "${package}"_*.deb "$work/packages/$package"
done

cd "$work/sources"
cp "$work"/packages/hunspell-de-de-frami/usr/share/hunspell/de_DE_frami.{aff,dic} . \
    || die "the package hunspell-de-de-frami holds no de_DE_frami dictionary"
model=$(find "$work/packages/tesseract-ocr-deu" -name deu.traineddata | head -n 1)
[ -n "$model" ] || die "the package tesseract-ocr-deu holds no deu.traineddata"
combine_tessdata -u "$model" deu. >/dev/null 2>&1 || die "cannot unpack $model"
dawg2wordlist deu.lstm-unicharset deu.lstm-word-dawg familiar.tmp >/dev/null 2>&1 || die "cannot read the word list of $model"
LC_ALL=C sort -u familiar.tmp >familiar.txt
rm familiar.tmp

cmake -S "$here" -B "$work/program" >"$work/cmake.log" || die "see $work/cmake.log"
cmake --build "$work/program" >>"$work/cmake.log" || die "see $work/cmake.log"
mkdir -p "$top/data/facit"
"$work/program/langdata" "$work/sources" "$here" "$top/data"
echo "made $(find "$top/data/facit" -name '*.lex' | wc -l) dictionaries, see ${here#"$top"/}/report.txt"
