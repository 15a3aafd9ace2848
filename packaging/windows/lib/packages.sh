# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Everything that is installed on the build machine, all of it from Debian.

windowsPackages=(
    # cross compiler, resource compiler, installer maker
    g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 mingw-w64-x86-64-dev nsis
    # build tools
    cmake cmark-gfm ninja-build g++ perl python3 dpkg-dev xz-utils zip unzip
    # Qt's host tools (moc, rcc, uic, lrelease) and the QRegExp header
    qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-5compat-dev
    # running and looking at the result
    wine wine64 fonts-wine fonts-dejavu-core xvfb xauth openbox xdotool wmctrl imagemagick
)

installPackages() { ensure_packages "${windowsPackages[@]}"; }
