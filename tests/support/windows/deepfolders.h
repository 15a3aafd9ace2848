// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>

/// Makes a folder in the current one, which it becomes, as far as Windows lets one in: to 260 characters.
inline bool makeAndEnter(const QString &name)
{
    constexpr qsizetype longest = 258; // with a separator and a null character behind it
    return QDir::currentPath().size() + 1 + name.size() <= longest && QDir().mkdir(name) &&
           QDir::setCurrent(name);
}
