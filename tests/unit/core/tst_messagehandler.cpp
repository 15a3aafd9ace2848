// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/applog.h"
#include "core/settingsstore.h"
#include "support/temptree.h"

#include <QDebug>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The message handler of the program, until the end of the block.
class LoggedMessages final
{
public:
    LoggedMessages()
        : previous(qInstallMessageHandler(nullptr))
    {
        installLogMessageHandler();
    }
    ~LoggedMessages() { qInstallMessageHandler(previous); }
    Q_DISABLE_COPY_MOVE(LoggedMessages)

private:
    QtMessageHandler previous;
};

QStringList takeTexts()
{
    QStringList texts;
    const QStringList lines = AppLog::instance()->pendingLines();
    for (const QString &line : lines)
        texts.append(line.section(u'|', 1));
    AppLog::instance()->clearPending();
    return texts;
}

/// What this executable does instead of testing when its first argument names it.
int playRole(const QString &role)
{
    if (role == u"stamp"_s) {
        AppLog::instance()->append(QLocale::system().timeFormat(QLocale::LongFormat));
        std::fputs(AppLog::instance()->pendingLines().constFirst().toUtf8().constData(), stdout);
        return 0;
    }
    SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, role != u"fatal-unlogged"_s);
    AppLog::instance()->setSaveToFile(role != u"shutdown"_s);
    installLogMessageHandler();
    if (role == u"shutdown"_s) {
        AppLog::destroy();
        SettingsStore::destroy();
        std::fputs("ended", stdout);
        return 0;
    }
    qWarning("a \"warning\"");
    qCritical("a \"critical\" message");
    qFatal("the \"last\" message");
}

} // namespace

class TestMessageHandler final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void messagesReachTheLogUnlessSwitchedOff();
    void switchedOffMessagesStayOut();
    void theSwitchIsReadForEveryMessage();
    void messagesOfEveryKindReachTheLog();
    void doubleQuotesAreRemoved();
    void messagesOfOtherThreadsComeByTheEventLoop();
    void failedSaveReachesTheLog();
    void fatalMessageIsWrittenAndEndsTheProcess();
    void fatalMessageEndsTheProcessEvenIfNotLogged();
    void shutdownWithoutALogFileComesToItsEnd();
    void stampsFollowTheTimeFormatOfTheSystem_data();
    void stampsFollowTheTimeFormatOfTheSystem();

private:
    static bool run(QProcess &process, const QString &role)
    {
        process.start(QCoreApplication::applicationFilePath(), {u"--role"_s, role});
        return process.waitForFinished(60000);
    }
    [[nodiscard]] QByteArray logged() const
    {
        const QStringList files = entriesOf(folder->path(u"logs"_s));
        return files.isEmpty() ? QByteArray() : readFile(folder->path(u"logs/"_s + files.first()));
    }

    std::unique_ptr<TestFolder> folder;
};

void TestMessageHandler::init()
{
    folder = std::make_unique<TestFolder>();
}

void TestMessageHandler::cleanup()
{
    AppLog::destroy();
    SettingsStore::destroy();
    folder.reset();
}

// Deliberate: nothing stored means yes here, while the log dock's check box shows it as off.
void TestMessageHandler::messagesReachTheLogUnlessSwitchedOff()
{
    {
        const LoggedMessages handler;
        qDebug("one");
        SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, true);
        qDebug("two");
    }
    QCOMPARE(takeTexts(), (QStringList{u"one"_s, u"two"_s}));
}

void TestMessageHandler::switchedOffMessagesStayOut()
{
    SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, false);
    {
        const LoggedMessages handler;
        qDebug("debug");
        qWarning("warning");
        AppLog::instance()->append(u"File renaming started"_s);
        qCritical("critical");
    }
    QCOMPARE(takeTexts(), QStringList(u"File renaming started"_s));
}

void TestMessageHandler::theSwitchIsReadForEveryMessage()
{
    {
        const LoggedMessages handler;
        for (const bool include : {true, false, true}) {
            SettingsStore::instance()->setValue(SettingKey::LogIncludeDebugInfo, include);
            qDebug() << include;
        }
    }
    QCOMPARE(takeTexts(), (QStringList{u"true"_s, u"true"_s}));
}

