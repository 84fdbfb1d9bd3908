#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# check-package.sh [package.deb]: builds the Debian package, unless one is given, and asks every checker about it and about the sources:
# lintian, the desktop file's, AppStream's and the licences'. Then two versions of it are installed one after the other, and the program
# is started by a user in between: edited lists stay, others are renewed. Ends with 0 if nobody finds anything.
set -euo pipefail
[ $# -eq 0 ] || set -- "$(realpath "$1")"
cd "$(dirname "$(realpath "$0")")/.."
. tools/setup/packages.sh
install_missing lintian desktop-file-utils appstream reuse xvfb xauth

if [ $# -eq 0 ]; then
    build_preset release
    rm -f build/release/wortel-meister_*.deb
    cmake --build --preset release --target package >/dev/null
    set -- "$PWD"/build/release/wortel-meister_*.deb
fi
package=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0

# check <name> <command>...: the command's words only if it finds something.
check() {
    local name=$1
    shift
    if "$@" >"$work/says" 2>&1; then
        echo "ok    $name"
    else
        echo "FOUND $name"
        sed 's/^/      /' "$work/says"
        status=1
    fi
}

# What the desktop, the software centre and the man page reader find in the unpacked package.
dpkg-deb -x "$package" "$work/v1"
share=$work/v1/usr/share
check "lintian" lintian --fail-on error,warning --allow-root "$package"
check "desktop file" desktop-file-validate "$share"/applications/*.desktop
check "AppStream" appstreamcli validate --no-net "$share"/metainfo/*.xml
check "AppStream of the whole tree" appstreamcli validate-tree --no-net "$work/v1"
check "licences" reuse lint
for document in NOTICE LICENSE copyright changelog.gz; do
    check "$document is installed" test -e "$share/doc/wortel-meister/$document" -o -L "$share/doc/wortel-meister/$document"
done

# Two versions, one after the other, and the same user in front of both.
user=$work/home
folder=$user/.local/share/Wortel-Meister
start() { # <installed tree>: the program fills the user's folder, shows its parameters and waits
    mkdir -p "$user" "$work/runtime"
    chmod 700 "$work/runtime"
    env -u XDG_DATA_HOME -u XDG_CONFIG_HOME HOME="$user" XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=offscreen \
        timeout -s KILL 20 "$1/usr/bin/wortel" '/?' >/dev/null 2>&1 &
    local game=$!
    for _ in $(seq 150); do
        grep -sq '^[0-9.]* [0-9a-f]\{64\}$' "$folder/.laid" && ! cmp -s "$folder/.laid" "$work/before" && break
        sleep 0.1
    done
    kill "$game" 2>/dev/null || true
    wait "$game" 2>/dev/null || true
    cp "$folder/.laid" "$work/before"
}
cp -a "$work/v1" "$work/v2"
new=$work/v2/usr/share/wortel-meister/data
printf 'neu\r\n' >>"$new/text/B ODER P.txt"
printf 'neu\r\n' >>"$new/text/D ODER T.txt"
printf 'neu\r\n' >"$new/text/Neue Liste.txt"
start "$work/v1"
check "the user's copy is the installed one" diff -r --exclude=.laid "$work/v1/usr/share/wortel-meister/data" "$folder"
printf 'eigenes\r\n' >"$folder/text/D ODER T.txt"
rm "$folder/text/CK ODER K.txt"
start "$work/v2"
check "an untouched list is renewed" cmp "$new/text/B ODER P.txt" "$folder/text/B ODER P.txt"
check "an edited list stays" test "$(tr -d '\r' <"$folder/text/D ODER T.txt")" = eigenes
check "a new list comes" cmp "$new/text/Neue Liste.txt" "$folder/text/Neue Liste.txt"
check "a list that was taken away stays away" test ! -e "$folder/text/CK ODER K.txt"
exit "$status"
