// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/errorbox.h"
#include "desktop/shell.h"
#include "desktop/taskbar.h"
#include "platform/autostart.h"
#include "platform/filerename.h"
#include "platform/osversion.h"
#include "platform/sharedfile.h"
#include "platform/userdatafolder.h"
#include "support/temptree.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTest>

#include <windows.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

const auto runKey = u"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

/// Runs the system's registry program; what it printed.
QString reg(const QStringList &arguments)
{
    QProcess process;
    process.start(u"reg"_s, arguments);
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

/// The data of the value "Pendulix Basic" as the registry program shows it; null when there is none.
QString runValue()
{
    const QString shown = reg({u"query"_s, runKey, u"/v"_s, u"Pendulix Basic"_s});
    const QString type = u"REG_SZ"_s;
    return shown.contains(type) ? shown.section(type, 1).trimmed() : QString();
}

} // namespace

class TestSystemWindows final : public QObject
{
    Q_OBJECT

private slots:
    void init() { reg({u"delete"_s, runKey, u"/v"_s, u"Pendulix Basic"_s, u"/f"_s}); }
    void cleanup() { init(); }

    void userDataFolderIsTheRoamingOne()
    {
        const QString folder = userDataFolder();
        QCOMPARE(QDir::toNativeSeparators(folder), qEnvironmentVariable("APPDATA"));
        QVERIFY2(folder.endsWith("/AppData/Roaming"_L1), qPrintable(folder));
        QVERIFY(QDir(folder).exists());
    }

    void osVersionIsThatOfWindows10()
    {
        // Windows names itself 6.2 to programs whose manifest does not know it.
        QCOMPARE(osVersionText(), u"10.0 - Workstation"_s);
    }

    void autoStartCommandHasBackslashesAndNoQuotes()
    {
        QCOMPARE(autoStartCommand(u"C:/Program Files/Ж/orvanto.exe"_s),
                 u"C:\\Program Files\\Ж\\orvanto.exe -auto"_s);
    }

    void autoStartIsWrittenAndRemoved()
    {
        QVERIFY(!isAutoStartEnabled());
        QVERIFY(setAutoStart(true));
        const QString program = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
        QCOMPARE(runValue(), program + " -auto"_L1);
        QVERIFY(isAutoStartEnabled());
        QVERIFY(setAutoStart(false));
        QVERIFY(runValue().isNull());
        QVERIFY(!isAutoStartEnabled());
    }

    void autoStartComparesWithoutCase()
    {
        const QString command = autoStartCommand(QCoreApplication::applicationFilePath());
        for (const QString &data : {command.toUpper(), command.toLower()}) {
            reg({u"add"_s, runKey, u"/v"_s, u"Pendulix Basic"_s, u"/d"_s, data, u"/f"_s});
            QCOMPARE(runValue(), data);
            QVERIFY(isAutoStartEnabled());
        }
    }

    void autoStartOfAnotherProgramIsNotOurs()
    {
        reg({u"add"_s, runKey, u"/v"_s, u"Pendulix Basic"_s, u"/d"_s, u"C:\\orvanto.exe -auto"_s, u"/f"_s});
        QVERIFY(!isAutoStartEnabled());
    }