void TestMessageHandler::messagesOfEveryKindReachTheLog()
{
    {
        const LoggedMessages handler;
        qDebug("debug");
        qInfo("info");
        qWarning("warning");
        qCritical("critical");
    }
    QCOMPARE(takeTexts(), (QStringList{u"debug"_s, u"info"_s, u"warning"_s, u"critical"_s}));
}

void TestMessageHandler::doubleQuotesAreRemoved()
{
    {
        const LoggedMessages handler;
        qDebug() << "path" << u"/tmp/a b"_s << u"Ж"_s;
        qDebug("\"\"a\"b\"'c'|\"");
        qDebug("\"");
    }
    QCOMPARE(takeTexts(), (QStringList{u"path /tmp/a b Ж"_s, u"ab'c'|"_s, u""_s}));
}

void TestMessageHandler::messagesOfOtherThreadsComeByTheEventLoop()
{
    QStringList before;
    QStringList after;
    {
        const LoggedMessages handler;
        const std::unique_ptr<QThread> thread(QThread::create([] { qDebug("from \"elsewhere\""); }));
        thread->start();
        QVERIFY(thread->wait());
        before = takeTexts();
        QCoreApplication::processEvents();
        after = takeTexts();
    }
    QCOMPARE(before, QStringList());
    QCOMPARE(after, QStringList(u"from elsewhere"_s));
}

void TestMessageHandler::failedSaveReachesTheLog()
{
    // Some quote texts, and put backslashes before the quotes in them.
    QVERIFY(QDir().mkdir(u"a \"quoted\" name"_s));
    SettingsStore::instance()->setFilePath(folder->path(u"a \"quoted\" name"_s));
    {
        const LoggedMessages handler;
        SettingsStore::instance()->save();
    }
    QCOMPARE(takeTexts(), QStringList(u"could not save: "_s + folder->path(u"a quoted name"_s)));
}

void TestMessageHandler::fatalMessageIsWrittenAndEndsTheProcess()
{
    QProcess process;
    QVERIFY(run(process, u"fatal"_s));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGABRT);
    static const QRegularExpression form(
        u"^[^|]+\\|a warning\n[^|]+\\|a critical message\n[^|]+\\|the last message\n$"_s);
    QVERIFY2(form.match(QString::fromLatin1(logged())).hasMatch(), logged().constData());
}

void TestMessageHandler::fatalMessageEndsTheProcessEvenIfNotLogged()
{
    QProcess process;
    QVERIFY(run(process, u"fatal-unlogged"_s));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGABRT);
    QCOMPARE(logged(), QByteArray());
}

// Closing a file that was never opened once sent a warning, which waited for the log that was being deleted.
void TestMessageHandler::shutdownWithoutALogFileComesToItsEnd()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {u"--role"_s, u"shutdown"_s});
    const bool finished = process.waitForFinished(20000);
    if (!finished) {
        process.kill();
        process.waitForFinished();
    }
    QVERIFY(finished);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardOutput(), "ended");
}

void TestMessageHandler::stampsFollowTheTimeFormatOfTheSystem_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("twelveHours");

    QTest::newRow("United States") << u"en_US.UTF-8"_s << true;
    QTest::newRow("Korea, the marker comes first") << u"ko_KR.UTF-8"_s << true;
    QTest::newRow("Germany") << u"de_DE.UTF-8"_s << false;
    QTest::newRow("United Kingdom") << u"en_GB.UTF-8"_s << false;
    QTest::newRow("none") << u"C"_s << false;
}

void TestMessageHandler::stampsFollowTheTimeFormatOfTheSystem()
{
    QFETCH(QString, locale);
    QFETCH(bool, twelveHours);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, locale);
    QProcess process;
    process.setProcessEnvironment(environment);
    QVERIFY(run(process, u"stamp"_s));
    const QString line = QString::fromUtf8(process.readAllStandardOutput());
    const QString format = line.section(u'|', 1);
    QVERIFY2(format.contains(u"ap"_s, Qt::CaseInsensitive) == twelveHours, qPrintable(line));
    static const QRegularExpression twelve(u"^(0[1-9]|1[0-2]):[0-5][0-9]:[0-5][0-9] (AM|PM)$"_s);
    static const QRegularExpression twentyFour(u"^([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]$"_s);
    QVERIFY2((twelveHours ? twelve : twentyFour).match(line.section(u'|', 0, 0)).hasMatch(),
             qPrintable(line));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--role"_s)
        return playRole(arguments.value(2));
    TestMessageHandler test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_messagehandler.moc"
