// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename_system.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// What QFile::rename is not to be asked about. A link in the way, of which it knows only where it leads: one
/// that leads nowhere is free for it, and lost where the file system knows neither hard links nor how to
/// refuse. And a place that cannot be looked at, as its name is too long: it would tell the whole path in the
/// log.
bool isNothingForQFile(const QByteArray &from, const QByteArray &to)
{
    struct stat source = {};
    struct stat target = {};
    if (lstat(to.constData(), &target) != 0)
        return errno != ENOENT;
    if (!S_ISLNK(target.st_mode))
        return false;
    // A change of case alone finds the link itself.
    return lstat(from.constData(), &source) != 0 || source.st_dev != target.st_dev ||
           source.st_ino != target.st_ino;
}

} // namespace

std::optional<bool> renameWithoutReplacing(const QString &from, const QString &to)
{
    // The system would read a name up to its first null character only, and rename another file.
    if (from.isEmpty() || to.isEmpty() || from.contains(QChar::Null) || to.contains(QChar::Null))
        return false;
    // Half a character would be written as U+FFFD: a name that nobody asked for, or that of another file.
    if (!from.isValidUtf16() || !to.isValidUtf16())
        return false;
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
#ifdef RENAME_NOREPLACE
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return true;
#endif
    if (isNothingForQFile(source, target))
        return false;
    return std::nullopt;
}
