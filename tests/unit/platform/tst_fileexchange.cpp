// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/filerename.h"
#include "support/messagecatcher.h"
#include "support/temptree.h"

#include "fileidentity.h"
#include "withoutprivileges.h"

#include <QFileInfo>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

using Result = std::optional<RenameResult>;

namespace {

/// What a name holds, a link its target.
struct Held
{
    quint64 file;
    quint32 mode;
    QByteArray content;

    [[nodiscard]] bool operator==(const Held &) const = default;
};

Held heldBy(const QString &path)
{
    const auto there = identityOf(path);
    if (isPipe(path))
        return {there.file, there.mode, {}};
    const QFileInfo info(path);
    return {there.file, there.mode, info.isSymLink() ? info.symLinkTarget().toUtf8() : readFile(path)};
}

Result exchanged(const QString &one, const QString &other)
{
    return FileRenamer().exchange(one, other);
}

} // namespace

/// Two files that get each other's name in one step, in memory and on a disk.
class TestFileExchange final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestFolder> folder;

    /// Of everything that the tests need.
    static void plant()
    {
        QVERIFY(writeFile(u"a"_s, "a"));
        QVERIFY(writeFile(u"b"_s, "b"));
        QVERIFY(QDir().mkpath(u"folder/inside"_s));
        QVERIFY(writeFile(u"folder/inside/c"_s, "c"));
        QVERIFY(QDir().mkdir(u"empty"_s));
        QVERIFY(QFile::link(u"b"_s, u"link"_s));
        QVERIFY(QFile::link(u"nothing"_s, u"dangling"_s));
        QVERIFY(QFile::link(u"loop"_s, u"loop"_s));
        QVERIFY(makePipe(u"pipe"_s));
    }

