// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/shell.h"

#include <algorithm>

#include <windows.h>

#include <shellapi.h>

void openWithShell(const QString &file, const QString &parameters)
{
    wchar_t fileBuffer[MAX_PATH] = {};
    wchar_t parametersBuffer[MAX_PATH] = {};
    if (file.isEmpty() || std::max(file.size(), parameters.size()) >= MAX_PATH)
        return;
    file.toWCharArray(fileBuffer);
    parameters.toWCharArray(parametersBuffer);
    ShellExecuteW(nullptr, L"open", fileBuffer, parametersBuffer, nullptr, SW_SHOW);
}
