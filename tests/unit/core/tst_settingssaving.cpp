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

/// What becomes of the file, and of what stands in its place, when the settings are saved.
class TestSettingsSaving final : public QObject
{
    Q_OBJECT

private slots:
    void init() { folder = std::make_unique<SettingsFolder>(); }
    void cleanup() { folder.reset(); }
    void withoutAPathNothingIsSaved();
    void shortWriteKeepsTheOldFile();
    void savingThroughALinkKeepsTheLink();
    void savingKeepsThePermissions();
    void savingLeavesNothingBeside();
    void folderWithoutRoomForANewFileHasTheOldOneWritten();

private:
    [[nodiscard]] QString file() const { return folder->file(); }

    std::unique_ptr<SettingsFolder> folder;
};

void TestSettingsSaving::withoutAPathNothingIsSaved()
{
    SettingsStore store;
    const MessageCatcher catcher;
    store.load();
    store.save();
    QCOMPARE(catcher.messages(), QStringList(u"could not save: "_s));
    QCOMPARE(entriesOf(folder->path()), QStringList(u"config"_s));
    QVERIFY(entriesOf(folder->path(u"config"_s)).isEmpty());
}

void TestSettingsSaving::shortWriteKeepsTheOldFile()
{
    const auto store = folder->newStore();
    store->save();
    const QByteArray before = readFile(file());
    store->setValue(SettingKey::MiscLanguage, QString(100000, u'x'));
    const MessageCatcher catcher;
    {
        const FileSizeLimit limit(1000);
        store->save();
    }
    QCOMPARE(catcher.messages(), QStringList(u"could not save all data in: %1"_s.arg(file())));
    QCOMPARE(readFile(file()), before);
    QCOMPARE(entriesOf(folder->path(u"config"_s)), QStringList(u"global.xml"_s));
}

void TestSettingsSaving::savingThroughALinkKeepsTheLink()
{
    const QString target = folder->path(u"elsewhere.xml"_s);
    QVERIFY(writeFile(target, "<Settings><Misc><Language>de_DE</Language></Misc></Settings>"));
    QVERIFY(QFile::link(target, file()));
    const auto store = folder->newStore();
    store->load();
    QCOMPARE(languageIn(*store), u"de_DE"_s);
    store->setValue(SettingKey::MiscLanguage, u"fr_FR"_s);
    store->save();
    QVERIFY(QFileInfo(file()).isSymLink());
    QVERIFY(readFile(target).contains("fr_FR"));
}

void TestSettingsSaving::savingKeepsThePermissions()
{
    const auto store = folder->newStore();
    store->save();
    const QFile::Permissions permissions =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QVERIFY(QFile::setPermissions(file(), permissions));
    store->save();
    QCOMPARE(QFile::permissions(file()), permissions);
}

void TestSettingsSaving::savingLeavesNothingBeside()
{
    const auto store = folder->newStore();
    for (int i = 0; i < 3; ++i)
        store->save();
    QCOMPARE(entriesOf(folder->path(u"config"_s)), QStringList(u"global.xml"_s));
}

// As where an administrator made the folder and gave its user the file alone.
void TestSettingsSaving::folderWithoutRoomForANewFileHasTheOldOneWritten()
{
    constexpr QFile::Permissions everything(0x7777);
    const auto store = folder->newStore();
    store->save();
    QVERIFY(QFile::setPermissions(file(), everything));
    const SeenFile before = identityOf(file());
    QVERIFY(QFile::setPermissions(folder->path(), WithoutPrivileges::readable));
    QVERIFY(QFile::setPermissions(folder->path(u"config"_s), WithoutPrivileges::readable));
    const MessageCatcher catcher;
    {
        const WithoutPrivileges nobody;
        store->setValue(SettingKey::MiscLanguage, u"de_DE"_s);
        store->save();
    }
    QVERIFY(QFile::setPermissions(folder->path(u"config"_s), everything));
    QVERIFY(QFile::setPermissions(folder->path(), everything));
    QCOMPARE(catcher.messages(), QStringList());
    QVERIFY(readFile(file()).contains("<Language>de_DE</Language>"));
    // Written in its place, not replaced.
    QCOMPARE(identityOf(file()).file, before.file);
}

QTEST_GUILESS_MAIN(TestSettingsSaving)
#include "tst_settingssaving.moc"
