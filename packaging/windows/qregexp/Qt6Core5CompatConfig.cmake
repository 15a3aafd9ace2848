# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# Lets find_package(Qt6 COMPONENTS Core5Compat) find the QRegExp library of the Windows build.

include(CMakeFindDependencyMacro)
find_dependency(Qt6Core)
include("${CMAKE_CURRENT_LIST_DIR}/Qt6Core5CompatTargets.cmake")
if(NOT TARGET Qt::Core5Compat)
    add_library(Qt::Core5Compat INTERFACE IMPORTED)
    set_target_properties(Qt::Core5Compat PROPERTIES INTERFACE_LINK_LIBRARIES Qt6::Core5Compat)
endif()
