# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Every test of build/windows, run with Wine.

# runTests: in a prefix of its own, since tests write into its registry and onto its drive. CTEST_ARGUMENTS holds
# further arguments for ctest, for example "-L unit".
runTests() {
    local arguments=()
    read -r -a arguments <<< "${CTEST_ARGUMENTS:-}"
    say "Testing with Wine"
    "$windowsDir/wine-env" --fresh ctest --test-dir "$buildDir" --output-on-failure "${arguments[@]}"
}
