# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# QRegExp for Windows: Debian has no source package of Qt 6's compatibility module to download, but Qt 5's
# qregexp.cpp is the same engine.

qregexpHeaders=/usr/include/x86_64-linux-gnu/qt6/QtCore5Compat
qregexpStamp=$qtDir/orvanto-qregexp-recipe

# qtCmake ARGUMENTS...: CMake set up for the cross-built Qt.
qtCmake() { "$qtDir/bin/qt-cmake" -G Ninja -DCMAKE_BUILD_TYPE=Release "$@"; }

buildQRegExp() {
    fetchQRegExpSource
    # built again whenever anything it is made of changes, the Qt below it included
    local wanted
    local parts=("$windowsDir"/qregexp/* "$sourceDir/qregexp.cpp" "$qregexpHeaders/qregexp.h" "$qtStamp")
    wanted=$(cat "${parts[@]}" | sha256sum)
    if stampIs "$qregexpStamp" "$wanted"; then
        echo "QRegExp for Windows: already in $qtDir"
        return
    fi
    say "Building QRegExp for Windows"
    local build=$cacheDir/build-qregexp log=$cacheDir/qregexp.log
    rm -rf "$build"
    {
        qtCmake -S "$windowsDir/qregexp" -B "$build" -DCMAKE_INSTALL_PREFIX="$qtDir" \
            -DQREGEXP_SOURCE="$sourceDir/qregexp.cpp" -DQREGEXP_HEADERS="$qregexpHeaders" &&
            ninja -C "$build" -j "$jobs" && cmake --install "$build"
    } > "$log" 2>&1 || fail "building QRegExp failed, see $log"
    rm -rf "$build"
    echo "$wanted" > "$qregexpStamp"
}
