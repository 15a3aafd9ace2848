// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "memoryfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The content; "(cannot be read)" for what is no readable file.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(cannot be read)");
}

/// Everything directly in the folder, hidden entries and dangling links too, by name.
inline QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

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

    [[nodiscard]] QStringList names(const QString &name = {}) const { return entriesOf(path(name)); }
    [[nodiscard]] QByteArray content(const QString &name) const { return readFile(path(name)); }

private:
    /// In memory where there is such a place; who names a folder for temporary files means it.
    static QString base()
    {
        const QString memory = memoryFolder();
        const bool isNamed = qEnvironmentVariableIsSet("TMPDIR");
        return !isNamed && QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    }

    QTemporaryDir folder;
};

/// A tree that is the current directory for as long as it exists.
class TestFolder final : public TempTree
{
public:
    TestFolder() { QDir::setCurrent(path()); }
    ~TestFolder() { QDir::setCurrent(previous); }
    Q_DISABLE_COPY_MOVE(TestFolder)

private:
    QString previous = QDir::currentPath();
};
