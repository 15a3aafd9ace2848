// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/folderreader.h"
#include "support/temptree.h"

#include "fileidentity.h"
#include "withoutprivileges.h"

#include <QTest>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

class TestFolderReader final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestFolder> folder;

    /// A name of any bytes.
    [[nodiscard]] static bool makeFileOfBytes(const char *name)
    {
        std::FILE *file = std::fopen(name, "w");
        return file && std::fclose(file) == 0;
    }
    [[nodiscard]] static QStringList namesIn(const QString &path)
    {
        const auto reader = openFolder(path);
        QStringList names;
        while (const auto entry = reader->next())
            names.append(entry->name.toString());
        names.sort();
        return names;
    }

private slots:
    void init() { folder = std::make_unique<TestFolder>(); }
    void cleanup() { folder.reset(); }

    void namesAreAllThatIsThere()
    {
        QVERIFY(QDir().mkdir(u"folder"_s));
        QStringList names = {u"a"_s, u".hidden"_s, u"Ж日 é😀"_s, u"e\u0301"_s, QString(255, u'x')};
        for (const QString &name : std::as_const(names))
            QVERIFY(writeFile(name, "content"));
        names.append(u"folder"_s);
        names.sort();
        QCOMPARE(namesIn(folder->path()), names);
        QCOMPARE(namesIn(folder->path() + u'/'), names);
        QCOMPARE(namesIn(folder->path(u"folder"_s)), QStringList());
    }

    // Qt takes what it makes of such a name for another name.
    void namesThatAreNoTextAreLeftOut()
    {
        QVERIFY(writeFile(u"a"_s, "a"));
        QVERIFY(makeFileOfBytes("b\xff"));
        QVERIFY(makeFileOfBytes("\xed\xa0\xbd"));
        QCOMPARE(namesIn(folder->path()), QStringList(u"a"_s));
    }

    void manyNames()
    {
        for (int i = 0; i < 2000; ++i)
            QVERIFY(writeFile(QString::number(i), {}));
        QCOMPARE(namesIn(folder->path()).size(), 2000);
    }

    void kinds()
    {
        QVERIFY(QDir().mkdir(u"folder"_s));
        QVERIFY(writeFile(u"file"_s, {}));
        QVERIFY(QFile::link(u"nowhere"_s, u"link"_s));
        QMap<QString, FileIdentity::Kind> kinds;
        const auto reader = openFolder(folder->path());
        while (const auto entry = reader->next())
            kinds.insert(entry->name.toString(), entry->kind.value_or(FileIdentity::Kind::Other));
        QCOMPARE(kinds.value(u"folder"_s), FileIdentity::Kind::Folder);
        QCOMPARE(kinds.value(u"file"_s), FileIdentity::Kind::File);
        QCOMPARE(kinds.value(u"link"_s), FileIdentity::Kind::Link);
    }

    void aFolderIsKnownByItsNumber()
    {
        QVERIFY(QDir().mkdir(u"sub"_s));
        const auto there = fileIdentity(folder->path());
        const auto reader = openFolder(folder->path(u"sub/.."_s));
        QCOMPARE(reader->traits().state, FolderTraits::State::There);
        QCOMPARE(reader->traits().volume, there->volume);
        QCOMPARE(reader->traits().number, there->number);
    }

    void whatIsNoFolder()
    {
        QVERIFY(writeFile(u"file"_s, "content"));
        for (const QString &path : {u"nowhere"_s, u"nowhere/sub"_s, u"file"_s, u"file/sub"_s}) {
            const auto reader = openFolder(folder->path(path));
            QCOMPARE(reader->traits().state, FolderTraits::State::Missing);
            QVERIFY(!reader->next());
        }
        QCOMPARE(openFolder(folder->path(QString(256, u'x')))->traits().state,
                 FolderTraits::State::TooLongPath);
    }

    void whatThisUserMay()
    {
        QVERIFY(QDir().mkdir(u"closed"_s));
        QVERIFY(QDir().mkdir(u"shared"_s));
        QVERIFY(makeShared(folder->path(u"shared"_s)));
        const auto readable = WithoutPrivileges::readable;
        QVERIFY(QFile::setPermissions(folder->path(), readable));
        QVERIFY(QFile::setPermissions(folder->path(u"closed"_s), {}));
        {
            const WithoutPrivileges drop;
            const auto traits = openFolder(folder->path())->traits();
            QVERIFY(!traits.writable);
            QVERIFY(!traits.ownFilesOnly);
            QCOMPARE(openFolder(folder->path(u"closed"_s))->traits().state, FolderTraits::State::Unreadable);
            const auto shared = openFolder(folder->path(u"shared"_s))->traits();
            QVERIFY(shared.writable);
            QVERIFY(shared.ownFilesOnly);
        }
        QVERIFY(QFile::setPermissions(folder->path(u"closed"_s), readable | QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(folder->path(), readable | QFile::WriteOwner));
        QVERIFY(openFolder(folder->path())->traits().writable);
    }
};

QTEST_GUILESS_MAIN(TestFolderReader)
#include "tst_folderreader.moc"
