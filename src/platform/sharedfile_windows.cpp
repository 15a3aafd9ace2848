// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/sharedfile.h"

#include "platform/extendedpath_windows.h"
#include "platform/winapi_windows.h"

#include <QFile>
#include <QRandomGenerator>

#include <windows.h>

#include <fcntl.h>
#include <io.h>

using namespace Qt::StringLiterals;

bool openShared(QFile &file, QIODevice::OpenMode mode)
{
    const QString full = extendedPath(file.fileName());
    const bool writes = mode.testFlag(QIODevice::WriteOnly);
    const HANDLE handle = CreateFileW(wide(full), writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      mode.testFlag(QIODevice::NewOnly) ? CREATE_NEW : OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const int descriptor =
        _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | (writes ? _O_RDWR : _O_RDONLY));
    if (descriptor == -1) {
        CloseHandle(handle);
        return false;
    }
    return file.open(descriptor, writes ? QIODevice::ReadWrite : QIODevice::ReadOnly,
                     QFileDevice::AutoCloseHandle);
}

bool removeShared(const QString &path)
{
    const QString full = extendedPath(path);
    // Where a removed file keeps its name until it is closed, that is another one.
    const QString aside =
        full + u"-gone-%1"_s.arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    if (!MoveFileExW(wide(full), wide(aside), 0))
        return DeleteFileW(wide(full)) != FALSE;
    if (DeleteFileW(wide(aside)))
        return true;
    // In use by somebody who does not share it.
    MoveFileExW(wide(aside), wide(full), 0);
    return false;
}
