// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/osversion.h"
#include "platform/userdatafolder.h"
#include "platform/volume.h"
#include "support/temptree.h"

#include <QSysInfo>
#include <QTest>

using namespace Qt::StringLiterals;

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
    void userDataFolderIsWhereTheUserSays();
    void userDataFolderIsInTheHomeFolderOtherwise();
    void osVersionNamesTheKernel();
    void numbersOfAnUnknownFileSystemAreMadeUp();
};

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

void TestSystem::numbersOfAnUnknownFileSystemAreMadeUp()
{
    const Volume volume = volumeOf(u"/proc"_s);
    QVERIFY(!volume.id.isEmpty());
    QVERIFY(!volume.keepsNumbers);
}

QTEST_GUILESS_MAIN(TestSystem)
#include "tst_system.moc"
