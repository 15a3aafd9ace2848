# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

# Most of a compilation is reading Qt's headers. With this they are read once; every file still includes what it uses,
# which the builds without it see to.
option(ORVANTO_PRECOMPILE "Precompile the headers of Qt" OFF)

# A compiler cache saves more, and cannot look into precompiled headers.
if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(ORVANTO_PRECOMPILE OFF)
endif()

set(core_headers
    <QDir> <QDirIterator> <QFile> <QFileInfo> <QHash> <QMap> <QObject> <QRegularExpression> <QStringList>
    <QTemporaryDir> <QTimer> <QUrl> <functional> <memory> <optional>)
set(widget_headers
    <QAbstractItemView> <QApplication> <QBoxLayout> <QDialog> <QLabel> <QListWidget> <QMainWindow> <QMenu>
    <QMessageBox> <QPainter> <QPushButton> <QTreeWidget>)

# orvanto_add_precompiled(name headers...): a target whose precompiled headers others use.
function(orvanto_add_precompiled name)
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE orvanto_options)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

if(ORVANTO_PRECOMPILE)
    # With the macros that all targets have, whatever else they link: the compiler uses it under no others.
    orvanto_add_precompiled(orvanto_precompiled ${core_headers} ${widget_headers})
    target_link_libraries(orvanto_precompiled PRIVATE Qt6::Core)
    foreach(module Gui Widgets)
        target_include_directories(orvanto_precompiled SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
endif()

# orvanto_precompiled(target): for targets that link Qt.
function(orvanto_precompiled target)
    if(ORVANTO_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM orvanto_precompiled)
    endif()
endfunction()

# orvanto_joined(target): compiles several of its files as one, as what they all instantiate of Qt's templates is half
# of the work. Not for a mutation run, whose rooms are shared libraries: a fault is to cost one file alone.
function(orvanto_joined target)
    if(ORVANTO_PRECOMPILE AND NOT BUILD_SHARED_LIBS)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    endif()
endfunction()

# orvanto_links_widgets(variable target): whether it links Qt's widgets, itself or by what it links.
function(orvanto_links_widgets variable target)
    get_target_property(libraries ${target} LINK_LIBRARIES)
    foreach(library IN LISTS libraries)
        if(library STREQUAL "Qt6::Widgets")
            set(${variable} ON PARENT_SCOPE)
            return()
        elseif(library MATCHES "^orvanto_" AND NOT library STREQUAL "orvanto_options")
            orvanto_links_widgets(found ${library})
            if(found)
                set(${variable} ON PARENT_SCOPE)
                return()
            endif()
        endif()
    endforeach()
    set(${variable} OFF PARENT_SCOPE)
endfunction()
