// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/volume.h"

#include <QDir>

#include <windows.h>

using namespace Qt::StringLiterals;

Volume volumeOf(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    wchar_t root[MAX_PATH + 1] = {};
    if (!GetVolumePathNameW(reinterpret_cast<const wchar_t *>(native.utf16()), root, MAX_PATH))
        return {};
    DWORD serial = 0;
    wchar_t kind[MAX_PATH + 1] = {};
    if (!GetVolumeInformationW(root, nullptr, 0, &serial, nullptr, nullptr, kind, MAX_PATH))
        return {};
    // FAT numbers a file by its place in the folder.
    return {.id = QString::number(serial, 16), .keepsNumbers = QString::fromWCharArray(kind) == "NTFS"_L1};
}
