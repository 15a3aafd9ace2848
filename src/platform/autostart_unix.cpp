// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/autostart.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxEntrySize = 65536;

QString autoStartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart"_L1;
}

QString entryPath()
{
    // Deliberate: the entry keeps this fixed name, whatever the program is called.
    return autoStartFolder() + "/Pendulix Basic.desktop"_L1;
}

/// The general escapes of a desktop entry's string values, for texts that begin with no blank.
QString escapedValue(QString text)
{
    return text.replace(u'\\', "\\\\"_L1)
        .replace(u'\n', "\\n"_L1)
        .replace(u'\t', "\\t"_L1)
        .replace(u'\r', "\\r"_L1);
}

/// The value of a key of the group "Desktop Entry" as it stands in the file, escapes and all.
QString rawValue(const QStringList &lines, QLatin1StringView key)
{
    bool isInGroup = false;
    for (const QString &line : lines) {
        if (line.startsWith(u'['))
            isInGroup = line.trimmed() == "[Desktop Entry]"_L1;
        const qsizetype separator = line.indexOf(u'=');
        if (isInGroup && separator > 0 && line.left(separator).trimmed() == key)
            return line.sliced(separator + 1).trimmed();
    }
    return {};
}

} // namespace

QString autoStartCommand(const QString &programPath)
{
    QString argument;
    for (const QChar character : programPath) {
        if (u"\"`$\\"_s.contains(character))
            argument += u'\\';
        argument += character;
    }
    // A single percent sign would begin a field code, inside quotes too.
    argument.replace(u'%', "%%"_L1);
    return escapedValue(u'"' + argument + "\" -auto"_L1);
}

bool isAutoStartEnabled()
{
    QFile file(entryPath());
    // Opening a pipe in the entry's place would wait for its other end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QStringList lines = QString::fromUtf8(file.read(maxEntrySize)).split(u'\n');
    const bool isHidden = rawValue(lines, "Hidden"_L1) == "true"_L1;
    const QString command = autoStartCommand(QCoreApplication::applicationFilePath());
    return !isHidden && rawValue(lines, "Exec"_L1).compare(command, Qt::CaseInsensitive) == 0;
}

bool setAutoStart(bool enabled)
{
    const QString path = entryPath();
    if (!enabled)
        return QFile::remove(path);
    // A folder that cannot be made shows when the file is opened.
    QDir().mkpath(autoStartFolder());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QString text = "[Desktop Entry]\nType=Application\nName="_L1 +
                         escapedValue(QCoreApplication::applicationName()) + "\nExec="_L1 +
                         autoStartCommand(QCoreApplication::applicationFilePath()) + u'\n';
    file.write(text.toUtf8());
    // Committing alone does not notice when the disk is full.
    return file.flush() && file.commit();
}
