# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

# Every compile option of the project, on one target that all others link.
add_library(orvanto_options INTERFACE)
target_compile_features(orvanto_options INTERFACE cxx_std_20)
target_include_directories(orvanto_options INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_definitions(orvanto_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(orvanto_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
    $<$<BOOL:${ORVANTO_WERROR}>:-Werror>)
if(ORVANTO_SANITIZE)
    target_compile_options(orvanto_options INTERFACE
        -fsanitize=${ORVANTO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvanto_options INTERFACE -fsanitize=${ORVANTO_SANITIZE})
endif()
