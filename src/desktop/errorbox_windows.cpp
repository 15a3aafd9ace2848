// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/errorbox.h"

#include <windows.h>

void showErrorBox(const char *title, const char *text)
{
    MessageBoxA(nullptr, text, title, MB_OK | MB_ICONERROR);
}
