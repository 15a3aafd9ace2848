// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/application.h"
#include "core/applog.h"
#include "core/settingsstore.h"
#include "dialogs/dialogstart.h"
#include "mainwindow/mainwindow.h"
#include "support/temptree.h"
#include "support/toplevel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// Goes on through the first-start dialog, should it be there.
void passFirstStart(QTimer &timer)
{
    QObject::connect(&timer, &QTimer::timeout, &timer, [] {
        if (auto *dialog = topLevel<DialogStart>(); dialog && dialog->isVisible())
            dialog->findChild<QPushButton *>(u"buttonNext"_s)->click();
    });
    timer.start(1);
}

/// What a child does in the middle of its start, while it looks for its languages.
void meanwhile(const QByteArray &what)
{
    if (what == "crash")
        std::abort();
    if (what == "terminated")
        std::raise(SIGTERM);
    if (what == "held") {
        std::puts("held");
        std::fflush(stdout);
        // Until the test closes it.
        while (std::getchar() != EOF) {
        }
    }
}

/// What a child of the test does: starts the whole program, uses it a little and tells what came of it.
int start(int argc, char **argv)
{
    Application application(argc, argv);
    QMetaObject::invokeMethod(
        &application, [what = QByteArray(argv[2])] { meanwhile(what); }, Qt::QueuedConnection);
    QTimer timer;
    passFirstStart(timer);
    application.init();
    if (qstrcmp(argv[2], "crash later") == 0)
        std::abort();
    auto *window = topLevel<MainWindow>();
    SettingsStore *settings = SettingsStore::instance();
    AppLog::instance()->setSaveToFile(true);
    AppLog::instance()->append(u"written"_s);
    window->findChild<QToolButton *>(u"toolButtonOpenLogDir"_s)->click();
    settings->save();
    const QJsonObject told{
        {u"rename"_s, window->findChild<QPushButton *>(u"buttonRename"_s)->text()},
        {u"opacity"_s, settings->value(SettingKey::WindowOpacity, 0).toString()},
        {u"language"_s, settings->value(SettingKey::MiscLanguage, u"none"_s).toString()},
        {u"libraryPaths"_s, QJsonArray::fromStringList(QCoreApplication::libraryPaths())},
        {u"log"_s, QJsonArray::fromStringList(AppLog::instance()->pendingLines())},
    };
    std::puts(QJsonDocument(told).toJson(QJsonDocument::Compact).constData());
    return 0;
}

} // namespace

/// The program's start as a process of its own, in surroundings that are not as they should be.
class TestStart final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { folder.reset(); }
    void pluginsBesideTheProgramAreFound();
    void launchFolderIsLeftAloneWithoutADataFolder_data();
    void launchFolderIsLeftAloneWithoutADataFolder();
    void afterACrashTheNextStartIsInEnglish();
    void afterACrashedFirstStartTheNextIsInEnglish();
    void crashOnceTheWindowWasShownIsAnotherMatter();
    void otherInstanceThatStartsIsNoCrash();
    void endWhileItStartsIsNoCrash();

private:
    /// Starts a child with this XDG_DATA_HOME, in the launch folder.
    void launch(QProcess &process, const QString &dataHome, const QString &what = u"nothing"_s) const;
    /// What it told; nothing unless it ended well.
    static QJsonObject toldBy(QProcess &process);
    QJsonObject toldWith(const QString &dataHome, const QString &what = u"nothing"_s) const
    {
        QProcess process;
        launch(process, dataHome, what);
        return toldBy(process);
    }
    void crash(const QString &what) const
    {
        QProcess process;
        launch(process, data(), what);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    }
    /// German settings of a program that was started before.
    void makeSettings() const
    {
        QVERIFY(QDir().mkpath(u"data/Kavrondel/Orvanto/config"_s) && QDir().mkpath(u"launch"_s));
        QVERIFY(writeFile(
            u"data/Kavrondel/Orvanto/config/global.xml"_s,
            "<Settings><Misc><Language>de_DE</Language><DisableSplashScreen>true</DisableSplashScreen>"
            "<IsFirstStart>false</IsFirstStart></Misc></Settings>"));
    }
    [[nodiscard]] QString data() const { return folder->path(u"data"_s); }
    [[nodiscard]] QStringList configFolder() const
    {
        return entriesOf(data() + u"/Kavrondel/Orvanto/config");
    }
    static QStringList logOf(const QJsonObject &told)
    {
        QStringList texts;
        const QJsonArray lines = told.value("log"_L1).toArray();
        for (const QJsonValue &line : lines)
            texts.append(line.toString().section(u'|', 1));
        return texts;
    }

    std::unique_ptr<TestFolder> folder;
    QString locale;
};

void TestStart::initTestCase()
{
    // The program looks for its languages and plug-ins beside itself; Qt knows folders only that are there.
    const QString program = QCoreApplication::applicationDirPath();
    const QString languages = program + u"/locale";
    QVERIFY(QDir().mkpath(languages) && QDir().mkpath(program + u"/plugins"));
    QFile::remove(languages + u"/orvanto-de_DE.qm");
    QVERIFY(QFile::copy(QStringLiteral(LOCALE_FOLDER "/orvanto-de_DE.qm"), languages + u"/orvanto-de_DE.qm"));
}

void TestStart::init()
{
    locale = u"C.UTF-8"_s;
    folder = std::make_unique<TestFolder>();
}

void TestStart::launch(QProcess &process, const QString &dataHome, const QString &what) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, dataHome);
    environment.insert(u"LC_ALL"_s, locale);
    environment.insert(u"HOME"_s, folder->path(u"taken"_s));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder->path(u"launch"_s));
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {u"--start"_s, what});
}

