// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/taskbar.h"

std::unique_ptr<TaskbarList> TaskbarList::create(WId)
{
    return nullptr;
}
