// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/datapaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

Q_GLOBAL_STATIC(QString, otherDirectory)

/// Deliberate: the test is exactly open, then remove; a read-only file in the way fails it.
bool isWritable(const QString &directory)
{
    QFile probe(directory + "/writable"_L1);
    if (!probe.open(QIODevice::WriteOnly))
        return false;
    probe.close();
    return QFile::remove(probe.fileName());
}

} // namespace

DataDirectory chooseDataDirectory(const QString &userDataFolder)
{
    const QString program = QCoreApplication::applicationDirPath();
    if (QFile::exists(program + "/portable"_L1) || QFile::exists(program + "/portable.txt"_L1))
        return {program, true};
    return {userDataFolder +
            u"/%1/%2"_s.arg(QCoreApplication::organizationName(), QCoreApplication::applicationName())};
}

bool makeDataDirectory(const DataDirectory &directory)
{
    if (directory.isPortable)
        return isWritable(directory.path);
    if (!QDir(directory.path).exists())
        QDir().mkpath(directory.path);
    return true;
}

QString dataDirectory()
{
    return otherDirectory->isEmpty() ? QDir::current().path() : *otherDirectory;
}

void useDataDirectory(const QString &path)
{
    *otherDirectory = path;
}
