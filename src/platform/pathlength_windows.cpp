// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/pathlength.h"

#include <QString>

bool isPathTooLong(const QString &path)
{
    // In UTF-16, with the zero at its end, and after the prefix \\?\ that Qt puts before long paths, or
    // \\?\UNC of a network share.
    constexpr qsizetype longest = 32767 - 1 - 8;
    return path.size() > longest;
}
