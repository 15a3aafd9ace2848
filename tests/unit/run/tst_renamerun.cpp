// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "support/temptree.h"

#include "namesofthesystem.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A disk that answers as told.
class AnsweringDisk final : public Disk
{
public:
    RenameResult answer = RenameResult::Done;
    QStringList calls;

    RenameResult rename(const FilePath &from, const QString &to) override
    {
        calls.append(from.path + " -> "_L1 + to);
        return answer;
    }
    /// A folder ends with a separator and a dot.
    std::optional<FileIdentity> identity(const QString &path) const override
    {
        const bool isFolder = path.endsWith("/."_L1);
        FileIdentity there;
        there.kind = isFolder ? FileIdentity::Kind::Folder : FileIdentity::Kind::File;
        there.volume = isFolder ? volumeOfFolders : 1;
        return there;
    }
    quint64 volumeOfFolders = 1;
};

} // namespace

class TestRenameRun final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestFolder> folder;
    SystemDisk disk;

    [[nodiscard]] Outcome once(const QString &name, const QString &newName)
    {
        RenameRun run(disk);
        return run.next(FilePath::of(folder->path(name)), newName);
    }

private slots:
    void init() { folder = std::make_unique<TestFolder>(); }
    void cleanup() { folder.reset(); }

    void fatesHaveStableIds()
    {
        const QList<std::pair<Fate, QString>> ids = {{Fate::Renamed, u"renamed"_s},
                                                     {Fate::Unchanged, u"unchanged"_s},
                                                     {Fate::Taken, u"taken"_s},
                                                     {Fate::TakenByRow, u"taken-by-row"_s},
                                                     {Fate::LeavesLater, u"leaves-later"_s},
                                                     {Fate::Missing, u"missing"_s},
                                                     {Fate::Empty, u"empty"_s},
                                                     {Fate::Separator, u"separator"_s},
                                                     {Fate::NotAllowed, u"not-allowed"_s},
                                                     {Fate::TooLong, u"too-long"_s},
                                                     {Fate::ReadOnly, u"read-only"_s},
                                                     {Fate::NoText, u"no-text"_s},
                                                     {Fate::Unknown, u"unknown"_s},
                                                     {Fate::NoFolder, u"no-folder"_s},
                                                     {Fate::OtherFile, u"other-file"_s}};
        for (const auto &[fate, id] : ids)
            QCOMPARE(idOf(fate), id);
    }

    void asksTheDiskWhateverTheNameIs()
    {
        AnsweringDisk model;
        RenameRun run(model);
        const FilePath file = FilePath::of(u"/dir/a"_s);
        for (const QString &name : {u"b"_s, u"a"_s, u""_s, u"."_s, u"../c"_s})
            (void)run.next(file, name);
        // With a drive where there are drives.
        const QString there = file.folder().toString();
        QStringList expected;
        for (const QString &name : {u"/b"_s, u"/a"_s, u"/"_s, u"/."_s, u"/../c"_s})
            expected.append(there + u"/a -> "_s + there + name);
        QCOMPARE(model.calls, expected);
    }

    void countsRows()
    {
        AnsweringDisk model;
        RenameRun run(model);
        const FilePath file = FilePath::of(u"/dir/a"_s);
        for (int row = 0; row < 10; ++row) {
            QCOMPARE(run.handled(), row);
            model.answer = row % 3 == 0 ? RenameResult::Other : RenameResult::Done;
            QCOMPARE(run.next(file, u"b"_s).isRenamed(), row % 3 != 0);
        }
        QCOMPARE(run.handled(), 10);
        QCOMPARE(run.failed(), 4);
        QCOMPARE(run.processed(), 6);
    }

    // Deliberate.
    void aCancelCountsOneLess()
    {
        AnsweringDisk model;
        RenameRun run(model);
        for (int row = 0; row < 4; ++row)
            (void)run.next(FilePath::of(u"/dir/a"_s), u"b"_s);
        run.cancel();
        QCOMPARE(run.processed(), 3);
        QCOMPARE(run.failed(), 0);
    }

    void saysWhatBecameOfTheFile_data()
    {
        QTest::addColumn<QString>("newName");
        QTest::addColumn<Fate>("fate");
        QTest::addColumn<Fate>("reason");
        const auto row = [](const char *name, const QString &newName, Fate fate) {
            QTest::newRow(name) << newName << fate << fate;
        };
        const auto elsewhere = [](const char *name, const QString &newName, Fate reason) {
            QTest::newRow(name) << newName << Fate::Separator << reason;
        };
        row("free", u"b"_s, Fate::Renamed);
        row("its own name", u"a"_s, Fate::Unchanged);
        row("a file's name", u"other"_s, Fate::Taken);
        row("a folder's name", u"sub"_s, Fate::Taken);
        row("nothing", u""_s, Fate::Empty);
        row("this folder", u"."_s, Fate::Empty);
        row("the folder above", u".."_s, Fate::Empty);
        row("three dots", u"..."_s, areDotsDropped ? Fate::NotAllowed : Fate::Renamed);
        row("too long", QString(256, u'x'), Fate::TooLong);
        row("half a character", u"x"_s + QChar(0xd83d), Fate::NoText);
        row("half a character, elsewhere", u"sub/x"_s + QChar(0xd83d), Fate::NoText);
        row("null character", u"x"_s + QChar(0), Fate::NotAllowed);
        elsewhere("into a folder", u"sub/b"_s, Fate::Renamed);
        elsewhere("here by a detour", u"sub/../b"_s, Fate::Renamed);
        elsewhere("itself by a detour", u"sub/../a"_s, Fate::Taken);
        elsewhere("taken there", u"sub/taken"_s, Fate::Taken);
        elsewhere("no name there", u"sub/"_s, Fate::Empty);
        elsewhere("no such folder", u"nowhere/b"_s, Fate::NoFolder);
        elsewhere("a file is no folder", u"other/b"_s, Fate::NoFolder);
        elsewhere("too long there", u"sub/"_s + QString(256, u'x'), Fate::TooLong);
    }
    void saysWhatBecameOfTheFile()
    {
        QFETCH(QString, newName);
        QFETCH(Fate, fate);
        QFETCH(Fate, reason);
        QVERIFY(QDir().mkdir(u"sub"_s));
        QVERIFY(writeFile(u"a"_s, "a"));
        QVERIFY(writeFile(u"other"_s, "other"));
        QVERIFY(writeFile(u"sub/taken"_s, "taken"));
        const Outcome outcome = once(u"a"_s, newName);
        QCOMPARE(idOf(outcome.fate), idOf(fate));
        QCOMPARE(idOf(outcome.reason), idOf(reason));
        QCOMPARE(outcome.row, -1);
        QCOMPARE(outcome.path, folder->path() + u'/' + newName);
        QCOMPARE(outcome.isRenamed(), reason == Fate::Renamed);
        QCOMPARE(readFile(outcome.isRenamed() ? outcome.path : folder->path(u"a"_s)), "a");
    }

    void missingFilesAreMissing()
    {
        QVERIFY(writeFile(u"other"_s, "other"));
        for (const QString &name : {u"b"_s, u"a"_s, u"other"_s})
            QCOMPARE(idOf(once(u"a"_s, name).fate), u"missing"_s);
        QCOMPARE(idOf(once(u"no such folder/a"_s, u"b"_s).fate), u"missing"_s);
        QCOMPARE(idOf(once(u"other/a"_s, u"b"_s).fate), u"missing"_s);
    }

    void anotherFileSystemIsTold()
    {
        AnsweringDisk model;
        model.answer = RenameResult::Other;
        RenameRun run(model);
        const FilePath file = FilePath::of(u"/dir/a"_s);
        QCOMPARE(idOf(run.next(file, u"sub/b"_s).reason), idOf(Fate::Unknown));
        model.volumeOfFolders = 2;
        QCOMPARE(idOf(run.next(file, u"sub/b"_s).reason), idOf(Fate::NotAllowed));
    }

    void everyAnswerOfTheDiskHasItsFate()
    {
        const QList<std::pair<RenameResult, Fate>> fates = {
            {RenameResult::Done, Fate::Renamed},          {RenameResult::TargetExists, Fate::Taken},
            {RenameResult::SourceMissing, Fate::Missing}, {RenameResult::NotPermitted, Fate::ReadOnly},
            {RenameResult::BadName, Fate::NotAllowed},    {RenameResult::TooLong, Fate::TooLong},
            {RenameResult::Other, Fate::Unknown}};
        for (const auto &[answer, fate] : fates) {
            AnsweringDisk model;
            model.answer = answer;
            RenameRun run(model);
            QCOMPARE(idOf(run.next(FilePath::of(u"/dir/a"_s), u"b"_s).fate), idOf(fate));
        }
    }
};

QTEST_GUILESS_MAIN(TestRenameRun)
#include "tst_renamerun.moc"
