// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/pathlength.h"

#include <QFile>

#include <climits>

bool isPathTooLong(const QString &path)
{
    // With the zero at its end.
    return QFile::encodeName(path).size() >= PATH_MAX;
}
