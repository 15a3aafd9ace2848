// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filelock.h"

#include "platform/winapi_windows.h"

#include <QFile>

#include <windows.h>

#include <io.h>

namespace {

/// One byte that no file reaches: where bytes are locked, nobody else can read them.
OVERLAPPED lockedPlace()
{
    OVERLAPPED place = {};
    place.OffsetHigh = 0x40000000;
    return place;
}

} // namespace

FileLock lockFile(QFile &file)
{
    OVERLAPPED place = lockedPlace();
    if (LockFileEx(handleOf(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place))
        return FileLock::Locked;
    const DWORD error = GetLastError();
    return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? FileLock::HeldByAnother
                                                                      : FileLock::Unsupported;
}

void unlockFile(QFile &file)
{
    OVERLAPPED place = lockedPlace();
    UnlockFileEx(handleOf(file), 0, 1, 0, &place);
}

bool isLocked(QFile &file)
{
    // A lock that others may have at the same time.
    OVERLAPPED place = lockedPlace();
    if (!LockFileEx(handleOf(file), LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place))
        return GetLastError() != ERROR_INVALID_FUNCTION;
    unlockFile(file);
    return false;
}
