// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/messagecatcher.h"
#include "unit/core/settingsfolder.h"

#include "fileidentity.h"
#include "filesizelimit.h"
#include "withoutprivileges.h"

#include <QFileInfo>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// A settings file that cannot be read may be one that somebody wrote by hand: it is kept.
class TestIgnoredSettings final : public QObject
{
    Q_OBJECT

private slots:
    void init() { folder = std::make_unique<SettingsFolder>(); }
    void cleanup() { folder.reset(); }
    void whatCouldNotBeReadIsKept_data();
    void whatCouldNotBeReadIsKept();
    void tooLargeOneIsKept();
    void pipeIsKept();
    void unreadableOneIsKept();
    void whatWasReadIsNot();
    void onlyTheFirstSaveKeepsIt();
    void laterOneTakesTheEarliersPlace();
    void folderInItsPlaceIsSaid();
    void linkStaysAndLeadsToTheNewSettings();
    void savingThatFailsLeavesItWhereItIs();
    void itMayHaveGoneMeanwhile();
    void fileThatCameMeanwhileIsNoneOfIt();

private:
    [[nodiscard]] QString file() const { return folder->file(); }
    [[nodiscard]] QString kept() const { return file() + u".bad"; }
    [[nodiscard]] QStringList configFolder() const { return entriesOf(folder->path(u"config"_s)); }
    /// What it says when it has loaded and saved.
    QStringList loadAndSave() const
    {
        SettingsStore store;
        store.setFilePath(file());
        const MessageCatcher catcher;
        store.load();
        store.save();
        return catcher.messages();
    }
    [[nodiscard]] QStringList keptMessage() const
    {
        return {u"could not be read, and is kept as: "_s + kept()};
    }

    std::unique_ptr<SettingsFolder> folder;
};

void TestIgnoredSettings::whatCouldNotBeReadIsKept_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not well-formed") << QByteArray("<Settings><Misc></Settings>");
    QTest::newRow("wrong root") << QByteArray("<Other/>");
    QTest::newRow("too deep") << "<Settings>" + QByteArray("<a>").repeated(100) +
                                     QByteArray("</a>").repeated(100) + "</Settings>";
}

void TestIgnoredSettings::whatCouldNotBeReadIsKept()
{
    QFETCH(QByteArray, content);
    QVERIFY(writeFile(file(), content));
    QCOMPARE(loadAndSave(), keptMessage());
    QCOMPARE(readFile(kept()), content);
    QVERIFY(readFile(file()).contains("<Settings version="));
    QCOMPARE(configFolder(), (QStringList{u"global.xml"_s, u"global.xml.bad"_s}));
}

void TestIgnoredSettings::tooLargeOneIsKept()
{
    constexpr qint64 size = qint64{64} * 1024 * 1024;
    QVERIFY(writeFile(file(), "<Settings/>"));
    QVERIFY(QFile::resize(file(), size));
    QCOMPARE(loadAndSave(), keptMessage());
    QCOMPARE(QFileInfo(kept()).size(), size);
}

void TestIgnoredSettings::pipeIsKept()
{
    QVERIFY(makePipe(file()));
    QCOMPARE(loadAndSave(), keptMessage());
    QVERIFY(isPipe(kept()));
    QVERIFY(QFileInfo(file()).isFile());
}

void TestIgnoredSettings::unreadableOneIsKept()
{
    constexpr QFile::Permissions everything(0x7777);
    QVERIFY(writeFile(file(), "<Settings/>"));
    QVERIFY(QFile::setPermissions(file(), QFile::WriteOwner | QFile::WriteOther));
    QVERIFY(QFile::setPermissions(folder->path(), everything));
    QVERIFY(QFile::setPermissions(folder->path(u"config"_s), everything));
    {
        const WithoutPrivileges nobody;
        QCOMPARE(loadAndSave(), keptMessage());
    }
    QVERIFY(QFile::setPermissions(kept(), everything));
    QCOMPARE(readFile(kept()), "<Settings/>");
}

void TestIgnoredSettings::whatWasReadIsNot()
{
    QCOMPARE(loadAndSave(), QStringList());
    QCOMPARE(loadAndSave(), QStringList());
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
}

void TestIgnoredSettings::onlyTheFirstSaveKeepsIt()
{
    QVERIFY(writeFile(file(), "mine"));
    SettingsStore store;
    store.setFilePath(file());
    store.load();
    store.save();
    const MessageCatcher catcher;
    store.save();
    QCOMPARE(catcher.messages(), QStringList());
    QCOMPARE(readFile(kept()), "mine");
    store.load();
    store.save();
    QCOMPARE(catcher.messages(), QStringList());
    QCOMPARE(readFile(kept()), "mine");
}

void TestIgnoredSettings::laterOneTakesTheEarliersPlace()
{
    QVERIFY(writeFile(kept(), "earlier"));
    QVERIFY(writeFile(file(), "later"));
    QCOMPARE(loadAndSave(), keptMessage());
    QCOMPARE(readFile(kept()), "later");
}

// The settings are saved all the same.
void TestIgnoredSettings::folderInItsPlaceIsSaid()
{
    QVERIFY(QDir().mkpath(kept() + u"/inside"));
    QVERIFY(writeFile(file(), "mine"));
    QCOMPARE(loadAndSave(), QStringList(u"could not be read, nor kept: "_s + file()));
    QVERIFY(readFile(file()).contains("<Settings version="));
    QCOMPARE(entriesOf(kept()), QStringList(u"inside"_s));
}

void TestIgnoredSettings::linkStaysAndLeadsToTheNewSettings()
{
    const QString target = folder->path(u"elsewhere.xml"_s);
    QVERIFY(writeFile(target, "mine"));
    QVERIFY(QFile::link(target, file()));
    QCOMPARE(loadAndSave(), QStringList(u"could not be read, and is kept as: "_s + target + u".bad"));
    QVERIFY(QFileInfo(file()).isSymLink());
    QVERIFY(readFile(target).contains("<Settings version="));
    QCOMPARE(readFile(target + u".bad"), "mine");
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
}

void TestIgnoredSettings::savingThatFailsLeavesItWhereItIs()
{
    QVERIFY(writeFile(file(), "mine"));
    SettingsStore store;
    store.setFilePath(file());
    store.load();
    {
        const FileSizeLimit limit(10);
        store.save();
    }
    QCOMPARE(readFile(file()), "mine");
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
    store.save();
    QCOMPARE(readFile(kept()), "mine");
}

void TestIgnoredSettings::itMayHaveGoneMeanwhile()
{
    QVERIFY(writeFile(file(), "mine"));
    SettingsStore store;
    store.setFilePath(file());
    store.load();
    QVERIFY(QFile::remove(file()));
    const MessageCatcher catcher;
    store.save();
    QCOMPARE(catcher.messages(), QStringList());
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
}

// Another instance saved its settings.
void TestIgnoredSettings::fileThatCameMeanwhileIsNoneOfIt()
{
    SettingsStore store;
    store.setFilePath(file());
    store.load();
    QVERIFY(writeFile(file(), "<Settings/>"));
    const MessageCatcher catcher;
    store.save();
    QCOMPARE(catcher.messages(), QStringList());
    QCOMPARE(configFolder(), QStringList(u"global.xml"_s));
}

QTEST_GUILESS_MAIN(TestIgnoredSettings)
#include "tst_ignoredsettings.moc"
