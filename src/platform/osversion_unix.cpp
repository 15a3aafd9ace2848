// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/osversion.h"

#include <sys/utsname.h>

QString osVersionText()
{
    utsname names{};
    if (uname(&names) != 0)
        return {};
    return QString::fromLocal8Bit(names.sysname) + u' ' + QString::fromLocal8Bit(names.release);
}
