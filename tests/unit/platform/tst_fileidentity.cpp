// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/fileidentity.h"
#include "platform/filerename.h"
#include "support/temptree.h"

#include "fileidentity.h"

#include <QDateTime>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TestFileIdentity final : public QObject
{
    Q_OBJECT

private slots:
    void init() { folder = std::make_unique<TestFolder>(); }
    void cleanup() { folder.reset(); }

    void nothingThereIsNoFile()
    {
        QVERIFY(!fileIdentity(folder->path(u"a"_s)));
        QVERIFY(!fileIdentity(folder->path(u"a/b"_s)));
        QVERIFY(!fileIdentity({}));
    }

    void followsTheFileThroughItsNames()
    {
        QVERIFY(writeFile(u"a"_s, "content"));
        const auto before = fileIdentity(folder->path(u"a"_s));
        QVERIFY(before);
        QCOMPARE(before->number, identityOf(u"a"_s).file);
        QCOMPARE(before->volume, identityOf(u"a"_s).volume);
        QCOMPARE(renameFile(folder->path(u"a"_s), folder->path(u"Ж"_s)), RenameResult::Done);
        const auto after = fileIdentity(folder->path(u"Ж"_s));
        QVERIFY(after);
        QVERIFY(after->isSameFile(*before));
        QCOMPARE(after->size, 7);
        QCOMPARE(after->modified, before->modified);
    }

    void editingLeavesTheFileWhatItIs()
    {
        QVERIFY(writeFile(u"a"_s, "content"));
        const auto before = fileIdentity(u"a"_s);
        QVERIFY(writeFile(u"a"_s, "longer content"));
        const auto after = fileIdentity(u"a"_s);
        QVERIFY(after->isSameFile(*before));
        QVERIFY(after->size != before->size);
    }

    void anotherFileIsAnother()
    {
        QVERIFY(writeFile(u"a"_s, "content"));
        QVERIFY(writeFile(u"b"_s, "content"));
        QVERIFY(!fileIdentity(u"a"_s)->isSameFile(*fileIdentity(u"b"_s)));
    }

    void birthTellsFilesOfOneNumberApart()
    {
        const FileIdentity one{.volume = 1, .number = 2, .born = 3};
        FileIdentity other = one;
        QVERIFY(one.isSameFile(other));
        other.born = 4;
        QVERIFY(!one.isSameFile(other));
        other.born = 0;
        QVERIFY(one.isSameFile(other));
        QVERIFY(other.isSameFile(one));
        other.volume = 5;
        QVERIFY(!one.isSameFile(other));
    }

    void timesAreNanosecondsSince1970()
    {
        const qint64 before = QDateTime::currentSecsSinceEpoch() - 2;
        QVERIFY(writeFile(u"a"_s, "content"));
        const qint64 after = QDateTime::currentSecsSinceEpoch() + 2;
        const auto identity = fileIdentity(u"a"_s);
        QVERIFY(identity->modified / 1'000'000'000 >= before);
        QVERIFY(identity->modified / 1'000'000'000 <= after);
        if (identity->born != 0) {
            QVERIFY(identity->born / 1'000'000'000 >= before);
            QVERIFY(identity->born / 1'000'000'000 <= after);
        }
    }

    void kinds()
    {
        QVERIFY(writeFile(u"a"_s, "content"));
        QVERIFY(QDir().mkdir(u"folder"_s));
        QCOMPARE(fileIdentity(u"a"_s)->kind, FileIdentity::Kind::File);
        QCOMPARE(fileIdentity(u"folder"_s)->kind, FileIdentity::Kind::Folder);
    }

    void linksAreNotFollowed()
    {
        QVERIFY(QFile::link(u"nothing"_s, u"dangling"_s));
        const auto link = fileIdentity(u"dangling"_s);
        QVERIFY(link);
        QCOMPARE(link->kind, FileIdentity::Kind::Link);
    }

    void behindADotOrSeparatorLinksAreFollowed()
    {
        QVERIFY(QDir().mkdir(u"folder"_s));
        const auto there = fileIdentity(folder->path(u"folder"_s));
        QVERIFY(QFile::link(folder->path(u"folder"_s), folder->path(u"link"_s)));
        for (const QString &path : {u"folder/"_s, u"folder/."_s, u"link/"_s, u"link/."_s}) {
            const auto seen = fileIdentity(folder->path(path));
            QVERIFY2(seen, qPrintable(path));
            QCOMPARE(seen->kind, FileIdentity::Kind::Folder);
            QVERIFY(seen->isSameFile(*there));
        }
    }

private:
    std::unique_ptr<TestFolder> folder;
};

QTEST_GUILESS_MAIN(TestFileIdentity)
#include "tst_fileidentity.moc"
