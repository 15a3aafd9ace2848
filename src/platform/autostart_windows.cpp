// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/autostart.h"

#include <QCoreApplication>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

const auto runKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
// Deliberate: the value keeps this fixed name, whatever the program is called.
const auto valueName = u"Pendulix Basic"_s;

} // namespace

QString autoStartCommand(const QString &programPath)
{
    // Deliberate: the path is not quoted and the argument is written although nothing reads it.
    return QString(programPath).replace(u'/', u'\\') + " -auto"_L1;
}

bool isAutoStartEnabled()
{
    const QSettings run(runKey, QSettings::NativeFormat);
    const QString command = autoStartCommand(QCoreApplication::applicationFilePath());
    return run.contains(valueName) &&
           run.value(valueName).toString().compare(command, Qt::CaseInsensitive) == 0;
}

bool setAutoStart(bool enabled)
{
    QSettings run(runKey, QSettings::NativeFormat);
    if (enabled)
        run.setValue(valueName, autoStartCommand(QCoreApplication::applicationFilePath()));
    else
        run.remove(valueName);
    run.sync();
    return run.isWritable();
}
