// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/adminrights.h"

#include <unistd.h>

bool isUserAdministrator()
{
    return geteuid() == 0;
}
