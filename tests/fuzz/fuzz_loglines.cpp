// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/applog.h"
#include "core/settingsstore.h"
#include "fuzztarget.h"
#include "mainwindow/mainwindow.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

MainWindow *window = nullptr;
constexpr int mostRows = 99;

QString logFile()
{
    return u"logs/%1.txt"_s.arg(QDate::currentDate().toString(u"yyyy-MM-dd"_s));
}

QByteArray fileContent()
{
    QFile file(logFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every text is one line of the log, with its stamp before it, and nothing of it is lost.
void verifyPending(const QStringList &texts, bool isSaved)
{
    static const QRegularExpression stamp(u"^\\d\\d:\\d\\d:\\d\\d( [AP]M)?$"_s);
    const QStringList lines = AppLog::instance()->pendingLines();
    FUZZ_VERIFY(lines.size() == texts.size(), lines.join(u'/'));
    QByteArray expectedFile;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const qsizetype bar = lines.at(i).indexOf(u'|');
        FUZZ_VERIFY(stamp.match(lines.at(i).left(bar)).hasMatch(), lines.at(i));
        FUZZ_VERIFY(lines.at(i).mid(bar + 1) == texts.at(i) + (isSaved ? u"\n"_s : QString()), lines.at(i));
        expectedFile += lines.at(i).toLatin1();
    }
    FUZZ_VERIFY(fileContent() == (isSaved ? expectedFile : QByteArray()), lines.join(u'/'));
}

/// The newest is on top, and every line has one row, with its text up to the second bar.
void verifyTable(const QStringList &lines)
{
    auto *table = window->findChild<QTableWidget *>(u"tableWidgetLog"_s);
    table->setRowCount(0);
    window->onTimeout();
    FUZZ_VERIFY(AppLog::instance()->pendingLines().isEmpty(), lines.join(u'/'));
    FUZZ_VERIFY(table->rowCount() == std::min<qsizetype>(lines.size(), mostRows), lines.join(u'/'));
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString &line = lines.at(lines.size() - 1 - row);
        FUZZ_VERIFY(table->item(row, 0)->text() == line.section(u'|', 0, 0), line);
        FUZZ_VERIFY(table->item(row, 1)->text() == line.section(u'|', 1, 1), line);
    }
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    SettingsStore::instance()->setValue(SettingKey::VersionCheckAuto, false);
    // Never deleted: libFuzzer ends the process without leaving main().
    window = new MainWindow(Qt::Window);
    window->initialize();
    const auto timers = window->findChildren<QTimer *>(Qt::FindDirectChildrenOnly);
    for (QTimer *timer : timers)
        timer->stop();
    return 0;
}

/// One byte chooses the output, one how the lines get there; then each line is a text.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool isSaved = input.flag();
    const bool isByMessage = input.flag();
    AppLog::destroy();
    QFile::remove(logFile());
    AppLog::instance()->setSaveToFile(isSaved);
    QStringList texts;
    while (!input.isEmpty() && texts.size() < 120) {
        // A control character stands for the newline within a text.
        QString text = input.line().replace(QChar(2), u'\n');
        if (isByMessage) {
            installLogMessageHandler();
            qDebug().noquote().nospace() << text;
            qInstallMessageHandler(nullptr);
            text.remove(u'"');
        } else {
            AppLog::instance()->append(text);
        }
        texts += text;
    }
    verifyPending(texts, isSaved);
    verifyTable(AppLog::instance()->pendingLines());
    return 0;
}
