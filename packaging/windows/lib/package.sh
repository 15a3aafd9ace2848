# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# The portable zip and the installer, in build/windows/packages, from one staged folder.

packageDir=$buildDir/packages
stageDir=$buildDir/stage

projectVersion() { sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$buildDir/CMakeCache.txt"; }

# forWindows FILE NEW: copies a text with Windows' line ends.
forWindows() { sed 's/\r*$/\r/' "$1" > "$2"; }

# libraryText: what is said about the libraries, with the versions of this build.
libraryText() {
    local package
    package=$(sed 's/.*, //' "$qtStamp")
    sed -e "s/@VERSION@/$(projectVersion)/g" -e "s/@QT_PACKAGE@/$package/g" -e "s/@QT_VERSION@/${package%%+*}/g" \
        "$windowsDir/libraries.txt"
}

# The time that the packages bear, so that packing twice gives the same bytes: that of the last commit.
packageTime() {
    echo "${SOURCE_DATE_EPOCH:-$(git -C "$projectDir" log -1 --format=%ct 2> /dev/null ||
        stat -c %Y "$projectDir/CHANGELOG.md")}"
}

# stageFiles: what both packages hold. The licence texts of the libraries come from the Debian packages that
# the build uses.
stageFiles() {
    [[ -f $buildDir/bin/orvanto.exe ]] || fail "no orvanto.exe in $buildDir/bin: run the step program first"
    rm -rf "$stageDir"
    mkdir -p "$stageDir/licences"
    cp "$buildDir/bin/orvanto.exe" "$buildDir/bin/orvanto-cli.exe" "$stageDir"
    cp -r "$buildDir/bin/locale" "$stageDir/locale"
    cp -r "$buildDir/bin/handbook" "$stageDir/handbook"
    cp "$buildDir/bin/handbook.html" "$stageDir"
    forWindows "$projectDir/LICENSE" "$stageDir/LICENSE.txt"
    libraryText | forWindows /dev/stdin "$stageDir/licences/README.txt"
    forWindows /usr/share/common-licenses/LGPL-3 "$stageDir/licences/LGPL-3.txt"
    forWindows /usr/share/common-licenses/GPL-3 "$stageDir/licences/GPL-3.txt"
    forWindows /usr/share/doc/libqt6core6/copyright "$stageDir/licences/Qt.txt"
    forWindows /usr/share/doc/mingw-w64-common/copyright "$stageDir/licences/mingw-w64.txt"
    forWindows /usr/share/doc/gcc-mingw-w64-base/copyright "$stageDir/licences/GCC.txt"
    find "$stageDir" -exec touch -d "@$(packageTime)" {} +
}

buildZip() {
    say "Packing the portable zip"
    stageFiles
    local name zip
    name=orvanto-$(projectVersion)-portable
    zip=$packageDir/$name-windows.zip
    mkdir -p "$packageDir"
    rm -rf "$zip" "${buildDir:?}/$name"
    cp -r "$stageDir" "$buildDir/$name"
    forWindows "$windowsDir/portable.txt" "$buildDir/$name/portable.txt"
    find "$buildDir/$name" -exec touch -d "@$(packageTime)" {} +
    (cd "$buildDir" && find "$name" | LC_ALL=C sort | TZ=UTC zip -q -9 -X -@ "$zip")
    rm -rf "${buildDir:?}/$name"
    printf 'Packed %s (%s bytes)\n' "$zip" "$(stat -c %s "$zip")"
}

# removalList: the installer script's lines that remove exactly what was installed, folders only when empty.
removalList() {
    (
        cd "$stageDir"
        find . -type f -printf 'Delete "$INSTDIR\\%P"\n' | sort
        find . -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n' | sort -r
    ) | tr / '\\'
}

buildInstaller() {
    say "Making the installer"
    stageFiles
    local setup version log=$buildDir/installer.log
    version=$(projectVersion)
    setup=$packageDir/orvanto-$version-setup.exe
    mkdir -p "$packageDir"
    removalList > "$buildDir/removal.nsh"
    makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=$version" "-DSTAGE=$stageDir" "-DOUTPUT=$setup" \
        "-DREMOVAL=$buildDir/removal.nsh" "-DICON=$projectDir/resources/app/orvanto.ico" \
        "$windowsDir/installer.nsi" > "$log" 2>&1 || fail "making the installer failed, see $log"
    printf 'Made %s (%s bytes)\n' "$setup" "$(stat -c %s "$setup")"
}
