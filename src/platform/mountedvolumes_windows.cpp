// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/mountedvolumes.h"

#include <QDir>

QStringList mountedVolumes()
{
    QStringList volumes;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo &drive : drives)
        volumes.append(drive.filePath());
    return volumes;
}
