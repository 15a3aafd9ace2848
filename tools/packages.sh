# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Sourced by run, test and the other scripts: the Debian packages that each needs, and their installation.

. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

build_packages=(
    cmake cmark-gfm g++ ninja-build
    qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-5compat-dev libgl-dev
)
run_packages=(fonts-dejavu-core xdg-utils)
benchmark_packages=(gnuplot-nox mmv mold moreutils python3 rename util-linux)
window_benchmark_packages=(doublecmd-gtk gprename krename python3-xlib thunar)
virtual_display_packages=(novnc openbox python3 websockify x11vnc xvfb)
test_packages=(
    at-spi2-core binutils clang-format-14 dbus dbus-bin dbus-daemon dosfstools e2fsprogs exfat-fuse exfatprogs
    fonts-dejavu-core g++-mingw-w64-x86-64-posix gir1.2-atspi-2.0 imagemagick librsvg2-bin mold mount ntfs-3g
    novnc openbox procps python3 python3-cryptography python3-gi python3-jsonschema python3-pyatspi qt6-wayland qt6ct
    shared-mime-info trayer util-linux websockify weston wmctrl x11-utils x11vnc x11-xserver-utils xclip xdg-utils
    xdotool xkb-data xterm xvfb
    fish man-db time zsh
)
analysis_packages=(clang-tidy-14 clazy python3)
fuzz_packages=(clang-14 fonts-dejavu-core libclang-rt-14-dev python3)

# ensure_packages NAME...: installs those that are missing; silent and quick when none is.
ensure_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# build PRESET [OPTION...]: configures when needed and builds; the options go to the building.
build() {
    cmake --preset "$1" >"build/$1.configure.log" 2>&1 || { cat "build/$1.configure.log"; return 1; }
    cmake --build --preset "$@"
}
