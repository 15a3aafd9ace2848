// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename_system.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// A change of case alone finds the file itself.
bool isSameFile(const QByteArray &path, const struct stat &other)
{
    struct stat there = {};
    return lstat(path.constData(), &there) == 0 && there.st_dev == other.st_dev &&
           there.st_ino == other.st_ino;
}

bool exists(const QByteArray &path)
{
    struct stat there = {};
    return lstat(path.constData(), &there) == 0;
}

/// Whether nothing is there, as opposed to what nobody may look at.
bool isMissing(const QByteArray &path)
{
    return !exists(path) && (errno == ENOENT || errno == ENOTDIR);
}

bool isFolder(const QByteArray &path)
{
    struct stat there = {};
    return stat(path.constData(), &there) == 0 && S_ISDIR(there.st_mode);
}

/// What an error means. The system looks at permissions sometimes before, sometimes after it looks whether
/// the files are there; here what is there counts first.
RenameResult meaningOf(int error, const QByteArray &from, const QByteArray &to)
{
    switch (error) {
    case EEXIST:
        return RenameResult::TargetExists;
    case ENOENT:
    case ENOTDIR:
        if (isMissing(from))
            return RenameResult::SourceMissing;
        // With both folders there it is exFAT's word for a name that it does not take.
        return isFolder(to.first(to.lastIndexOf('/') + 1)) ? RenameResult::BadName : RenameResult::Other;
    case EACCES:
    case EPERM:
    case EROFS:
        if (isMissing(from))
            return RenameResult::SourceMissing;
        return exists(to) ? RenameResult::TargetExists : RenameResult::NotPermitted;
    case EINVAL:
    case EILSEQ:
        return RenameResult::BadName;
    case ENAMETOOLONG:
        return RenameResult::TooLong;
    default:
        return RenameResult::Other;
    }
}

} // namespace

std::optional<RenameResult> renameWithoutReplacing(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
#ifdef RENAME_NOREPLACE
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return RenameResult::Done;
    const int error = errno;
    // Nothing else would come of another way. A change of case alone may find the file itself in its way.
    const bool isFinal = error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == EROFS ||
                         (error == EEXIST && from.compare(to, Qt::CaseInsensitive) != 0);
    if (isFinal)
        return meaningOf(error, source, target);
#endif
    // QFile reports a name that is too long to the log, and knows of a link in the way only where it leads:
    // one that leads nowhere is free for it, and lost where the file system knows neither hard links nor how
    // to refuse.
    struct stat there = {};
    if (lstat(target.constData(), &there) != 0)
        return errno == ENAMETOOLONG ? std::optional(RenameResult::TooLong) : std::nullopt;
    if (S_ISLNK(there.st_mode) && !isSameFile(source, there))
        return RenameResult::TargetExists;
    return std::nullopt;
}

RenameResult whyNotRenamed(const QString &from, const QString &to)
{
    const int error = errno;
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (isMissing(source))
        return RenameResult::SourceMissing;
    if (exists(target))
        return RenameResult::TargetExists;
    return meaningOf(error, source, target);
}
