// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/osversion.h"
#include "platform/shell.h"
#include "platform/taskbar.h"
#include "platform/userdatafolder.h"
#include "unit/support/testfolder.h"

#include <QDesktopServices>
#include <QSignalSpy>
#include <QSysInfo>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

/// What the desktop would open.
class UrlCatcher final : public QObject
{
    Q_OBJECT

public:
    UrlCatcher()
    {
        for (const QString &scheme : {u"file"_s, u"http"_s, u"https"_s, u"mailto"_s})
            QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~UrlCatcher() override
    {
        for (const QString &scheme : {u"file"_s, u"http"_s, u"https"_s, u"mailto"_s})
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Q_DISABLE_COPY_MOVE(UrlCatcher)

    QList<QUrl> urls;

public slots:
    void take(const QUrl &url) { urls.append(url); }
};

/// An environment variable, put back at the end.
class Variable final
{
public:
    explicit Variable(const char *variable)
        : name(variable)
        , wasSet(qEnvironmentVariableIsSet(variable))
        , before(qgetenv(variable))
    {
    }
    ~Variable()
    {
        if (wasSet)
            qputenv(name, before);
        else
            qunsetenv(name);
    }
    Q_DISABLE_COPY_MOVE(Variable)
    void set(const QString &value) const { qputenv(name, QFile::encodeName(value)); }
    void unset() const { qunsetenv(name); }

private:
    const char *name;
    bool wasSet;
    QByteArray before;
};

class TestSystem final : public QObject
{
    Q_OBJECT

private slots:
    void shellOpensFoldersAndAddresses_data();
    void shellOpensFoldersAndAddresses();
    void shellOpensNothingForAnEmptyText();
    void userDataFolderIsWhereTheUserSays();
    void userDataFolderIsInTheHomeFolderOtherwise();
    void osVersionNamesTheKernel();
    void thereIsNoTaskbarHere();
};

void TestSystem::shellOpensFoldersAndAddresses_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("url");

    QTest::newRow("folder") << u"/tmp/logs"_s << u"file:///tmp/logs"_s;
    QTest::newRow("folder with blanks") << u"/tmp/my logs/"_s << u"file:///tmp/my%20logs/"_s;
    QTest::newRow("folder with characters of an address")
        << u"/tmp/a#b?c%20d&e"_s << u"file:///tmp/a%23b%3Fc%2520d&e"_s;
    QTest::newRow("Unicode folder") << u"/tmp/Ж"_s << u"file:///tmp/%D0%96"_s;
    QTest::newRow("http address") << u"http://127.0.0.1:1/a?b=c%20d#e"_s
                                  << u"http://127.0.0.1:1/a?b=c%20d#e"_s;
    QTest::newRow("https address") << u"https://127.0.0.1/"_s << u"https://127.0.0.1/"_s;
    QTest::newRow("longer than 260 characters")
        << u"/"_s + QString(300, u'a') << u"file:///"_s + QString(300, u'a');
}

void TestSystem::shellOpensFoldersAndAddresses()
{
    QFETCH(QString, file);
    const UrlCatcher catcher;
    openWithShell(file);
    openWithShell(file, u"parameters are not passed on"_s);
    QCOMPARE(catcher.urls.size(), 2);
    QTEST(catcher.urls.at(0).toString(QUrl::FullyEncoded), "url");
    QCOMPARE(catcher.urls.at(1), catcher.urls.at(0));
}

void TestSystem::shellOpensNothingForAnEmptyText()
{
    const UrlCatcher catcher;
    const MessageCatcher messages;
    openWithShell(QString());
    openWithShell(u""_s, u"parameters"_s);
    QVERIFY(catcher.urls.isEmpty());
    QCOMPARE(messages.messages(), QStringList());
}

void TestSystem::userDataFolderIsWhereTheUserSays()
{
    const TestFolder folder;
    const Variable data("XDG_DATA_HOME");
    data.set(folder.path(u"my data"_s));
    QCOMPARE(userDataFolder(), folder.path(u"my data"_s));
    data.set(folder.path(u"my data//"_s));
    QCOMPARE(userDataFolder(), folder.path(u"my data"_s));
    // A relative path names a different folder wherever the program is started from, and counts as none.
    const Variable home("HOME");
    home.set(folder.path());
    data.set(u"./my data"_s);
    QCOMPARE(userDataFolder(), folder.path(u".local/share"_s));
    home.set(u"relative"_s);
    QCOMPARE(userDataFolder(), QString());
    QVERIFY(entriesOf(folder.path()).isEmpty());
}

void TestSystem::userDataFolderIsInTheHomeFolderOtherwise()
{
    const TestFolder folder;
    const Variable data("XDG_DATA_HOME");
    const Variable home("HOME");
    data.unset();
    home.set(folder.path());
    QCOMPARE(userDataFolder(), folder.path(u".local/share"_s));
    data.set(QString());
    QCOMPARE(userDataFolder(), folder.path(u".local/share"_s));
}

void TestSystem::osVersionNamesTheKernel()
{
    const QString version = osVersionText();
    QCOMPARE(version.section(u' ', 0, 0).toLower(), QSysInfo::kernelType());
    QCOMPARE(version.section(u' ', 1), QSysInfo::kernelVersion());
}

void TestSystem::thereIsNoTaskbarHere()
{
    QCOMPARE(TaskbarList::create(0), nullptr);
}

QTEST_MAIN(TestSystem)
#include "tst_system.moc"
