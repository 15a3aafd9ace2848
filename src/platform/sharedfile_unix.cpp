// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/sharedfile.h"

#include <QFile>

bool openShared(QFile &file, QIODevice::OpenMode mode)
{
    return file.open(mode);
}

bool removeShared(const QString &path)
{
    return QFile::remove(path);
}
