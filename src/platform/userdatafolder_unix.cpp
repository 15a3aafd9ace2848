// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/userdatafolder.h"

#include <QDir>
#include <QStandardPaths>

QString userDataFolder()
{
    return QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}
