# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

# orvanto-cli is a package of its own, so that servers need no library of windows: "cpack --config CPackCli.cmake" makes
# it. "cmake --install" installs both programs.

# Beside the other program, where the marks of a portable copy count for both.
install(TARGETS orvanto-cli RUNTIME DESTINATION "${programFolder}" COMPONENT cli)
file(RELATIVE_PATH linkTarget "/${CMAKE_INSTALL_BINDIR}" "/${programFolder}/orvanto-cli")
file(CREATE_LINK "${linkTarget}" "${made}/orvanto-cli" SYMBOLIC)
install(FILES "${made}/orvanto-cli" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT cli)

# The program's own table of options makes its manual page and the completions.
set(pages "${made}/pages")
file(MAKE_DIRECTORY "${pages}")
add_custom_command(
    OUTPUT "${pages}/orvanto-cli.1" "${pages}/orvanto-cli.bash" "${pages}/_orvanto-cli" "${pages}/orvanto-cli.fish"
    COMMAND makepages "${pages}" "${ORVANTO_RELEASE_DATE}"
    COMMENT "Making the pages of orvanto-cli"
    VERBATIM)
orvanto_compressed("${pages}/orvanto-cli.1" orvanto-cli.1)
add_custom_target(pages ALL DEPENDS "${made}/orvanto-cli.1.gz")
install(FILES "${made}/orvanto-cli.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT cli)
install(FILES "${pages}/orvanto-cli.bash" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
    RENAME orvanto-cli COMPONENT cli)
install(FILES "${pages}/_orvanto-cli" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions" COMPONENT cli)
install(FILES "${pages}/orvanto-cli.fish" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d"
    COMPONENT cli)
set(documents "${CMAKE_INSTALL_DATADIR}/doc/orvanto-cli")
install(FILES "${made}/changelog.gz" "${made}/copyright" DESTINATION "${documents}" COMPONENT cli)
install(FILES "${made}/documents/orvanto-cli/changelog.Debian.gz" DESTINATION "${documents}"
    COMPONENT cli_debian EXCLUDE_FROM_ALL)
install(FILES "${made}/documents/orvanto-cli/lintian-overrides" DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
    RENAME orvanto-cli COMPONENT cli_debian EXCLUDE_FROM_ALL)

configure_file("${templates}/CPackCli.cmake.in" "${PROJECT_BINARY_DIR}/CPackCli.cmake" @ONLY)
