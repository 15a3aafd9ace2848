# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
#
# cmake -DCMARK=program -DPAGE=file -DTEXT=file -DHTML=file -P makehandbook.cmake: the text as a page.

execute_process(COMMAND "${CMARK}" --extension table "${TEXT}" OUTPUT_VARIABLE HANDBOOK
    COMMAND_ERROR_IS_FATAL ANY)
configure_file("${PAGE}" "${HTML}" @ONLY)
