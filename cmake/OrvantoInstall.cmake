# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

# "cmake --install build/release --prefix ANY" and "cpack -G DEB". packaging/windows lays out the Windows packages.
if(WIN32)
    return()
endif()

include(GNUInstallDirs)
set(templates "${PROJECT_SOURCE_DIR}/packaging/linux")
set(made "${PROJECT_BINARY_DIR}/install")

# Wayland desktops look for the entry of a window under the reversed domain and the program's name.
string(REPLACE "." ";" domainParts "${ORVANTO_ORG_DOMAIN}")
list(REVERSE domainParts)
list(JOIN domainParts "." ORVANTO_DESKTOP_ID)
string(APPEND ORVANTO_DESKTOP_ID ".orvanto")

# The time is that of SOURCE_DATE_EPOCH, where it is set: the same sources then give the same package.
string(TIMESTAMP ORVANTO_RELEASE_DATE "%Y-%m-%d" UTC)
string(TIMESTAMP ORVANTO_CHANGELOG_DATE "%a, %d %b %Y 00:00:00 +0000" UTC)

set(CPACK_GENERATOR DEB)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};orvanto;Unspecified;/" "${PROJECT_BINARY_DIR};orvanto;debian;/")
set(CPACK_PACKAGE_NAME orvanto)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR Kavrondel)
set(CPACK_PACKAGE_CONTACT "Kavrondel <contact@${ORVANTO_ORG_DOMAIN}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "rename many files at once")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Drop files and folders on a list, build an ordered chain of rules (replace,
trim, change case, insert text, enumerate), see every new name in the list
itself, and rename.
.
A file is never overwritten: a rename onto an existing name is refused,
counted and logged, and the run goes on.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${ORVANTO_HOME_URL}")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# xdg-open shows folders and web pages; Qt shows windows on Wayland through a plug-in of its own.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-wayland")

# The program looks for its translations beside itself: both go to a folder of their own, and the
# command is a link. The program finds its folder through the link.
set(programFolder "lib/orvanto")
install(TARGETS orvanto RUNTIME DESTINATION "${programFolder}")
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/locale" DESTINATION "${programFolder}"
    FILES_MATCHING PATTERN "*.qm" PATTERN "*.png")
install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/handbook.html" DESTINATION "${programFolder}")
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/handbook" DESTINATION "${programFolder}"
    FILES_MATCHING PATTERN "*.png")
file(RELATIVE_PATH linkTarget "/${CMAKE_INSTALL_BINDIR}" "/${programFolder}/orvanto")
file(MAKE_DIRECTORY "${made}")
file(CREATE_LINK "${linkTarget}" "${made}/orvanto" SYMBOLIC)
install(FILES "${made}/orvanto" DESTINATION "${CMAKE_INSTALL_BINDIR}")

configure_file("${templates}/orvanto.desktop.in" "${made}/${ORVANTO_DESKTOP_ID}.desktop" @ONLY)
install(FILES "${made}/${ORVANTO_DESKTOP_ID}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
configure_file("${templates}/orvanto.metainfo.xml.in" "${made}/${ORVANTO_DESKTOP_ID}.metainfo.xml" @ONLY)
install(FILES "${made}/${ORVANTO_DESKTOP_ID}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size IN ITEMS 16 24 32 48 64 128 256)
    install(FILES "${PROJECT_SOURCE_DIR}/resources/app/orvanto-${size}.png"
        DESTINATION "${icons}/${size}x${size}/apps" RENAME orvanto.png)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/resources/svg/app/orvanto.svg" DESTINATION "${icons}/scalable/apps")

# What desktops call a file of a rule set, and how they show it.
install(FILES "${templates}/orvanto-rules.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
install(FILES "${PROJECT_SOURCE_DIR}/resources/svg/app/rules.svg"
    DESTINATION "${icons}/scalable/mimetypes" RENAME application-x-orvanto-rules.svg)

# orvanto_compressed(file name): builds install/<name>.gz, the same bytes every time.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(orvanto_compressed file name)
    add_custom_command(OUTPUT "${made}/${name}.gz"
        COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${made}/${name}.tmp"
        COMMAND "${GZIP_PROGRAM}" --best --no-name --force --suffix .gz "${made}/${name}.tmp"
        COMMAND "${CMAKE_COMMAND}" -E rename "${made}/${name}.tmp.gz" "${made}/${name}.gz"
        DEPENDS "${file}"
        COMMENT "Compressing ${name}"
        VERBATIM)
endfunction()

configure_file("${templates}/orvanto.1.in" "${made}/orvanto.1" @ONLY)
foreach(ORVANTO_PACKAGE orvanto orvanto-cli)
    set(folder "documents/${ORVANTO_PACKAGE}")
    configure_file("${templates}/changelog.Debian.in" "${made}/${folder}/changelog.Debian" @ONLY)
    configure_file("${templates}/lintian-overrides.in" "${made}/${folder}/lintian-overrides" @ONLY)
    orvanto_compressed("${made}/${folder}/changelog.Debian" "${folder}/changelog.Debian")
endforeach()
configure_file("${templates}/copyright.in" "${made}/copyright" @ONLY)
orvanto_compressed("${made}/orvanto.1" orvanto.1)
orvanto_compressed("${PROJECT_SOURCE_DIR}/CHANGELOG.md" changelog)
add_custom_target(documents ALL
    DEPENDS "${made}/orvanto.1.gz" "${made}/changelog.gz"
        "${made}/documents/orvanto/changelog.Debian.gz" "${made}/documents/orvanto-cli/changelog.Debian.gz")
install(FILES "${made}/orvanto.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${made}/changelog.gz" "${made}/copyright" DESTINATION "${CMAKE_INSTALL_DOCDIR}")

# What a Debian package alone needs: "cmake --install" leaves it out, cpack asks for it above.
install(FILES "${made}/documents/orvanto/changelog.Debian.gz" DESTINATION "${CMAKE_INSTALL_DOCDIR}"
    COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES "${made}/documents/orvanto/lintian-overrides" DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
    RENAME orvanto COMPONENT debian EXCLUDE_FROM_ALL)

include(CPack)
include("${CMAKE_CURRENT_LIST_DIR}/OrvantoInstallCli.cmake")
