// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/taskbar.h"

std::unique_ptr<TaskbarList> TaskbarList::create(WId)
{
    return nullptr;
}