private slots:
    void init() { folder = std::make_unique<TestFolder>(); }
    void cleanup() { folder.reset(); }

    void bothGetTheOthersName_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");

        QTest::newRow("files") << u"a"_s << u"b"_s;
        QTest::newRow("file and folder") << u"a"_s << u"folder"_s;
        QTest::newRow("folder and file") << u"folder"_s << u"a"_s;
        QTest::newRow("folders") << u"folder"_s << u"empty"_s;
        QTest::newRow("link and file") << u"link"_s << u"a"_s;
        QTest::newRow("link and the file it leads to") << u"link"_s << u"b"_s;
        QTest::newRow("link that leads nowhere") << u"a"_s << u"dangling"_s;
        QTest::newRow("links") << u"dangling"_s << u"loop"_s;
        QTest::newRow("pipe") << u"pipe"_s << u"a"_s;
        QTest::newRow("into another folder") << u"a"_s << u"folder/inside/c"_s;
        QTest::newRow("out of another folder") << u"folder/inside"_s << u"a"_s;
        QTest::newRow("on another way") << u"./a"_s << u"folder/../b"_s;
    }
    void bothGetTheOthersName()
    {
        QFETCH(const QString, one);
        QFETCH(const QString, other);
        plant();
        const Held first = heldBy(one);
        const Held second = heldBy(other);
        QVERIFY(first.file != 0 && second.file != 0);
        const QStringList before = entriesOf(folder->path());
        QCOMPARE(exchanged(folder->path(one), folder->path(other)), RenameResult::Done);
        QVERIFY(heldBy(one) == second);
        QVERIFY(heldBy(other) == first);
        QCOMPARE(entriesOf(folder->path()), before);
        // And back.
        QCOMPARE(exchanged(folder->path(one), folder->path(other)), RenameResult::Done);
        QVERIFY(heldBy(one) == first);
        QVERIFY(heldBy(other) == second);
    }

    void anyNames_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");

        QTest::newRow("case alone") << u"photo"_s << u"PHOTO"_s;
        QTest::newRow("composed and decomposed") << u"\u00e9"_s << u"e\u0301"_s;
        QTest::newRow("Unicode") << u"Ж日.txt"_s << u"😀 é.txt"_s;
        QTest::newRow("hidden and blanks") << u".a"_s << u"  "_s;
        QTest::newRow("line feed and dashes") << u"a\nb"_s << u"--help"_s;
        QTest::newRow("longest") << QString(255, u'a') << QString(127, u'é') + u'b';
    }
    void anyNames()
    {
        QFETCH(const QString, one);
        QFETCH(const QString, other);
        QVERIFY(writeFile(one, "one"));
        QVERIFY(writeFile(other, "other"));
        QCOMPARE(exchanged(folder->path(one), folder->path(other)), RenameResult::Done);
        QCOMPARE(readFile(one), "other");
        QCOMPARE(readFile(other), "one");
        QCOMPARE(entriesOf(folder->path()).size(), 2);
    }

    void onADiskAsInMemory()
    {
        for (const QString &place : {memoryFolder(), u"/tmp"_s}) {
            const QTemporaryDir there(place + u"/orvanto-XXXXXX"_s);
            QVERIFY2(there.isValid(), qPrintable(there.errorString()));
            QVERIFY(writeFile(there.filePath(u"a"_s), "a"));
            QVERIFY(writeFile(there.filePath(u"b"_s), "b"));
            QCOMPARE(exchanged(there.filePath(u"a"_s), there.filePath(u"b"_s)), RenameResult::Done);
            QCOMPARE(readFile(there.filePath(u"a"_s)), "b");
            QCOMPARE(readFile(there.filePath(u"b"_s)), "a");
        }
    }

    // For the system nothing is to be done then.
    void namesOfOneFileStayAsTheyAre()
    {
        QVERIFY(writeFile(u"a"_s, "a"));
        QVERIFY(makeHardLink(u"a"_s, u"twin"_s));
        for (const QString &other : {u"a"_s, u"twin"_s}) {
            QCOMPARE(exchanged(folder->path(u"a"_s), folder->path(other)), RenameResult::Done);
            QCOMPARE(entriesOf(folder->path()), (QStringList{u"a"_s, u"twin"_s}));
            QCOMPARE(readFile(u"a"_s), "a");
        }
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        QTest::addColumn<Result>("result");

        const auto row = [](const char *name, const QString &one, const QString &other, Result result) {
            QTest::newRow(name) << one << other << result;
            QTest::addRow("%s, the other way", name) << other << one << result;
        };
        const QString missing = u"missing"_s;
        row("one that is not there", u"a"_s, missing, RenameResult::SourceMissing);
        row("folder and nothing", u"folder"_s, missing, RenameResult::SourceMissing);
        row("none of both", missing, u"absent"_s, RenameResult::SourceMissing);
        row("folder that is not there", u"a"_s, u"missing/b"_s, RenameResult::SourceMissing);
        row("file as a folder", u"a"_s, u"b/c"_s, RenameResult::SourceMissing);
        row("link that leads nowhere as a folder", u"a"_s, u"dangling/c"_s, RenameResult::SourceMissing);
        row("nothing, and a name that is too long", missing, QString(256, u'b'), RenameResult::SourceMissing);
        row("null character", u"a"_s, u"b"_s + QChar(0) + u'c', RenameResult::SourceMissing);
        row("half a character", u"a"_s, u"b"_s + QChar(0xd83d), RenameResult::SourceMissing);
        row("name that is too long", u"a"_s, QString(256, u'b'), RenameResult::TooLong);
        row("too long in bytes", u"a"_s, QString(128, u'é'), RenameResult::TooLong);
        row("path that is too long", u"a"_s, u"./"_s.repeated(2048) + u'b', RenameResult::TooLong);
        row("this folder", u"a"_s, u"."_s, RenameResult::Other);
        row("the folder above", u"folder"_s, u".."_s, RenameResult::Other);
        row("loop as a folder", u"a"_s, u"loop/b"_s, RenameResult::Other);
        // For the system that is no exchange at all.
        row("folder and what is in it", u"folder"_s, u"folder/inside"_s, std::nullopt);
        row("folder and what is further in it", u"folder"_s, u"folder/inside/c"_s, std::nullopt);
    }
    void refuses()
    {
        QFETCH(const QString, one);
        QFETCH(const QString, other);
        QFETCH(const Result, result);
        plant();
        const QStringList before = entriesOf(folder->path());
        const MessageCatcher silence;
        QCOMPARE(exchanged(folder->path() + u'/' + one, folder->path() + u'/' + other), result);
        QCOMPARE(silence.messages(), QStringList());
        QCOMPARE(entriesOf(folder->path()), before);
        QCOMPARE(readFile(u"a"_s), "a");
        QCOMPARE(readFile(u"b"_s), "b");
        QCOMPARE(readFile(u"folder/inside/c"_s), "c");
        QCOMPARE(QFileInfo(u"dangling"_s).symLinkTarget(), folder->path(u"nothing"_s));
    }

    void emptyPathsAreNoFiles()
    {
        QVERIFY(writeFile(u"a"_s, "a"));
        for (const QString &empty : {QString(), u""_s}) {
            QCOMPARE(exchanged(folder->path(u"a"_s), empty), RenameResult::SourceMissing);
            QCOMPARE(exchanged(empty, folder->path(u"a"_s)), RenameResult::SourceMissing);
        }
        QCOMPARE(entriesOf(folder->path()), QStringList(u"a"_s));
    }

    void folderThatMayNotBeWritten()
    {
        plant();
        QVERIFY(QDir().mkdir(u"open"_s) && writeFile(u"open/d"_s, "d"));
        QVERIFY(makeShared(u"open"_s));
        const auto readable = WithoutPrivileges::readable;
        QVERIFY(QFile::setPermissions(folder->path(), readable));
        {
            const WithoutPrivileges drop;
            for (const QString &other : {u"b"_s, u"folder"_s, u"dangling"_s, u"open/d"_s}) {
                QCOMPARE(exchanged(folder->path(u"a"_s), folder->path(other)), RenameResult::NotPermitted);
                QCOMPARE(exchanged(folder->path(other), folder->path(u"a"_s)), RenameResult::NotPermitted);
            }
            // What is there counts first.
            QCOMPARE(exchanged(folder->path(u"a"_s), folder->path(u"c"_s)), RenameResult::SourceMissing);
            QCOMPARE(exchanged(folder->path(u"c"_s), folder->path(u"a"_s)), RenameResult::SourceMissing);
        }
        QVERIFY(QFile::setPermissions(folder->path(), readable | QFile::WriteOwner));
        QCOMPARE(readFile(u"a"_s), "a");
        QCOMPARE(readFile(u"b"_s), "b");
        QCOMPARE(readFile(u"open/d"_s), "d");
    }

    void folderThatNobodyMayLookInto()
    {
        plant();
        QVERIFY(QFile::setPermissions(u"folder"_s, QFile::Permissions()));
        {
            const WithoutPrivileges drop;
            QCOMPARE(exchanged(folder->path(u"a"_s), folder->path(u"folder/inside"_s)),
                     RenameResult::NotPermitted);
            QCOMPARE(exchanged(folder->path(u"folder/inside"_s), folder->path(u"a"_s)),
                     RenameResult::NotPermitted);
        }
        QVERIFY(QFile::setPermissions(u"folder"_s, WithoutPrivileges::readable | QFile::WriteOwner));
        QCOMPARE(readFile(u"a"_s), "a");
        QCOMPARE(readFile(u"folder/inside/c"_s), "c");
    }

    void neverAcrossFileSystems()
    {
        // The folder is in one of the two places.
        const QTemporaryDir memory(memoryFolder() + u"/orvanto-XXXXXX"_s);
        const QTemporaryDir disk(u"/tmp/orvanto-XXXXXX"_s);
        QVERIFY(memory.isValid() && disk.isValid());
        const auto volume = identityOf(folder->path()).volume;
        const QTemporaryDir &elsewhere = identityOf(memory.path()).volume == volume ? disk : memory;
        QVERIFY2(identityOf(elsewhere.path()).volume != volume,
                 "needs /tmp on another file system than /dev/shm");
        QVERIFY(writeFile(u"a"_s, "a"));
        QVERIFY(writeFile(elsewhere.filePath(u"b"_s), "b"));
        const Held first = heldBy(u"a"_s);
        const Held second = heldBy(elsewhere.filePath(u"b"_s));
        QCOMPARE(exchanged(folder->path(u"a"_s), elsewhere.filePath(u"b"_s)), RenameResult::Other);
        QCOMPARE(exchanged(elsewhere.filePath(u"b"_s), folder->path(u"a"_s)), RenameResult::Other);
        QCOMPARE(exchanged(folder->path(u"a"_s), elsewhere.filePath(u"c"_s)), RenameResult::SourceMissing);
        QVERIFY(heldBy(u"a"_s) == first);
        QVERIFY(heldBy(elsewhere.filePath(u"b"_s)) == second);
        QCOMPARE(entriesOf(elsewhere.path()), QStringList(u"b"_s));
    }

    // One renamer after the other: it keeps a folder's part of the paths.
    void oneAfterTheOther()
    {
        plant();
        FileRenamer renamer;
        QCOMPARE(renamer.exchange(folder->path(u"a"_s), folder->path(u"b"_s)), RenameResult::Done);
        QCOMPARE(renamer.exchange(folder->path(u"a"_s), folder->path(u"missing"_s)),
                 RenameResult::SourceMissing);
        QCOMPARE(renamer.rename(folder->path(u"a"_s), folder->path(u"free"_s)), RenameResult::Done);
        QCOMPARE(renamer.exchange(folder->path(u"folder/inside/c"_s), folder->path(u"free"_s)),
                 RenameResult::Done);
        QCOMPARE(readFile(u"b"_s), "a");
        QCOMPARE(readFile(u"free"_s), "c");
        QCOMPARE(readFile(u"folder/inside/c"_s), "b");
    }
};

QTEST_GUILESS_MAIN(TestFileExchange)
#include "tst_fileexchange.moc"
