# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Orvanto itself and its tests, in build/windows.

buildProgram() {
    [[ -f $projectDir/CMakeLists.txt ]] || fail "no CMakeLists.txt in $projectDir"
    [[ -x $qtDir/bin/qt-cmake ]] || fail "no Qt for Windows in $qtDir: run the step qt first"
    say "Building Orvanto for Windows"
    qtCmake -S "$projectDir" -B "$buildDir" -DCMAKE_EXE_LINKER_FLAGS_RELEASE=-s \
        -DORVANTO_PRECOMPILE=ON -DORVANTO_TEST_FLAGS=-O0 \
        -DCMAKE_CROSSCOMPILING_EMULATOR="$windowsDir/wine-run"
    ninja -C "$buildDir" -j "$jobs"
    local program
    for program in "$buildDir"/bin/orvanto.exe "$buildDir"/bin/orvanto-cli.exe; do
        [[ -f $program ]] || fail "the build made no $program"
        requireSystemLibraries "$program"
        printf 'Built %s (%s bytes)\n' "$program" "$(stat -c %s "$program")"
    done
}

# requireSystemLibraries PROGRAM: fails when the program needs a DLL that Windows does not have, which would
# show on a user's machine only.
requireSystemLibraries() {
    local needed foreign
    needed=$(x86_64-w64-mingw32-objdump -p "$1" | awk '/DLL Name:/ { print tolower($3) }')
    [[ -n $needed ]] || fail "cannot read the DLLs that $1 needs"
    foreign=$(grep -E '^(lib|qt|icu|zlib)' <<< "$needed" || true)
    [[ -z $foreign ]] || fail "$1 needs DLLs that Windows lacks: ${foreign//$'\n'/ }"
}
