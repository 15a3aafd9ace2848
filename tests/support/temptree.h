// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

/// A folder tree of its own for a test, on a RAM disk where there is one; gone when the object goes. Names
/// are relative to its root.
class TempTree
{
public:
    TempTree()
        : folder(base() + QStringLiteral("/orvanto-test-XXXXXX"))
    {
        if (!folder.isValid())
            qFatal("no temporary folder: %s", qPrintable(folder.errorString()));
    }

    [[nodiscard]] QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? folder.path() : folder.path() + QLatin1Char('/') + name;
    }

    /// Makes the file and the folders above it; what is in it is its name unless told otherwise.
    QString addFile(const QString &name, const QByteArray &content = {}) const
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        QFile file(path(name));
        const QByteArray bytes = content.isNull() ? name.toUtf8() : content;
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot make %s", qPrintable(path(name)));
        return path(name);
    }

    /// Files named prefix0, prefix1 ..., with the numbers padded to equal width.
    QStringList addFiles(const QString &pattern, int count) const
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.append(addFile(pattern.arg(i, 3, 10, QLatin1Char('0'))));
        return paths;
    }

    QString addFolder(const QString &name) const
    {
        QDir().mkpath(path(name));
        return path(name);
    }

    /// A symbolic link with exactly this target, which need not exist.
    QString addLink(const QString &name, const QString &target) const
    {
        if (!QFile::link(target, path(name)))
            qFatal("cannot link %s", qPrintable(path(name)));
        return path(name);
    }

    /// Everything directly in a folder, sorted, hidden names and links included.
    [[nodiscard]] QStringList names(const QString &name = {}) const
    {
        return QDir(path(name))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    [[nodiscard]] QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(no such file)");
    }

private:
    /// In memory where there is such a place; who names a folder for temporary files means it.
    static QString base()
    {
        const QString memory = QStringLiteral("/dev/shm");
        const bool isNamed = qEnvironmentVariableIsSet("TMPDIR");
        return !isNamed && QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    }

    QTemporaryDir folder;
};
