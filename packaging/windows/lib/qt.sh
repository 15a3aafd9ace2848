# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Static Qt for Windows, cross-built once into the cache folder.

# Raise whenever the options below or the toolchain file change; caches of an older recipe are built anew.
qtRecipe=1
qtStamp=$qtDir/orvanto-qt-recipe

qtOptions=(
    -DCMAKE_BUILD_TYPE=Release
    -DBUILD_SHARED_LIBS=OFF
    -DQT_HOST_PATH=/usr
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake
    -DQT_BUILD_EXAMPLES=OFF
    -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_TOOLS_BY_DEFAULT=OFF
    # nothing of the program needs these
    -DFEATURE_sql=OFF
    -DFEATURE_dbus=OFF
    -DFEATURE_printsupport=OFF
    -DFEATURE_vulkan=OFF
    -DFEATURE_androiddeployqt=OFF
    -DINPUT_opengl=no
    # GDI text: without Direct2D, DirectWrite does not link either
    -DFEATURE_direct2d=OFF
    -DFEATURE_directwrite=OFF
    -DFEATURE_directwrite3=OFF
    # Debian's source package lacks the wintab header
    -DFEATURE_tabletevent=OFF
    # the system's own TLS, no OpenSSL to ship
    -DINPUT_openssl=no
    -DFEATURE_schannel=ON
    # libraries of the build machine must not leak into a Windows build; Qt brings what it needs
    -DFEATURE_pkg_config=OFF
    -DFEATURE_icu=OFF
    -DFEATURE_zstd=OFF
    -DFEATURE_brotli=OFF
    -DFEATURE_glib=OFF
    -DFEATURE_system_zlib=OFF
    -DFEATURE_system_pcre2=OFF
    -DFEATURE_system_freetype=OFF
    -DFEATURE_system_harfbuzz=OFF
    -DFEATURE_system_png=OFF
    -DFEATURE_system_jpeg=OFF
    -DFEATURE_system_doubleconversion=OFF
)

buildQt() {
    local wanted compiler version
    compiler=$(x86_64-w64-mingw32-g++-posix -dumpfullversion)
    version=$(dpkg-query -W -f '${Version}' qt6-base-dev)
    wanted="recipe $qtRecipe, $compiler, $version"
    if stampIs "$qtStamp" "$wanted"; then
        echo "Qt for Windows: already in $qtDir"
        return
    fi
    fetchQtSource
    say "Building Qt for Windows (about half an hour, once)"
    local build=$cacheDir/build-qtbase
    rm -rf "$qtDir"
    mkdir -p "$qtDir"
    cp "$windowsDir/mingw64.cmake" "$qtDir/"
    # An interrupted build goes on where it stopped, unless the recipe changed meanwhile.
    if ! stampIs "$build/orvanto-qt-recipe" "$wanted"; then
        rm -rf "$build"
        cmake -S "$sourceDir/qtbase" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$qtDir/mingw64.cmake" \
            -DCMAKE_INSTALL_PREFIX="$qtDir" "${qtOptions[@]}" > "$cacheDir/qt-configure.log" 2>&1 ||
            fail "configuring Qt failed, see $cacheDir/qt-configure.log"
        echo "$wanted" > "$build/orvanto-qt-recipe"
    fi
    nice -n 19 ninja -C "$build" -j "$jobs" > "$cacheDir/qt-build.log" 2>&1 ||
        fail "building Qt failed, see $cacheDir/qt-build.log"
    cmake --install "$build" > "$cacheDir/qt-install.log" ||
        fail "installing Qt failed, see $cacheDir/qt-install.log"
    echo "$wanted" > "$qtStamp"
    # 3 GB of objects and 300 MB of sources nobody reads again
    rm -rf "$build" "$sourceDir/qtbase"
}
