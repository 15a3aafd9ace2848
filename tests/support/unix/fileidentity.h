// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

/// Which file a path leads to, links not followed; all zero when there is none.
struct SeenFile
{
    quint64 volume = 0;
    quint64 file = 0;
    quint32 mode = 0;
};

inline SeenFile identityOf(const QString &path)
{
    struct stat result
    {
    };
    if (lstat(QFile::encodeName(path).constData(), &result) != 0)
        return {};
    return {result.st_dev, result.st_ino, result.st_mode};
}

/// A second name of the same file.
inline bool makeHardLink(const QString &file, const QString &name)
{
    return ::link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()) == 0;
}

inline bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

inline bool isPipe(const QString &path)
{
    return S_ISFIFO(identityOf(path).mode);
}
