// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/programarguments.h"

#include <windows.h>

#include <shellapi.h>

// The bytes that main() is given are in a code page which need not know the names.
QStringList programArguments(int /*count*/, char ** /*arguments*/)
{
    int count = 0;
    wchar_t **arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    QStringList words;
    for (int i = 1; arguments && i < count; ++i)
        words.append(QString::fromWCharArray(arguments[i]));
    LocalFree(arguments);
    return words;
}
