# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Paths and small functions shared by the scripts of this folder; sourced, never run.

windowsDir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
projectDir=$(cd "$windowsDir/../.." && pwd)
# shellcheck source=../../../tools/packages.sh
source "$projectDir/tools/packages.sh"
cacheDir=$(realpath -m "${ORVANTO_CACHE:-$HOME/.cache/orvanto}")/windows
sourceDir=$cacheDir/src
qtDir=$cacheDir/qt6
buildDir=$projectDir/build/windows
# Two jobs by default so that a machine in use stays usable; ORVANTO_JOBS overrides.
jobs=${ORVANTO_JOBS:-2}

say() { printf '\n== %s\n' "$*"; }

# stampIs FILE TEXT: does the stamp hold exactly this text?
stampIs() { [[ -f $1 && $(<"$1") == "$2" ]]; }
