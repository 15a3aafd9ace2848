// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filelock.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// Not flock, which cannot look without locking: two who look at once would take each other for an owner.
struct flock wholeFile(short type)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return lock;
}

} // namespace

FileLock lockFile(QFile &file)
{
    struct flock lock = wholeFile(F_WRLCK);
    if (fcntl(file.handle(), F_OFD_SETLK, &lock) == 0)
        return FileLock::Locked;
    return errno == EAGAIN || errno == EACCES ? FileLock::HeldByAnother : FileLock::Unsupported;
}

void unlockFile(QFile &file)
{
    struct flock lock = wholeFile(F_UNLCK);
    fcntl(file.handle(), F_OFD_SETLK, &lock);
}

bool isLocked(QFile &file)
{
    struct flock lock = wholeFile(F_WRLCK);
    return fcntl(file.handle(), F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}
