// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename.h"
#include "support/messagecatcher.h"
#include "support/temptree.h"

#include "fileidentity.h"
#include "namesofthesystem.h"
#include "withoutprivileges.h"

#include <QFileInfo>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TestFileRename final : public QObject
{
    Q_OBJECT

private slots:
    void init() { folder = std::make_unique<TestFolder>(); }
    void cleanup() { folder.reset(); }
    void movesTheFileItself_data();
    void movesTheFileItself();
    void refusesWhatExists_data();
    void refusesWhatExists();
    void danglingLinkIsNotWrittenThrough();
    void vanishedSourceMakesNothing();
    void refusesBadTargets_data();
    void refusesBadTargets();
    void refusesAnEmptySource();
    void saysThatTheFolderMayNotBeWritten();
    void changesOnlyTheCase();
    void caseChangeRefusesAnotherFile();
    void caseChangeRefusesASecondNameOfTheSameFile();
    void linkIsMovedNotItsTarget();
    void folderIsMoved();
    void pipeIsMovedWithoutBeingOpened();
    void neverCopiesAcrossFileSystems();

private:
    std::unique_ptr<TestFolder> folder;
};

void TestFileRename::movesTheFileItself_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("plain") << u"a.txt"_s << u"b.txt"_s;
    QTest::newRow("Unicode") << u"Ж日.txt"_s << u"😀 é.txt"_s;
    QTest::newRow("blanks") << u" a "_s << u"  b  "_s;
    QTest::newRow("line feed") << u"a\nb"_s << u"b\na"_s;
    QTest::newRow("looks like an option") << u"-rf"_s << u"--help"_s;
    QTest::newRow("shell characters") << u"$(a)`*?"_s << u"'\";&|<>\\"_s;
    QTest::newRow("hidden") << u"a"_s << u".a"_s;
    QTest::newRow("longest name") << u"a"_s << QString(255, u'b');
    QTest::newRow("composed and decomposed") << u"\u00e9"_s << u"e\u0301"_s;
    QTest::newRow("into a folder") << u"a"_s << u"folder/a"_s;
}

void TestFileRename::movesTheFileItself()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QVERIFY(QDir().mkdir(u"folder"_s));
    QVERIFY(writeFile(from, "content"));
    QVERIFY(QFile::setPermissions(from, QFile::ReadOwner));
    const auto before = identityOf(from);
    QCOMPARE(renameFile(folder->path(from), folder->path(to)), RenameResult::Done);
    QCOMPARE(identityOf(from).file, 0U);
    QCOMPARE(identityOf(to).file, before.file);
    QCOMPARE(identityOf(to).mode, before.mode);
    QCOMPARE(readFile(to), "content");
}

void TestFileRename::refusesWhatExists_data()
{
    QTest::addColumn<QString>("target");

    QTest::newRow("file") << u"file"_s;
    QTest::newRow("empty file") << u"empty"_s;
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("link to a file") << u"link"_s;
    QTest::newRow("link to nothing") << u"dangling"_s;
    QTest::newRow("link to itself") << u"loop"_s;
    QTest::newRow("the file itself") << u"source"_s;
    QTest::newRow("the file itself, spelled otherwise") << u"./source"_s;
    QTest::newRow("second name of the file") << u"twin"_s;
}

void TestFileRename::refusesWhatExists()
{
    QFETCH(QString, target);
    QVERIFY(writeFile(u"source"_s, "source"));
    QVERIFY(writeFile(u"file"_s, "file"));
    QVERIFY(writeFile(u"empty"_s, ""));
    QVERIFY(QDir().mkdir(u"folder"_s));
    QVERIFY(QFile::link(u"file"_s, u"link"_s));
    QVERIFY(QFile::link(u"nothing"_s, u"dangling"_s));
    QVERIFY(QFile::link(u"loop"_s, u"loop"_s));
    QVERIFY(makeHardLink(u"source"_s, u"twin"_s));
    const QStringList before = entriesOf(folder->path());
    const auto targetBefore = identityOf(target);

    QCOMPARE(renameFile(folder->path(u"source"_s), folder->path(target)), RenameResult::TargetExists);
    QCOMPARE(entriesOf(folder->path()), before);
    QCOMPARE(identityOf(target).file, targetBefore.file);
    QCOMPARE(readFile(u"source"_s), "source");
    QCOMPARE(readFile(u"file"_s), "file");
    QCOMPARE(readFile(u"empty"_s), "");
}

