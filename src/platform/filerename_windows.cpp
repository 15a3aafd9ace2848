// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/extendedpath_windows.h"
#include "platform/filerename_system.h"

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
    return GetFileAttributesW(reinterpret_cast<const wchar_t *>(extended.utf16())) != INVALID_FILE_ATTRIBUTES;
}

constexpr qsizetype longestName = 255;

RenameResult meaningOf(DWORD error, const QString &source, const QString &target)
{
    // The system calls such a name invalid.
    if (target.size() - target.lastIndexOf(u'\\') - 1 > longestName)
        return RenameResult::TooLong;
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

} // namespace

std::optional<RenameResult> renameWithoutReplacing(const QString &from, const QString &to)
{
    const QString source = extendedPath(from);
    const QString target = extendedPath(to);
    if (source.isEmpty())
        return RenameResult::SourceMissing;
    if (target.isEmpty() || isStream(target))
        return RenameResult::BadName;
    // Moving a file onto itself succeeds; here it is a target that exists.
    if (source == target)
        return exists(source) ? RenameResult::TargetExists : RenameResult::SourceMissing;
    // So may moving one of two names of a file onto the other.
    const bool onlyCase = source.compare(target, Qt::CaseInsensitive) == 0;
    if (!onlyCase && exists(target))
        return exists(source) ? RenameResult::TargetExists : RenameResult::SourceMissing;
    // QFile::rename is not asked: MoveFile copies onto other drives.
    if (MoveFileExW(reinterpret_cast<const wchar_t *>(source.utf16()),
                    reinterpret_cast<const wchar_t *>(target.utf16()), 0))
        return RenameResult::Done;
    return meaningOf(GetLastError(), source, target);
}

RenameResult whyNotRenamed(const QString &from, const QString &to)
{
    // QFile is never asked here.
    Q_UNUSED(from)
    Q_UNUSED(to)
    return RenameResult::Other;
}
