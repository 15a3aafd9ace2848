// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/fileidentity.h"

#include <QFile>
#include <QString>

#include <windows.h>

#include <io.h>

/// Good as long as the text is not changed.
inline const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// Of an open file.
inline HANDLE handleOf(const QFile &file)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
}

inline FileIdentity::Kind kindOf(DWORD attributes)
{
    if (attributes & FILE_ATTRIBUTE_REPARSE_POINT)
        return FileIdentity::Kind::Link;
    return attributes & FILE_ATTRIBUTE_DIRECTORY ? FileIdentity::Kind::Folder : FileIdentity::Kind::File;
}
