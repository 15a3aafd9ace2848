// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/adminrights.h"
#include "platform/autostart.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;

class TestAutoStart final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void quotesTheCommand_data();
    void quotesTheCommand();
    void writesAndRemovesTheEntry();
    void makesTheFolder();
    void comparesWithoutCase();
    void anotherProgramsEntryIsOverwritten();
    void readsEntries_data();
    void readsEntries();
    void failsWhereAFolderIsInTheWay();
    void failsWhereTheFolderCannotBeMade();
    void failsWhereNothingCanBeCreated();
    void asksForAdministratorRights();

private:
    [[nodiscard]] QString path(const QString &name) const { return home->filePath(name); }
    [[nodiscard]] QString entry() const { return path(u"autostart/Pendulix Basic.desktop"_s); }
    void write(const QByteArray &text) const;
    [[nodiscard]] QByteArray read() const;
    [[nodiscard]] static QByteArray command()
    {
        return autoStartCommand(QCoreApplication::applicationFilePath()).toUtf8();
    }

    std::unique_ptr<QTemporaryDir> home;
};

void TestAutoStart::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    qputenv("XDG_CONFIG_HOME", home->path().toUtf8());
    QCoreApplication::setApplicationName(u"Orvanto"_s);
}

void TestAutoStart::write(const QByteArray &text) const
{
    QVERIFY(QDir().mkpath(path(u"autostart"_s)));
    QFile file(entry());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
}

QByteArray TestAutoStart::read() const
{
    QFile file(entry());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestAutoStart::quotesTheCommand_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("command");
    QTest::newRow("plain") << u"/opt/orvanto"_s << uR"("/opt/orvanto" -auto)"_s;
    QTest::newRow("blanks") << u"/opt/my tools/or vanto"_s << uR"("/opt/my tools/or vanto" -auto)"_s;
    // Within quotes a backslash protects; the file doubles every backslash once more.
    QTest::newRow("quote") << uR"(/o"p/x)"_s << uR"("/o\\"p/x" -auto)"_s;
    QTest::newRow("apostrophe") << u"/o'p/x"_s << uR"("/o'p/x" -auto)"_s;
    QTest::newRow("backslash") << uR"(/o\p/x)"_s << uR"("/o\\\\p/x" -auto)"_s;
    QTest::newRow("dollar") << u"/o$HOME/x"_s << uR"("/o\\$HOME/x" -auto)"_s;
    QTest::newRow("backtick") << u"/o`id`/x"_s << uR"("/o\\`id\\`/x" -auto)"_s;
    QTest::newRow("percent") << u"/100%f/%%/x"_s << uR"("/100%%f/%%%%/x" -auto)"_s;
    QTest::newRow("not ASCII") << u"/\u00fcber/\u65e5\u672c/x"_s << u"\"/\u00fcber/\u65e5\u672c/x\" -auto"_s;
    QTest::newRow("newline and tab") << u"/a\nb\tc\rd"_s << uR"("/a\nb\tc\rd" -auto)"_s;
    QTest::newRow("other signs") << u"/a;b&c|d<e>f*g?h#i~j(k)=l"_s
                                 << u"\"/a;b&c|d<e>f*g?h#i~j(k)=l\" -auto"_s;
}

void TestAutoStart::quotesTheCommand()
{
    QFETCH(QString, program);
    QTEST(autoStartCommand(program), "command");
}

void TestAutoStart::writesAndRemovesTheEntry()
{
    QVERIFY(!isAutoStartEnabled());
    QVERIFY(setAutoStart(true));
    QVERIFY(isAutoStartEnabled());
    QCOMPARE(read(), "[Desktop Entry]\nType=Application\nName=Orvanto\nExec=" + command() + "\n");
    QCOMPARE(command(), "\"" + QCoreApplication::applicationFilePath().toUtf8() + "\" -auto");
    QVERIFY(setAutoStart(true)); // again
    QVERIFY(setAutoStart(false));
    QVERIFY(!isAutoStartEnabled());
    QVERIFY(QDir(path(u"autostart"_s)).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
}

void TestAutoStart::makesTheFolder()
{
    qputenv("XDG_CONFIG_HOME", path(u"not/yet/there"_s).toUtf8());
    QVERIFY(setAutoStart(true));
    QVERIFY(QFile::exists(path(u"not/yet/there/autostart/Pendulix Basic.desktop"_s)));
    QVERIFY(isAutoStartEnabled());
}

void TestAutoStart::comparesWithoutCase()
{
    write("[Desktop Entry]\nType=Application\nExec=" + command().toUpper() + "\n");
    QVERIFY(isAutoStartEnabled());
}

void TestAutoStart::anotherProgramsEntryIsOverwritten()
{
    write("[Desktop Entry]\nType=Application\nName=x\nExec=\"/other/program\" -auto\n");
    QVERIFY(!isAutoStartEnabled());
    QVERIFY(setAutoStart(true));
    QVERIFY(isAutoStartEnabled());
    QVERIFY(!read().contains("/other/program"));
}

void TestAutoStart::readsEntries_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isEnabled");
    const QByteArray exec = "Exec=" + command();
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("garbage") << QByteArray("\xff\0\n[\n=\n", 8) << false;
    QTest::newRow("no group") << exec + "\n" << false;
    QTest::newRow("another group") << "[Desktop Action x]\n" + exec + "\n" << false;
    QTest::newRow("groups after ours") << "[Desktop Entry]\n" + exec + "\n[Desktop Action x]\nExec=y\n"
                                       << true;
    QTest::newRow("blanks around =") << "[Desktop Entry]\nExec = " + command() + "\n" << true;
    QTest::newRow("other line ends") << "[Desktop Entry]\r\n" + exec + "\r\n" << true;
    QTest::newRow("commented out") << "[Desktop Entry]\n#" + exec + "\n" << false;
    QTest::newRow("hidden by the desktop") << "[Desktop Entry]\n" + exec + "\nHidden=true\n" << false;
    QTest::newRow("not hidden") << "[Desktop Entry]\n" + exec + "\nHidden=false\n" << true;
    QTest::newRow("without -auto") << "[Desktop Entry]\nExec=\"" +
                                          QCoreApplication::applicationFilePath().toUtf8() + "\"\n"
                                   << false;
    QTest::newRow("a megabyte") << "[Desktop Entry]\n#" + QByteArray(1048576, 'x') + "\n" + exec + "\n"
                                << false;
}

void TestAutoStart::readsEntries()
{
    QFETCH(QByteArray, text);
    write(text);
    QTEST(isAutoStartEnabled(), "isEnabled");
}

void TestAutoStart::failsWhereAFolderIsInTheWay()
{
    QVERIFY(QDir().mkpath(entry()));
    QVERIFY(!isAutoStartEnabled());
    QVERIFY(!setAutoStart(true));
    QVERIFY(!setAutoStart(false));
    QVERIFY(QDir(entry()).exists());
}

void TestAutoStart::failsWhereTheFolderCannotBeMade()
{
    QFile file(path(u"autostart"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!setAutoStart(true));
    QVERIFY(!isAutoStartEnabled());
    QCOMPARE(QDir(home->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"autostart"_s});
}

void TestAutoStart::failsWhereNothingCanBeCreated()
{
    // Refuses root too.
    qputenv("XDG_CONFIG_HOME", "/proc/self");
    QVERIFY(!setAutoStart(true));
    QVERIFY(!isAutoStartEnabled());
}

void TestAutoStart::asksForAdministratorRights()
{
    QCOMPARE(isUserAdministrator(), geteuid() == 0);
}

QTEST_GUILESS_MAIN(TestAutoStart)
#include "tst_autostart.moc"
