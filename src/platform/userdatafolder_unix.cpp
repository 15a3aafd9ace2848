// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/userdatafolder.h"

#include <QDir>
#include <QStandardPaths>

QString userDataFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return folder.isEmpty() ? folder : QDir(folder).path();
}