void TestFileRename::danglingLinkIsNotWrittenThrough()
{
    const TestFolder elsewhere;
    QVERIFY(writeFile(folder->path(u"source"_s), "source"));
    QVERIFY(QFile::link(elsewhere.path(u"victim"_s), folder->path(u"target"_s)));
    QCOMPARE(renameFile(folder->path(u"source"_s), folder->path(u"target"_s)), RenameResult::TargetExists);
    QVERIFY(entriesOf(elsewhere.path()).isEmpty());
    QVERIFY(QFileInfo(folder->path(u"target"_s)).isSymLink());
    QCOMPARE(readFile(folder->path(u"source"_s)), "source");
}

void TestFileRename::vanishedSourceMakesNothing()
{
    QCOMPARE(renameFile(folder->path(u"a"_s), folder->path(u"b"_s)), RenameResult::SourceMissing);
    QVERIFY(entriesOf(folder->path()).isEmpty());
    QVERIFY(writeFile(u"b"_s, "b"));
    QCOMPARE(renameFile(folder->path(u"a"_s), folder->path(u"b"_s)), RenameResult::SourceMissing);
    QCOMPARE(readFile(u"b"_s), "b");
}

void TestFileRename::refusesBadTargets_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<RenameResult>("result");

    QTest::newRow("folder that is not there") << u"missing/a"_s << RenameResult::Other;
    QTest::newRow("file as a folder") << u"other/a"_s << RenameResult::Other;
    QTest::newRow("too long") << QString(256, u'b') << RenameResult::TooLong;
    if (areBytesCounted)
        QTest::newRow("too long in bytes") << QString(128, u'é') << RenameResult::TooLong;
    if (areDotsDropped) {
        QTest::newRow("nothing but dots") << u"..."_s << RenameResult::BadName;
        QTest::newRow("nothing but blanks") << u" "_s << RenameResult::BadName;
    }
    QTest::newRow("this folder") << u"."_s << RenameResult::TargetExists;
    QTest::newRow("the folder above") << u".."_s << RenameResult::TargetExists;
    QTest::newRow("null character") << u"b"_s + QChar(0) + u'c' << RenameResult::BadName;
    QTest::newRow("half a character") << u"b"_s + QChar(0xd83d) << RenameResult::BadName;
}

void TestFileRename::refusesBadTargets()
{
    QFETCH(QString, target);
    QFETCH(RenameResult, result);
    QVERIFY(writeFile(u"a"_s, "a"));
    QVERIFY(writeFile(u"other"_s, "other"));
    const MessageCatcher silence;
    QCOMPARE(renameFile(folder->path(u"a"_s), folder->path() + u'/' + target), result);
    QCOMPARE(renameFile(folder->path(u"a"_s), QString()), RenameResult::BadName);
    // What a name comes to is nothing for the log.
    QCOMPARE(silence.messages(), QStringList());
    QCOMPARE(entriesOf(folder->path()), (QStringList{u"a"_s, u"other"_s}));
    QCOMPARE(readFile(u"a"_s), "a");
    QCOMPARE(readFile(u"other"_s), "other");
}

void TestFileRename::refusesAnEmptySource()
{
    const MessageCatcher silence;
    QCOMPARE(renameFile(QString(), folder->path(u"b"_s)), RenameResult::SourceMissing);
    QCOMPARE(silence.messages(), QStringList());
    QVERIFY(entriesOf(folder->path()).isEmpty());
}

void TestFileRename::saysThatTheFolderMayNotBeWritten()
{
    QVERIFY(writeFile(u"a"_s, "a"));
    QVERIFY(writeFile(u"b"_s, "b"));
    const auto readable = WithoutPrivileges::readable;
    QVERIFY(QFile::setPermissions(folder->path(), readable));
    {
        const WithoutPrivileges drop;
        QCOMPARE(renameFile(folder->path(u"a"_s), folder->path(u"c"_s)), RenameResult::NotPermitted);
        // What is there counts first.
        QCOMPARE(renameFile(folder->path(u"a"_s), folder->path(u"b"_s)), RenameResult::TargetExists);
        QCOMPARE(renameFile(folder->path(u"c"_s), folder->path(u"d"_s)), RenameResult::SourceMissing);
    }
    QVERIFY(QFile::setPermissions(folder->path(), readable | QFile::WriteOwner));
    QCOMPARE(entriesOf(folder->path()), (QStringList{u"a"_s, u"b"_s}));
}

