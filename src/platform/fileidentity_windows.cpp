// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/extendedpath_windows.h"
#include "platform/fileidentity.h"
#include "platform/winapi_windows.h"

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

/// Windows counts tenths of microseconds since 1601.
qint64 nanoseconds(const FILETIME &time)
{
    constexpr qint64 until1970 = 116'444'736'000'000'000;
    const qint64 ticks = (qint64{time.dwHighDateTime} << 32) | time.dwLowDateTime;
    return (ticks - until1970) * 100;
}

/// With a separator at its end, or a dot behind that, a path means where a link leads, as elsewhere. Windows
/// would drop both.
bool leadsThrough(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    return native.endsWith(u'\\') || native.endsWith("\\."_L1);
}

} // namespace

std::optional<FileIdentity> fileIdentity(const QString &path)
{
    const QString full = extendedPath(path);
    const DWORD itself = leadsThrough(path) ? 0 : FILE_FLAG_OPEN_REPARSE_POINT;
    const HANDLE file =
        CreateFileW(wide(full), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | itself, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    BY_HANDLE_FILE_INFORMATION there = {};
    const BOOL known = GetFileInformationByHandle(file, &there);
    CloseHandle(file);
    if (!known)
        return std::nullopt;
    return FileIdentity{.volume = there.dwVolumeSerialNumber,
                        .number = (quint64{there.nFileIndexHigh} << 32) | there.nFileIndexLow,
                        .born = nanoseconds(there.ftCreationTime),
                        .size = (qint64{there.nFileSizeHigh} << 32) | there.nFileSizeLow,
                        .modified = nanoseconds(there.ftLastWriteTime),
                        .kind = kindOf(there.dwFileAttributes)};
}