QJsonObject TestStart::toldBy(QProcess &process)
{
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return {};
    return QJsonDocument::fromJson(process.readAllStandardOutput().split('\n').value(0)).object();
}

void TestStart::pluginsBesideTheProgramAreFound()
{
    makeSettings();
    const QJsonArray paths = toldWith(data()).value("libraryPaths"_L1).toArray();
    QVERIFY(paths.contains(QDir(QCoreApplication::applicationDirPath() + u"/plugins").canonicalPath()));
}

void TestStart::launchFolderIsLeftAloneWithoutADataFolder_data()
{
    QTest::addColumn<QString>("dataHome");
    QTest::addColumn<QString>("expected");

    QTest::newRow("a file is in its way") << u"%1/taken"_s << u"%1/taken"_s;
    QTest::newRow("a file is in the way of a parent") << u"%1/taken/deep/er"_s << u"%1/taken/deep/er"_s;
    QTest::newRow("relative") << u"./here"_s << u"%1/taken/.local/share"_s;
}

// Whoever runs the program may not have made the folder that it is started from.
void TestStart::launchFolderIsLeftAloneWithoutADataFolder()
{
    QFETCH(QString, dataHome);
    QFETCH(QString, expected);
    QVERIFY(QDir().mkpath(u"launch/config"_s));
    QVERIFY(writeFile(u"taken"_s, "in the way"));
    const QByteArray foreign = "<Settings><Window><Opacity>0.5</Opacity></Window></Settings>";
    QVERIFY(writeFile(u"launch/config/global.xml"_s, foreign));

    const auto within = [this](const QString &path) {
        return path.contains(u"%1"_s) ? path.arg(folder->path()) : path;
    };
    const QJsonObject told = toldWith(within(dataHome));
    // Of the defaults, not of the file in the launch folder.
    QCOMPARE(told.value("opacity"_L1).toString(), u"1"_s);
    const QString settings = within(expected) + u"/Kavrondel/Orvanto/config/global.xml";
    QCOMPARE(logOf(told).value(logOf(told).size() - 1), u"could not save: "_s + settings);
    QVERIFY(logOf(told).contains(u"written"_s));

    QCOMPARE(readFile(u"launch/config/global.xml"_s), foreign);
    QCOMPARE(entriesOf(u"launch"_s), QStringList(u"config"_s));
    QCOMPARE(entriesOf(u"launch/config"_s), QStringList(u"global.xml"_s));
    QCOMPARE(entriesOf(folder->path()), (QStringList{u"launch"_s, u"taken"_s}));
    QCOMPARE(readFile(u"taken"_s), "in the way");
}

void TestStart::afterACrashTheNextStartIsInEnglish()
{
    makeSettings();
    QCOMPARE(toldWith(data()).value("rename"_L1).toString(), u"Umbenennen"_s);
    crash(u"crash"_s);

    const auto line = u"The last start crashed before the window was shown: starting in English"_s;
    const QJsonObject english = toldWith(data());
    QCOMPARE(english.value("rename"_L1).toString(), u"Rename"_s);
    QCOMPARE(english.value("language"_L1).toString(), u"de_DE"_s);
    QCOMPARE(logOf(english).count(line), 1);
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));

    const QJsonObject german = toldWith(data());
    QCOMPARE(german.value("rename"_L1).toString(), u"Umbenennen"_s);
    QCOMPARE(logOf(german).count(line), 0);
}

// Its dialog would install the system's language again.
void TestStart::afterACrashedFirstStartTheNextIsInEnglish()
{
    locale = u"de_DE.UTF-8"_s;
    QVERIFY(QDir().mkdir(u"launch"_s));
    QCOMPARE(toldWith(data()).value("rename"_L1).toString(), u"Umbenennen"_s);
    QVERIFY(QFile::remove(data() + u"/Kavrondel/Orvanto/config/global.xml"));
    crash(u"crash"_s);
    QCOMPARE(toldWith(data()).value("rename"_L1).toString(), u"Rename"_s);
}

void TestStart::crashOnceTheWindowWasShownIsAnotherMatter()
{
    makeSettings();
    crash(u"crash later"_s);
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
    QCOMPARE(toldWith(data()).value("rename"_L1).toString(), u"Umbenennen"_s);
}

void TestStart::otherInstanceThatStartsIsNoCrash()
{
    makeSettings();
    QProcess held;
    launch(held, data(), u"held"_s);
    QTRY_VERIFY_WITH_TIMEOUT(held.bytesAvailable() > 0, 60000);
    QCOMPARE(held.readLine(), "held\n");
    QCOMPARE(configFolder(), (QStringList{u"global.xml"_s, u"starting"_s}));

    QCOMPARE(toldWith(data()).value("rename"_L1).toString(), u"Umbenennen"_s);
    QCOMPARE(configFolder(), (QStringList{u"global.xml"_s, u"starting"_s}));
    held.closeWriteChannel();
    QCOMPARE(toldBy(held).value("rename"_L1).toString(), u"Umbenennen"_s);
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
}

void TestStart::endWhileItStartsIsNoCrash()
{
    makeSettings();
    QVERIFY(!toldWith(data(), u"terminated"_s).isEmpty());
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
    QCOMPARE(toldWith(data()).value("rename"_L1).toString(), u"Umbenennen"_s);
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--start") == 0)
        return start(argc, argv);
    QCoreApplication application(argc, argv);
    TestStart test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_start.moc"
