// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/interruption.h"

#include <atomic>

#include <windows.h>

namespace {

std::atomic_bool isAskedToEnd = false;

// On a thread of its own.
BOOL WINAPI noteInterruption(DWORD /*event*/)
{
    return isAskedToEnd.exchange(true) ? FALSE : TRUE;
}

} // namespace

void catchInterruption()
{
    SetConsoleCtrlHandler(noteInterruption, TRUE);
}

bool isInterrupted()
{
    return isAskedToEnd;
}
