// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename.h"

#include "platform/pathbytes_unix.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// QFile::rename refuses to copy what it takes for a sequential device.
class UncopiedFile final : public QFile
{
public:
    using QFile::QFile;
    [[nodiscard]] bool isSequential() const override { return true; }
};

/// A change of case alone finds the file itself.
bool isSameFile(const char *path, const struct stat &other)
{
    struct stat there = {};
    return lstat(path, &there) == 0 && there.st_dev == other.st_dev && there.st_ino == other.st_ino;
}

bool exists(const char *path)
{
    struct stat there = {};
    return lstat(path, &there) == 0;
}

/// Whether nothing is there, as opposed to what nobody may look at.
bool isMissing(const char *path)
{
    return !exists(path) && (errno == ENOENT || errno == ENOTDIR);
}

bool hasFolder(const char *path)
{
    const std::string_view whole(path);
    const std::string folder(whole.substr(0, whole.rfind('/') + 1));
    struct stat there = {};
    return stat(folder.c_str(), &there) == 0 && S_ISDIR(there.st_mode);
}

/// What an error means. The system looks at permissions and lengths sometimes before, sometimes after it
/// looks whether the files are there; here what is there counts first, then how long the name is.
RenameResult meaningOf(int error, const char *from, const char *to)
{
    if (isMissing(from))
        return RenameResult::SourceMissing;
    switch (error) {
    case EEXIST:
        return RenameResult::TargetExists;
    case ENOENT:
    case ENOTDIR:
        // With both folders there it is exFAT's word for a name that it does not take.
        return hasFolder(to) ? RenameResult::BadName : RenameResult::Other;
    case EACCES:
    case EPERM:
    case EROFS:
        if (exists(to))
            return RenameResult::TargetExists;
        return errno == ENAMETOOLONG ? RenameResult::TooLong : RenameResult::NotPermitted;
    case EINVAL:
    case EILSEQ:
        return RenameResult::BadName;
    case ENAMETOOLONG:
        return RenameResult::TooLong;
    default:
        return RenameResult::Other;
    }
}

/// Why QFile, which says nothing of use, has just refused.
RenameResult whyRefused(const char *from, const char *to)
{
    const int error = errno;
    return meaningOf(exists(to) ? EEXIST : error, from, to);
}

} // namespace

struct FileRenamer::System
{
    PathBytes source;
    PathBytes target;
};

FileRenamer::FileRenamer()
    : system(std::make_unique<System>())
{
}

FileRenamer::~FileRenamer() = default;

RenameResult FileRenamer::rename(const QString &from, const QString &to)
{
    const char *source = system->source.of(from);
    if (!source)
        return RenameResult::SourceMissing;
    const char *target = system->target.of(to);
    if (!target)
        return RenameResult::BadName;
#ifdef RENAME_NOREPLACE
    if (renameat2(AT_FDCWD, source, AT_FDCWD, target, RENAME_NOREPLACE) == 0)
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
    const bool isTaken = lstat(target, &there) == 0;
    if (!isTaken && errno == ENAMETOOLONG)
        return RenameResult::TooLong;
    if (isTaken && S_ISLNK(there.st_mode) && !isSameFile(source, there))
        return RenameResult::TargetExists;
    // QFile knows what is left: a change of case alone where case does not matter, and file systems that
    // cannot refuse to replace.
    return UncopiedFile(from).rename(to) ? RenameResult::Done : whyRefused(source, target);
}

std::optional<RenameResult> FileRenamer::exchange(const QString &one, const QString &other)
{
#ifdef RENAME_EXCHANGE
    const char *first = system->source.of(one);
    if (!first)
        return RenameResult::SourceMissing;
    const char *second = system->target.of(other);
    if (!second)
        return RenameResult::SourceMissing;
    if (renameat2(AT_FDCWD, first, AT_FDCWD, second, RENAME_EXCHANGE) == 0)
        return RenameResult::Done;
    const int error = errno;
    if (error == EINVAL || error == ENOSYS || error == EOPNOTSUPP)
        return std::nullopt;
    if (isMissing(first) || isMissing(second))
        return RenameResult::SourceMissing;
    // Both are there, and are to be: it is the folder that takes nothing.
    return error == EACCES || error == EPERM || error == EROFS ? RenameResult::NotPermitted
                                                               : meaningOf(error, first, second);
#else
    Q_UNUSED(one);
    Q_UNUSED(other);
    return std::nullopt;
#endif
}
