// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/extendedpath_windows.h"
#include "platform/foldernumbers.h"
#include "platform/winapi_windows.h"

#include <QHashFunctions>

#include <array>

#include <windows.h>

FolderNumbers::FolderNumbers(const QString &folder)
{
    const QString full = extendedPath(folder);
    handle = reinterpret_cast<qintptr>(
        CreateFileW(wide(full), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

FolderNumbers::~FolderNumbers()
{
    if (handle != -1)
        CloseHandle(reinterpret_cast<HANDLE>(handle));
}

bool FolderNumbers::readOn()
{
    if (handle == -1)
        return false;
    alignas(FILE_ID_BOTH_DIR_INFO) std::array<char, 16384> piece;
    const bool more = GetFileInformationByHandleEx(reinterpret_cast<HANDLE>(handle), FileIdBothDirectoryInfo,
                                                   piece.data(), static_cast<DWORD>(piece.size()));
    if (!more) {
        CloseHandle(reinterpret_cast<HANDLE>(handle));
        handle = -1;
        return false;
    }
    for (const char *at = piece.data();;) {
        const auto *entry = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO *>(at);
        insert(qHashBits(entry->FileName, entry->FileNameLength),
               static_cast<quint64>(entry->FileId.QuadPart));
        if (entry->NextEntryOffset == 0)
            return true;
        at += entry->NextEntryOffset;
    }
}

size_t FolderNumbers::hashOf(QStringView name)
{
    return qHashBits(name.utf16(), static_cast<size_t>(name.size()) * sizeof(char16_t));
}
