// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename_system.h"

#include <QDir>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

/// The path as Windows reads it (no dots and blanks at the end), without its limit of 260 characters; empty
/// when it cannot be read, and when it names a device, such as "CON" or "nul.txt".
QString extendedPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const auto *name = reinterpret_cast<const wchar_t *>(native.utf16());
    QString full(GetFullPathNameW(name, 0, nullptr, nullptr), QChar::Null);
    full.resize(GetFullPathNameW(name, static_cast<DWORD>(full.size()),
                                 reinterpret_cast<wchar_t *>(full.data()), nullptr));
    if (full.startsWith("\\\\.\\"_L1))
        return {};
    if (full.isEmpty() || full.startsWith("\\\\?\\"_L1))
        return full;
    if (full.startsWith("\\\\"_L1))
        return "\\\\?\\UNC\\"_L1 + full.sliced(2);
    return "\\\\?\\"_L1 + full;
}

/// Whether the last part names a stream, in which the content of a file would be out of sight.
bool isStream(const QString &extended)
{
    return extended.indexOf(u':', extended.lastIndexOf(u'\\') + 1) >= 0;
}

} // namespace

std::optional<bool> renameWithoutReplacing(const QString &from, const QString &to)
{
    // The system would read a name up to its first null character only, and rename another file.
    if (from.isEmpty() || to.isEmpty() || from.contains(QChar::Null) || to.contains(QChar::Null))
        return false;
    const QString source = extendedPath(from);
    const QString target = extendedPath(to);
    // Moving a file onto itself succeeds; here it is a target that exists.
    if (source.isEmpty() || target.isEmpty() || source == target || isStream(target))
        return false;
    const auto *targetName = reinterpret_cast<const wchar_t *>(target.utf16());
    // So may moving one of two names of a file onto the other.
    const bool onlyCase = source.compare(target, Qt::CaseInsensitive) == 0;
    if (!onlyCase && GetFileAttributesW(targetName) != INVALID_FILE_ATTRIBUTES)
        return false;
    // QFile::rename is not asked: MoveFile copies onto other drives.
    return MoveFileExW(reinterpret_cast<const wchar_t *>(source.utf16()), targetName, 0) != FALSE;
}