    void errorBoxHasNoOwnerAndReadsUtf8()
    {
        const QString title = u"Ж %1"_s.arg(QCoreApplication::applicationPid());
        HWND box = nullptr;
        HWND owner = nullptr;
        wchar_t text[100] = {};
        bool hasIcon = false;
        std::thread user([&] {
            while (!(box = FindWindowW(nullptr, reinterpret_cast<const wchar_t *>(title.utf16()))) ||
                   !IsWindowVisible(box))
                QThread::yieldCurrentThread();
            owner = GetWindow(box, GW_OWNER);
            for (HWND part = nullptr; (part = FindWindowExW(box, part, L"Static", nullptr)) != nullptr;) {
                if ((GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
                    hasIcon = true;
                else
                    GetWindowTextW(part, text, 100);
            }
            PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        showErrorBox(title.toUtf8().constData(), "Dîner, 日本");
        user.join();
        QCOMPARE(owner, nullptr);
        QVERIFY(hasIcon);
        QCOMPARE(QString::fromWCharArray(text), u"Dîner, 日本"_s);
    }

    void renameRefusesDevices_data()
    {
        QTest::addColumn<QString>("device");

        for (const char *device :
             {"CON", "prn", "AUX", "NUL", "COM1", "LPT9", "con.txt", "nul.tar.gz", "aux .txt"})
            QTest::newRow(device) << QString::fromLatin1(device);
    }

    void renameRefusesDevices()
    {
        QFETCH(QString, device);
        const TestFolder folder;
        QVERIFY(writeFile(u"a"_s, "a"));
        QCOMPARE(renameFile(folder.path(u"a"_s), folder.path(device)), RenameResult::BadName);
        QCOMPARE(entriesOf(folder.path()), QStringList(u"a"_s));
        QCOMPARE(readFile(u"a"_s), "a");
    }

    void renameRefusesStreams_data()
    {
        QTest::addColumn<QString>("stream");

        for (const char *stream : {"a:b", "b:c", "b:", ":b", "a::$DATA"})
            QTest::newRow(stream) << QString::fromLatin1(stream);
    }

    void renameRefusesStreams()
    {
        QFETCH(QString, stream);
        const TestFolder folder;
        QVERIFY(writeFile(u"a"_s, "a"));
        QCOMPARE(renameFile(folder.path(u"a"_s), folder.path() + u'/' + stream), RenameResult::BadName);
        QCOMPARE(entriesOf(folder.path()), QStringList(u"a"_s));
        QCOMPARE(readFile(u"a"_s), "a");
    }

    void renameDropsDotsAndBlanksAtTheEnd()
    {
        const TestFolder folder;
        QVERIFY(writeFile(u"a"_s, "a"));
        QCOMPARE(renameFile(folder.path(u"a"_s), folder.path(u"b. ."_s)), RenameResult::Done);
        QCOMPARE(entriesOf(folder.path()), QStringList(u"b"_s));
        // The name without them may be taken.
        QVERIFY(writeFile(u"c"_s, "c"));
        QCOMPARE(renameFile(folder.path(u"c"_s), folder.path(u"b."_s)), RenameResult::TargetExists);
        QCOMPARE(readFile(u"b"_s), "a");
        QCOMPARE(readFile(u"c"_s), "c");
    }

    void renameGoesBeyond260Characters()
    {
        const TestFolder folder;
        const QString deep = folder.path(QString(3, u'x').replace(u'x', QString(100, u'd') + u'/') + u"a"_s);
        QVERIFY(QDir().mkpath(QFileInfo(deep).path()));
        QVERIFY(writeFile(deep, "a"));
        QVERIFY(deep.size() > MAX_PATH);
        QCOMPARE(renameFile(deep, deep + u'Ж'), RenameResult::Done);
        QVERIFY(!QFileInfo::exists(deep));
        QCOMPARE(readFile(deep + u'Ж'), "a");
    }

    void fileOfWhoDoesNotShareItStays()
    {
        const TestFolder folder;
        QVERIFY(writeFile(u"a"_s, "a"));
        QFile other(folder.path(u"a"_s));
        QVERIFY(other.open(QIODevice::ReadOnly));
        QVERIFY(!removeShared(folder.path(u"a"_s)));
        QCOMPARE(entriesOf(folder.path()), QStringList(u"a"_s));
        other.close();
        QVERIFY(removeShared(folder.path(u"a"_s)));
        QCOMPARE(entriesOf(folder.path()), QStringList());
    }

    void taskbarIsConnectedTo()
    {
        QWidget widget;
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QVERIFY(TaskbarList::create(widget.winId()) != nullptr);
    }

    void shellIgnoresWhatDoesNotFit()
    {
        openWithShell(QString());
        openWithShell(u"C:\\"_s + QString(300, u'a'));
        openWithShell(u"C:\\"_s, QString(300, u'a'));
    }

    /// The system has no such step: planned runs go by a third name.
    void nothingIsExchanged()
    {
        const TempTree folder;
        const QStringList names = {u"a"_s, u"b"_s, u"folder"_s};
        folder.addFile(u"a"_s);
        folder.addFile(u"b"_s);
        folder.addFolder(u"folder"_s);
        FileRenamer renamer;
        for (const QString &other : {u"b"_s, u"folder"_s, u"missing"_s, u"a"_s})
            QCOMPARE(renamer.exchange(folder.path(u"a"_s), folder.path(other)), std::nullopt);
        QCOMPARE(folder.names(), names);
        QCOMPARE(folder.content(u"a"_s), "a");
        QCOMPARE(folder.content(u"b"_s), "b");
    }
};

QTEST_MAIN(TestSystemWindows)
#include "tst_system_windows.moc"
