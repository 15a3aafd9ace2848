# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

# Most of a compilation is reading Qt's headers. With this they are read once; every file still includes what it uses,
# which the builds without it see to.
option(ORVANTO_PRECOMPILE "Precompile the headers of Qt" OFF)

# A compiler cache saves more, and cannot look into precompiled headers.
if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(ORVANTO_PRECOMPILE OFF)
endif()

if(ORVANTO_PRECOMPILE)
    file(CONFIGURE OUTPUT precompiled.cpp CONTENT "")
    add_library(orvanto_precompiled OBJECT "${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp")
    # With the macros that all targets have, whatever else they link: the compiler uses it under no others.
    target_link_libraries(orvanto_precompiled PRIVATE orvanto_options Qt6::Core)
    foreach(module Gui Widgets)
        target_include_directories(orvanto_precompiled SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    # Not those of Qt Test: they name a macro that is another one for each test.
    target_precompile_headers(orvanto_precompiled PRIVATE
        <QAbstractItemView> <QApplication> <QBoxLayout> <QDialog> <QDir> <QDirIterator> <QFile> <QFileInfo> <QLabel>
        <QListWidget> <QMainWindow> <QMenu> <QMessageBox> <QPainter> <QPushButton> <QRegularExpression> <QTemporaryDir>
        <QTimer> <QTreeWidget> <QUrl>)
endif()

# orvanto_precompiled(target): for targets that link Qt.
function(orvanto_precompiled target)
    if(ORVANTO_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM orvanto_precompiled)
    endif()
endfunction()
