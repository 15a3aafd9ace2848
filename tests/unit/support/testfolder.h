// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// A temporary folder that is the current directory for as long as it exists.
class TestFolder final
{
public:
    TestFolder() { QDir::setCurrent(folder.path()); }
    ~TestFolder() { QDir::setCurrent(previous); }
    Q_DISABLE_COPY_MOVE(TestFolder)

    [[nodiscard]] QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? folder.path() : folder.filePath(name);
    }

private:
    QString previous = QDir::currentPath();
    QTemporaryDir folder;
};

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The content; "(cannot be read)" for what is no readable file.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

/// Everything in the folder, hidden entries and dangling links too, by name.
inline QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

/// Takes over Qt's message channel and keeps what arrives.
class MessageCatcher final
{
public:
    MessageCatcher()
        : previous(qInstallMessageHandler(&MessageCatcher::take))
    {
        caught().clear();
    }
    ~MessageCatcher() { qInstallMessageHandler(previous); }
    Q_DISABLE_COPY_MOVE(MessageCatcher)

    [[nodiscard]] static QStringList messages() { return caught(); }

private:
    static QStringList &caught()
    {
        static QStringList list;
        return list;
    }
    static void take(QtMsgType, const QMessageLogContext &, const QString &text) { caught().append(text); }

    QtMessageHandler previous;
};
