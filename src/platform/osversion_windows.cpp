// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/osversion.h"

#include <windows.h>

using namespace Qt::StringLiterals;

QString osVersionText()
{
    OSVERSIONINFOEXW info{};
    info.dwOSVersionInfoSize = sizeof(info);
    GetVersionExW(reinterpret_cast<OSVERSIONINFOW *>(&info));
    const QString product = info.wProductType == VER_NT_WORKSTATION ? u"Workstation"_s : u"Server"_s;
    return u"%1.%2 - "_s.arg(info.dwMajorVersion).arg(info.dwMinorVersion) + product;
}
