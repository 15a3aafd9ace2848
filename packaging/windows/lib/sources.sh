# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Qt's sources, as Debian source packages. The machine's own apt lists are read, never changed: the source
# entry derived from them and its index live in the cache folder.

# Options that make apt look at the derived entry alone. It runs as the calling user, whose cache folder
# apt's unprivileged download user may not enter.
sourceApt=(
    -o "Dir::Etc::SourceList=/dev/null"
    -o "Dir::Etc::SourceParts=$cacheDir/apt/sources.d"
    -o "Dir::State::Lists=$cacheDir/apt/lists"
    -o "Dir::Cache=$cacheDir/apt/cache"
    -o "APT::Sandbox::User=$(id -un)"
)

# Writes the deb-src twin of the apt entry that offers qt6-base-dev.
deriveSourceEntry() {
    mkdir -p "$cacheDir/apt/sources.d" "$cacheDir/apt/lists/partial" "$cacheDir/apt/cache/archives/partial"
    python3 "$windowsDir/lib/derive-source-entry.py" qt6-base-dev > "$cacheDir/apt/sources.d/source.sources"
    apt-get "${sourceApt[@]}" update -qq
}

# fetchSource PACKAGE: downloads a source package into $sourceDir; apt checks it against the signed index.
fetchSource() {
    mkdir -p "$sourceDir"
    deriveSourceEntry
    (cd "$sourceDir" && apt-get "${sourceApt[@]}" source -qq --download-only "$1")
}

# fetchQtSource: leaves Qt's source tree in $sourceDir/qtbase.
fetchQtSource() {
    [[ -f $sourceDir/qtbase/CMakeLists.txt ]] && return
    say "Fetching the source package of qt6-base"
    fetchSource qt6-base
    rm -rf "$sourceDir/qtbase" "$sourceDir/qtbase.new"
    (
        cd "$sourceDir" || exit
        dpkg-source -x qt6-base_*.dsc qtbase.new
        mv qtbase.new qtbase
        rm -f qt6-base_*
    )
}

# fetchQRegExpSource: leaves the one file wanted of Qt 5 in $sourceDir/qregexp.cpp.
fetchQRegExpSource() {
    [[ -f $sourceDir/qregexp.cpp ]] && return
    say "Fetching the source package of Qt 5 for qregexp.cpp"
    fetchSource qtbase-opensource-src
    (
        cd "$sourceDir" || exit
        tar xf qtbase-opensource-src_*.orig.tar.xz --wildcards --strip-components=4 \
            '*/src/corelib/text/qregexp.cpp'
        rm -f qtbase-opensource-src_*
    )
    [[ -f $sourceDir/qregexp.cpp ]] || fail "no qregexp.cpp in Qt 5's source package"
}
