// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/extendedpath_windows.h"
#include "platform/volume.h"
#include "platform/winapi_windows.h"

#include <windows.h>

using namespace Qt::StringLiterals;

Volume volumeOf(const QString &path)
{
    // Asked of what is open: a path may lead through folders that are other volumes.
    const QString full = extendedPath(path);
    const HANDLE there =
        CreateFileW(wide(full), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (there == INVALID_HANDLE_VALUE)
        return {};
    Volume volume;
    DWORD serial = 0;
    wchar_t kind[MAX_PATH + 1] = {};
    BY_HANDLE_FILE_INFORMATION file = {};
    if (GetVolumeInformationByHandleW(there, nullptr, 0, &serial, nullptr, nullptr, kind, MAX_PATH)) {
        // FAT numbers a file by its place in the folder.
        volume = {.id = QString::number(serial, 16),
                  .keepsNumbers = QString::fromWCharArray(kind) == "NTFS"_L1};
    } else if (GetFileInformationByHandle(there, &file)) {
        // Some file systems of others tell of files only.
        volume = {.id = QString::number(file.dwVolumeSerialNumber, 16)};
    }
    CloseHandle(there);
    return volume;
}
