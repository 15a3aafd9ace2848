// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename_system.h"

#include <QFile>

#include <cstdio>

#include <fcntl.h>

std::optional<bool> renameWithoutReplacing(const QString &from, const QString &to)
{
#ifdef RENAME_NOREPLACE
    // The system would read a name up to its first null character only, and rename another file.
    if (from.contains(QChar::Null) || to.contains(QChar::Null))
        return std::nullopt;
    if (renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD, QFile::encodeName(to).constData(),
                  RENAME_NOREPLACE) == 0)
        return true;
    return std::nullopt;
#else
    Q_UNUSED(from)
    Q_UNUSED(to)
    return std::nullopt;
#endif
}
