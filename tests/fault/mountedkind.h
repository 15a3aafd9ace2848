// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QStringList>

/// The file systems that mounted.py can mount.
enum MountedKind {
    Ext4 = 1,
    Tmpfs = 2,
    /// Ignores case; knows hard links, no rename without replacing.
    Ntfs = 4,
    /// Ignores case; knows neither, and gives each spelling of a name a number of its own.
    Exfat = 8,
    /// Ignores case.
    Vfat = 16,
    /// Ext4; ignores case and how accents are composed.
    Casefold = 32
};
constexpr int sensitive = Ext4 | Tmpfs;
constexpr int insensitive = Ntfs | Exfat | Vfat | Casefold;
constexpr int all = sensitive | insensitive;
constexpr int none = 0;

/// That of $ORVANTO_MOUNT; none where mounted.py did not run the test.
inline int mountedKind()
{
    const QMap<QString, int> kinds = {{QStringLiteral("ext4"), Ext4}, {QStringLiteral("tmpfs"), Tmpfs},
                                      {QStringLiteral("ntfs"), Ntfs}, {QStringLiteral("exfat"), Exfat},
                                      {QStringLiteral("vfat"), Vfat}, {QStringLiteral("casefold"), Casefold}};
    return kinds.value(qEnvironmentVariable("ORVANTO_MOUNT_KIND"), none);
}

/// The names in a folder of a mounted NTFS as they are on the disk itself: the driver shows all in lower
/// case. The copy of the disk's image is made.
inline QStringList namesOnNtfs(const QString &folder, const QString &copy)
{
    QFile::remove(copy);
    QFile::copy(qEnvironmentVariable("ORVANTO_MOUNT_IMAGE"), copy);
    QProcess ntfsls;
    ntfsls.start(QStringLiteral("ntfsls"),
                 {QStringLiteral("-f"), QStringLiteral("-p"),
                  folder.sliced(qEnvironmentVariable("ORVANTO_MOUNT").size()), copy});
    if (!ntfsls.waitForFinished())
        qFatal("ntfsls: %s", qPrintable(ntfsls.errorString()));
    QStringList names = QString::fromUtf8(ntfsls.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    names.removeAll(QStringLiteral("."));
    names.removeAll(QStringLiteral(".."));
    names.sort();
    return names;
}
