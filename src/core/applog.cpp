// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/applog.h"

#include "core/datapaths.h"
#include "core/settingsstore.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMutex>
#include <QThread>
#include <QTime>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

Q_GLOBAL_STATIC(QMutex, logMutex)
AppLog *theLog = nullptr;

QString timeStamp()
{
    const QString systemFormat = QLocale::system().timeFormat(QLocale::LongFormat);
    const bool twelveHours = systemFormat.contains("AP"_L1, Qt::CaseInsensitive);
    return QTime::currentTime().toString(twelveHours ? u"hh:mm:ss AP"_s : u"hh:mm:ss"_s);
}

void logMessage(QString message)
{
    // Deliberate: the default differs from the one that the log dock's check box shows.
    if (SettingsStore::instance()->value(SettingKey::LogIncludeDebugInfo, true).toBool())
        AppLog::instance()->append(message.remove(u'"'));
}

void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    QCoreApplication *application = QCoreApplication::instance();
    if (type != QtFatalMsg && application && QThread::currentThread() != application->thread())
        QMetaObject::invokeMethod(
            application, [message] { logMessage(message); }, Qt::QueuedConnection);
    else
        logMessage(message);
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

AppLog *AppLog::instance()
{
    const QMutexLocker locker(logMutex());
    if (!theLog)
        theLog = new AppLog;
    return theLog;
}

void AppLog::destroy()
{
    const QMutexLocker locker(logMutex());
    if (theLog) {
        theLog->close();
        delete theLog;
        theLog = nullptr;
    }
}

void AppLog::append(QString text)
{
    text.prepend(timeStamp() + u'|');
    if (saveToFile) {
        if (!file.isOpen())
            openFile();
        if (file.isOpen()) {
            text += u'\n';
            file.write(text.toLatin1());
        }
    }
    pending.append(text);
}

void AppLog::openFile()
{
    const QString folder = dataDirectory() + "/logs/"_L1;
    if (!QDir(folder).exists())
        QDir().mkdir(folder);
    file.setFileName(folder + QDate::currentDate().toString(u"yyyy-MM-dd"_s) + ".txt"_L1);
    // Opening a pipe would wait for whoever reads from it, and a link leads to a file that is not the log's.
    const QFileInfo there(file);
    if (there.isSymLink() || (there.exists() && !there.isFile()))
        return;
    file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text | QIODevice::Unbuffered);
}

QStringList AppLog::pendingLines() const
{
    return pending;
}

void AppLog::clearPending()
{
    pending.clear();
}

void AppLog::setSaveToFile(bool save)
{
    saveToFile = save;
}

void AppLog::close()
{
    // Flushing a file that was never opened sends a warning, which would come back here through the handler.
    if (!file.isOpen())
        return;
    file.flush();
    file.close();
}

void installLogMessageHandler()
{
    qInstallMessageHandler(handleMessage);
}
