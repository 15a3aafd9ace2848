# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

# The suffix of the files that hold one operating system's side of src/platform/ or src/desktop/.
if(WIN32)
    set(ORVANTO_SYSTEM windows)
else()
    set(ORVANTO_SYSTEM unix)
endif()

# A mutation run asks for shared libraries: one that changes is then all there is to link.
if(BUILD_SHARED_LIBS)
    set(ORVANTO_LIBRARY_TYPE SHARED)
else()
    set(ORVANTO_LIBRARY_TYPE STATIC)
endif()

# orvanto_library(folder SOURCES ... USES ...): the library of one folder of src/.
function(orvanto_library folder)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;USES")
    qt_add_library(orvanto_${folder} ${ORVANTO_LIBRARY_TYPE} ${ARG_SOURCES})
    target_link_libraries(orvanto_${folder} PUBLIC orvanto_options ${ARG_USES})
    set_target_properties(orvanto_${folder} PROPERTIES
        AUTOUIC ON
        AUTOUIC_SEARCH_PATHS "${PROJECT_SOURCE_DIR}/forms")
    orvanto_precompiled(orvanto_${folder})
    orvanto_joined(orvanto_${folder})
endfunction()
