// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/datadirectory.h"

#include "platform/userdatafolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

bool isPortable(const QString &applicationDirectory)
{
    return QFile::exists(applicationDirectory + "/portable"_L1) ||
           QFile::exists(applicationDirectory + "/portable.txt"_L1);
}

/// Deliberate: the test is exactly open, then remove; a read-only file in the way fails it.
bool isWritable(const QString &directory)
{
    QFile probe(directory + "/writable"_L1);
    if (!probe.open(QIODevice::WriteOnly))
        return false;
    probe.close();
    return QFile::remove(probe.fileName());
}

QString installedDataDirectory()
{
    QString directory = userDataFolder() + u"/%1/%2"_s.arg(QCoreApplication::organizationName(),
                                                           QCoreApplication::applicationName());
    if (!QDir(directory).exists())
        QDir().mkpath(directory);
    return directory;
}

} // namespace

bool setupDataDirectory()
{
    const QString applicationDirectory = QCoreApplication::applicationDirPath();
    if (!isPortable(applicationDirectory)) {
        QDir::setCurrent(installedDataDirectory());
        return true;
    }
    if (!isWritable(applicationDirectory))
        throw "You must have write permission to the application directory for portable use.";
    QDir::setCurrent(applicationDirectory);
    return true;
}
