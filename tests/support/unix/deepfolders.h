// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>

/// Makes a folder in the current one, which it becomes: no call takes a path beyond the longest.
inline bool makeAndEnter(const QString &name)
{
    return QDir().mkdir(name) && QDir::setCurrent(name);
}
