# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by run.sh, test.sh and bench.sh: installs the Debian packages that are missing, and builds a preset.

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-multimedia-dev libgl1-mesa-dev
                fonts-liberation qt6-translations-l10n)
display_packages=(xvfb xauth imagemagick xdotool openbox x11-utils)
# What tests read PDF files, web pages, the desktop's files and the bus of screen readers with.
test_packages=(poppler-utils chromium desktop-file-utils appstream dbus at-spi2-core)

# install_missing <package>...: asks dpkg once; calls apt only if something is missing.
install_missing() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "These packages are missing, and there is neither root nor sudo: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    local install=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}")
    "${install[@]}" >/dev/null 2>&1 && return 0
    "${as_root[@]}" apt-get update -q && "${install[@]}"
}

# build_preset <preset>: configures once, then builds what has changed.
build_preset() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" | grep -v '^ninja: no work to do' || true
    return "${PIPESTATUS[0]}"
}
