// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>

#include <windows.h>

/// Which file a path leads to, links not followed; all zero when there is none.
struct SeenFile
{
    quint64 volume = 0;
    quint64 file = 0;
    quint32 mode = 0;
};

inline QString longPath(const QString &path)
{
    return QLatin1String("\\\\?\\") + QDir::toNativeSeparators(QDir::current().absoluteFilePath(path));
}

inline SeenFile identityOf(const QString &path)
{
    const auto name = longPath(path).toStdWString();
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileW(name.c_str(), 0, shared, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION result{};
    GetFileInformationByHandle(handle, &result);
    CloseHandle(handle);
    return {result.dwVolumeSerialNumber, (quint64(result.nFileIndexHigh) << 32) | result.nFileIndexLow,
            result.dwFileAttributes};
}

/// A second name of the same file.
inline bool makeHardLink(const QString &file, const QString &name)
{
    return CreateHardLinkW(longPath(name).toStdWString().c_str(), longPath(file).toStdWString().c_str(),
                           nullptr) != FALSE;
}

/// Pipes have no place among files here.
inline bool makePipe(const QString & /*path*/)
{
    return false;
}

inline bool isPipe(const QString & /*path*/)
{
    return false;
}
