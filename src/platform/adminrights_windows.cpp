// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/adminrights.h"

#include <windows.h>

#include <shlobj.h>

bool isUserAdministrator()
{
    return IsUserAnAdmin() != FALSE;
}
