// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/fileidentity.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

qint64 nanoseconds(const struct statx_timestamp &time)
{
    return time.tv_sec * 1'000'000'000 + time.tv_nsec;
}

FileIdentity::Kind kindOf(unsigned mode)
{
    if (S_ISREG(mode))
        return FileIdentity::Kind::File;
    if (S_ISDIR(mode))
        return FileIdentity::Kind::Folder;
    return S_ISLNK(mode) ? FileIdentity::Kind::Link : FileIdentity::Kind::Other;
}

} // namespace

std::optional<FileIdentity> fileIdentity(const QString &path)
{
    struct statx there = {};
    if (statx(AT_FDCWD, QFile::encodeName(path).constData(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT,
              STATX_BASIC_STATS | STATX_BTIME, &there) != 0)
        return std::nullopt;
    return FileIdentity{.volume = makedev(there.stx_dev_major, there.stx_dev_minor),
                        .number = there.stx_ino,
                        .born = (there.stx_mask & STATX_BTIME) != 0 ? nanoseconds(there.stx_btime) : 0,
                        .size = static_cast<qint64>(there.stx_size),
                        .modified = nanoseconds(there.stx_mtime),
                        .kind = kindOf(there.stx_mode),
                        .isOwn = there.stx_uid == geteuid()};
}
