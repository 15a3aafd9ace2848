// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/userdatafolder.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString userDataFolder()
{
    const QString named = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // A relative one counts as none: it would lie wherever the program was started from.
    const QString folder = QDir::isAbsolutePath(named) ? named : QDir::homePath() + "/.local/share"_L1;
    return QDir::isAbsolutePath(folder) ? QDir::cleanPath(folder) : QString();
}
