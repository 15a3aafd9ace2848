// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename.h"

#include "platform/extendedpath_windows.h"
#include "platform/winapi_windows.h"

#include <algorithm>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

/// Whether the last part names a stream, in which the content of a file would be out of sight.
bool isStream(const QString &extended)
{
    return extended.indexOf(u':', extended.lastIndexOf(u'\\') + 1) >= 0;
}

bool exists(const QString &extended)
{
    return GetFileAttributesW(wide(extended)) != INVALID_FILE_ATTRIBUTES;
}

/// Whether nothing is left of the last part without dots and blanks at its end: the folder would be the
/// target.
bool isDropped(const QString &path)
{
    const qsizetype lastSeparator = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    const QStringView name = QStringView(path).sliced(lastSeparator + 1);
    const bool isEmpty = std::all_of(name.begin(), name.end(),
                                     [](QChar character) { return character == u'.' || character == u' '; });
    return isEmpty && !name.isEmpty() && name != u"." && name != u"..";
}

bool isFolder(const QString &extended)
{
    const DWORD attributes = GetFileAttributesW(wide(extended));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

constexpr qsizetype longestName = 255;

RenameResult meaningOf(DWORD error, const QString &source, const QString &target)
{
    // The system calls such a name invalid.
    if (target.size() - target.lastIndexOf(u'\\') - 1 > longestName)
        return RenameResult::TooLong;
    // A folder into itself: the system says that somebody uses it.
    if (target.startsWith(source + u'\\', Qt::CaseInsensitive) && isFolder(source))
        return RenameResult::BadName;
    switch (error) {
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS:
        return RenameResult::TargetExists;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        // Otherwise it is the target's folder.
        return exists(source) ? RenameResult::Other : RenameResult::SourceMissing;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return RenameResult::NotPermitted;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        return RenameResult::BadName;
    case ERROR_FILENAME_EXCED_RANGE:
        return RenameResult::TooLong;
    default:
        return RenameResult::Other;
    }
}

/// The system would read a path up to the first null character only. Half a character is a name for Windows,
/// but for nobody else, and no chain of rules means it.
bool canBeWritten(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null) && path.isValidUtf16();
}

} // namespace

struct FileRenamer::System
{
};

FileRenamer::FileRenamer() = default;
FileRenamer::~FileRenamer() = default;

RenameResult FileRenamer::rename(const QString &from, const QString &to)
{
    if (!canBeWritten(from))
        return RenameResult::SourceMissing;
    if (!canBeWritten(to))
        return RenameResult::BadName;
    const QString source = extendedPath(from);
    const QString target = extendedPath(to);
    if (source.isEmpty())
        return RenameResult::SourceMissing;
    if (target.isEmpty() || isStream(target) || isDropped(to))
        return exists(source) ? RenameResult::BadName : RenameResult::SourceMissing;
    // Moving a file onto itself succeeds; here it is a target that exists.
    if (source == target)
        return exists(source) ? RenameResult::TargetExists : RenameResult::SourceMissing;
    // So may moving one of two names of a file onto the other.
    const bool onlyCase = source.compare(target, Qt::CaseInsensitive) == 0;
    if (!onlyCase && exists(target))
        return exists(source) ? RenameResult::TargetExists : RenameResult::SourceMissing;
    // QFile::rename is not asked: MoveFile copies onto other drives.
    if (MoveFileExW(wide(source), wide(target), 0))
        return RenameResult::Done;
    return meaningOf(GetLastError(), source, target);
}

std::optional<RenameResult> FileRenamer::exchange(const QString & /*one*/, const QString & /*other*/)
{
    // Windows has no such step.
    return std::nullopt;
}
