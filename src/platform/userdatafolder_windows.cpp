// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/userdatafolder.h"

#include <QDir>

#include <windows.h>

#include <shlobj.h>

QString userDataFolder()
{
    wchar_t buffer[MAX_PATH] = {};
    SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, buffer);
    const QString folder = QString::fromWCharArray(buffer);
    // QDir would turn an empty path into the current directory.
    return folder.isEmpty() ? folder : QDir(folder).path();
}