void TestFileRename::changesOnlyTheCase()
{
    QVERIFY(writeFile(u"photo.jpg"_s, "x"));
    QCOMPARE(renameFile(folder->path(u"photo.jpg"_s), folder->path(u"Photo.JPG"_s)), RenameResult::Done);
    QCOMPARE(entriesOf(folder->path()), QStringList(u"Photo.JPG"_s));
}

void TestFileRename::caseChangeRefusesAnotherFile()
{
    QVERIFY(writeFile(u"photo"_s, "small"));
    QVERIFY(writeFile(u"PHOTO"_s, "large"));
    QCOMPARE(renameFile(folder->path(u"photo"_s), folder->path(u"PHOTO"_s)), RenameResult::TargetExists);
    QCOMPARE(readFile(u"photo"_s), "small");
    QCOMPARE(readFile(u"PHOTO"_s), "large");
}

// Two names of one file that differ by case alone: the file system moves nothing there, so a "yes" would be a
// lie.
void TestFileRename::caseChangeRefusesASecondNameOfTheSameFile()
{
    QVERIFY(writeFile(u"photo"_s, "x"));
    QVERIFY(makeHardLink(u"photo"_s, u"PHOTO"_s));
    QCOMPARE(renameFile(folder->path(u"photo"_s), folder->path(u"PHOTO"_s)), RenameResult::TargetExists);
    QCOMPARE(entriesOf(folder->path()).size(), 2);
    QVERIFY(QFileInfo::exists(u"photo"_s));
    QVERIFY(QFileInfo::exists(u"PHOTO"_s));
}

void TestFileRename::linkIsMovedNotItsTarget()
{
    QVERIFY(writeFile(u"target"_s, "x"));
    QVERIFY(QFile::link(u"target"_s, u"link"_s));
    QCOMPARE(renameFile(folder->path(u"link"_s), folder->path(u"moved"_s)), RenameResult::Done);
    QCOMPARE(entriesOf(folder->path()), (QStringList{u"moved"_s, u"target"_s}));
    QVERIFY(QFileInfo(u"moved"_s).isSymLink());
    QCOMPARE(readFile(u"moved"_s), "x");
}

void TestFileRename::folderIsMoved()
{
    QVERIFY(QDir().mkpath(u"a/b"_s));
    QCOMPARE(renameFile(folder->path(u"a"_s), folder->path(u"c"_s)), RenameResult::Done);
    QCOMPARE(entriesOf(folder->path()), QStringList(u"c"_s));
    QCOMPARE(entriesOf(folder->path(u"c"_s)), QStringList(u"b"_s));
}

void TestFileRename::pipeIsMovedWithoutBeingOpened()
{
    QVERIFY(makePipe(u"pipe"_s));
    QCOMPARE(renameFile(folder->path(u"pipe"_s), folder->path(u"moved"_s)), RenameResult::Done);
    QVERIFY(isPipe(u"moved"_s));
}

void TestFileRename::neverCopiesAcrossFileSystems()
{
    // The folder is in one of the two places.
    const QTemporaryDir memory(u"/dev/shm/orvanto-XXXXXX"_s);
    const QTemporaryDir disk;
    QVERIFY(memory.isValid() && disk.isValid());
    const auto volume = identityOf(folder->path()).volume;
    const QTemporaryDir &elsewhere = identityOf(memory.path()).volume == volume ? disk : memory;
    QVERIFY2(identityOf(elsewhere.path()).volume != volume,
             "needs a folder for temporary files on another file system than /dev/shm");
    QVERIFY(writeFile(u"a"_s, "content"));
    const auto before = identityOf(u"a"_s);
    QCOMPARE(renameFile(folder->path(u"a"_s), elsewhere.filePath(u"a"_s)), RenameResult::Other);
    QVERIFY(entriesOf(elsewhere.path()).isEmpty());
    QCOMPARE(readFile(u"a"_s), "content");
    QCOMPARE(identityOf(u"a"_s).file, before.file);
}

QTEST_GUILESS_MAIN(TestFileRename)
#include "tst_filerename.moc"
