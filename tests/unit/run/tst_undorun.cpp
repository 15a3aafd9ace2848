// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/spelling.h"
#include "support/journalfiles.h"

#include "namesofthesystem.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString refusal(UndoRun::Refusal reason)
{
    return u"refusal %1"_s.arg(static_cast<int>(reason));
}

} // namespace

class TestUndoRun final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;

    [[nodiscard]] QStringList names() const
    {
        QStringList names = files->tree.names();
        names.removeOne(u"data"_s);
        return names;
    }
    /// Until a file that is made now is born later than the runs so far.
    static void waitForTheClock()
    {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        QTRY_VERIFY(QDateTime::currentMSecsSinceEpoch() > before + 20);
    }

private slots:
    void init() { files = std::make_unique<JournalledTree>(); }
    void cleanup() { files.reset(); }

    void shiftComesBack()
    {
        for (const QString &name : {u"1"_s, u"2"_s, u"3"_s})
            files->tree.addFile(name);
        const QString run = files->run({{u"3"_s, u"4"_s}, {u"2"_s, u"3"_s}, {u"1"_s, u"2"_s}});
        QCOMPARE(names(), (QStringList{u"2"_s, u"3"_s, u"4"_s}));
        QCOMPARE(files->undo(run), QStringList(3, u"renamed"_s));
        QCOMPARE(names(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
        for (const QString &name : names())
            QCOMPARE(files->tree.content(name), name.toUtf8());
        QVERIFY(files->info(run).isTakenBack());
        QCOMPARE(files->undo(run), QStringList{refusal(UndoRun::Refusal::NothingToDo)});
    }

    void undoAndRedoInTurn()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        const QString first = files->run({{u"f000"_s, u"a"_s}});
        const QString second = files->run({{u"f001"_s, u"b"_s}});
        const QStringList stages[] = {{u"a"_s, u"b"_s},
                                      {u"a"_s, u"f001"_s},
                                      {u"f000"_s, u"f001"_s},
                                      {u"a"_s, u"f001"_s},
                                      {u"a"_s, u"b"_s}};
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(names(), stages[0]);
            QCOMPARE(files->undoable(), second);
            QCOMPARE(files->redoable(), QString());
            files->undo(files->undoable());
            QCOMPARE(names(), stages[1]);
            QCOMPARE(files->undoable(), first);
            QVERIFY(!files->redoable().isEmpty());
            files->undo(files->undoable());
            QCOMPARE(names(), stages[2]);
            QCOMPARE(files->undoable(), QString());
            files->undo(files->redoable());
            QCOMPARE(names(), stages[3]);
            QCOMPARE(files->undoable(), first);
            files->undo(files->redoable());
            QCOMPARE(names(), stages[4]);
        }
    }

    void newRunEndsRedo()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        files->undo(files->run({{u"f000"_s, u"a"_s}}));
        QVERIFY(!files->redoable().isEmpty());
        files->run({{u"f001"_s, u"b"_s}});
        QCOMPARE(files->redoable(), QString());
    }

    /// What stood in the way is said, nothing is lost, and the rest can be tried again.
    void whatStandsInTheWayIsLeftAlone()
    {
        for (const QString &name : {u"free"_s, u"taken"_s, u"gone"_s, u"replaced"_s, u"by hand"_s})
            files->tree.addFile(name);
        const QString run = files->run({{u"free"_s, u"free2"_s},
                                        {u"taken"_s, u"taken2"_s},
                                        {u"gone"_s, u"gone2"_s},
                                        {u"replaced"_s, u"replaced2"_s},
                                        {u"by hand"_s, u"by hand2"_s}});
        waitForTheClock();
        files->tree.addFile(u"taken"_s, "other");
        QVERIFY(QFile::remove(files->tree.path(u"gone2"_s)));
        QVERIFY(QFile::remove(files->tree.path(u"replaced2"_s)));
        files->tree.addFile(u"replaced2"_s, "other");
        QVERIFY(QFile::rename(files->tree.path(u"by hand2"_s), files->tree.path(u"by hand"_s)));
        QCOMPARE(files->undo(run),
                 (QStringList{u"was-back"_s, u"other-file"_s, u"missing"_s, u"taken"_s, u"renamed"_s}));
        QCOMPARE(names(), (QStringList{u"by hand"_s, u"free"_s, u"replaced2"_s, u"taken"_s, u"taken2"_s}));
        QCOMPARE(files->tree.content(u"taken"_s), "other");
        QCOMPARE(files->tree.content(u"taken2"_s), "taken");
        QCOMPARE(files->tree.content(u"replaced2"_s), "other");
        const JournalInfo info = files->info(run);
        QVERIFY(info.isPartlyTakenBack());
        QCOMPARE(info.standing, 3);
        QVERIFY(QFile::remove(files->tree.path(u"taken"_s)));
        QCOMPARE(files->undo(run), (QStringList{u"other-file"_s, u"missing"_s, u"renamed"_s}));
        QCOMPARE(files->tree.content(u"taken"_s), "taken");
        QCOMPARE(files->info(run).standing, 2);
    }

    void editedFileIsTheSame()
    {
        files->tree.addFile(u"a"_s);
        const QString run = files->run({{u"a"_s, u"b"_s}});
        waitForTheClock();
        QFile file(files->tree.path(u"b"_s));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write("more") == 4);
        file.close();
        QCOMPARE(files->undo(run), QStringList{u"renamed"_s});
        QCOMPARE(files->tree.content(u"a"_s), "amore");
    }

    void folderOfTheFilesWasRenamed()
    {
        files->tree.addFile(u"sub/a"_s);
        const QString run = files->run({{u"sub/a"_s, u"b"_s}});
        QVERIFY(QDir().rename(files->tree.path(u"sub"_s), files->tree.path(u"sub2"_s)));
        QCOMPARE(files->undo(run), QStringList{u"missing"_s});
        // Another folder by that name, with another file in it.
        waitForTheClock();
        files->tree.addFile(u"sub/b"_s, "other");
        QCOMPARE(files->undo(run), QStringList{u"other-file"_s});
        QCOMPARE(files->tree.content(u"sub/b"_s), "other");
    }

    void namesThatLedElsewhereComeBack()
    {
        files->tree.addFile(u"a"_s);
        files->tree.addFolder(u"sub"_s);
        files->tree.addFile(u"sub/c"_s, "c");
        const QString run = files->run({{u"a"_s, u"sub/b"_s}, {u"sub/c"_s, u"../c"_s}});
        QCOMPARE(files->tree.names(u"sub"_s), QStringList{u"b"_s});
        QCOMPARE(files->undo(run), QStringList(2, u"renamed"_s));
        QCOMPARE(files->tree.content(u"a"_s), "a");
        QCOMPARE(files->tree.content(u"sub/c"_s), "c");
    }

    void hostileNamesComeBack()
    {
        const QStringList odd = {u"a\nb"_s, u"\"q\\"_s, u"\u202Egpj"_s, u"🎉"_s, u"\x7f"_s, u"\uFEFFa"_s};
        QList<std::pair<QString, QString>> renames;
        for (const QString &name : odd) {
            if (namesOfTheSystem != FolderTraits::Names::Any && hasForbiddenCharacter(name))
                continue;
            files->tree.addFile(name);
            renames.append({name, name + name});
        }
        const QStringList before = names();
        const QString run = files->run(renames);
        QCOMPARE(files->undo(run), QStringList(renames.size(), u"renamed"_s));
        QCOMPARE(names(), before);
    }

    void laterRunOverTheSameFilesComesFirst()
    {
        files->tree.addFiles(u"f%1"_s, 3);
        const QString first = files->run({{u"f000"_s, u"a"_s}, {u"f001"_s, u"b"_s}});
        const QString apart = files->run({{u"f002"_s, u"c"_s}});
        const QString second = files->run({{u"b"_s, u"x"_s}});
        QCOMPARE(files->journals.touchedBy(first), second);
        QCOMPARE(files->journals.touchedBy(apart), QString());
        QCOMPARE(files->journals.touchedRuns(false), (QHash<QString, QString>{{first, second}}));
        const QString third = files->run({{u"a"_s, u"y"_s}, {u"x"_s, u"z"_s}});
        QCOMPARE(files->journals.touchedRuns(false),
                 (QHash<QString, QString>{{first, third}, {second, third}}));
        QCOMPARE(files->journals.touchedRuns(true), (QHash<QString, QString>()));
        QCOMPARE(files->undo(third), QStringList(2, u"renamed"_s));
        QCOMPARE(files->undo(first), QStringList{refusal(UndoRun::Refusal::TouchedLater)});
        QCOMPARE(files->undo(apart), QStringList{u"renamed"_s});
        QCOMPARE(files->undo(second), QStringList{u"renamed"_s});
        QCOMPARE(files->journals.touchedBy(first), QString());
        QCOMPARE(files->undo(first), QStringList(2, u"renamed"_s));
        QCOMPARE(names(), (QStringList{u"f000"_s, u"f001"_s, u"f002"_s}));
    }

    void laterRunCountsAsFarAsItStands()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        const QString first = files->run({{u"f000"_s, u"a"_s}});
        const QString second = files->run({{u"f001"_s, u"b"_s}, {u"a"_s, u"x"_s}});
        {
            const auto begun = UndoRun::begin(files->journals, second, files->disk, {});
            QCOMPARE(begun.run->next()->to, files->tree.path(u"a"_s));
            begun.run->end(true);
        }
        QVERIFY(files->info(second).isPartlyTakenBack());
        QCOMPARE(files->undo(first), QStringList{u"renamed"_s});
        QCOMPARE(names(), (QStringList{u"b"_s, u"f000"_s}));
    }

    void cancelledUndoGoesOnLater()
    {
        files->tree.addFiles(u"f%1"_s, 3);
        const QString run = files->run({{u"f000"_s, u"a"_s}, {u"f001"_s, u"b"_s}, {u"f002"_s, u"c"_s}});
        {
            const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
            QCOMPARE(begun.run->total(), 3);
            QCOMPARE(begun.run->next()->to, files->tree.path(u"f002"_s));
            begun.run->end(true);
        }
        QVERIFY(files->info(run).isPartlyTakenBack());
        QCOMPARE(names(), (QStringList{u"a"_s, u"b"_s, u"f002"_s}));
        QCOMPARE(files->undo(run), QStringList(2, u"renamed"_s));
        QVERIFY(files->info(run).isTakenBack());
        // Redo takes back the one undo, then the other.
        files->undo(files->redoable());
        QCOMPARE(names(), (QStringList{u"a"_s, u"b"_s, u"f002"_s}));
        files->undo(files->redoable());
        QCOMPARE(names(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    }

    void interruptedRunIsTakenBack()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        const QString run = files->interruptedRun({{u"f000"_s, u"a"_s}, {u"f001"_s, u"b"_s}});
        QCOMPARE(files->info(run).state, JournalInfo::State::Interrupted);
        QVERIFY(files->info(run).isOpen);
        // The last rename was told, and then came the kill.
        QVERIFY(QFile::rename(files->tree.path(u"b"_s), files->tree.path(u"f001"_s)));
        QCOMPARE(files->undo(run), (QStringList{u"was-back"_s, u"renamed"_s}));
        QCOMPARE(names(), (QStringList{u"f000"_s, u"f001"_s}));
        QVERIFY(files->info(run).isTakenBack());
        QVERIFY(!files->info(run).isOpen);
    }

    /// The undo's last rename was told, and not done: the run must not count as taken back.
    void interruptedUndoLeavesNothingOut()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        const QString run = files->run({{u"f000"_s, u"a"_s}, {u"f001"_s, u"b"_s}});
        QString undo;
        {
            const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
            (void)begun.run->next();
            (void)begun.run->next();
            undo = files->journals.list().first().name;
            const QByteArray asItWas = files->bytes(undo);
            begun.run->end(false);
            files->write(undo, asItWas);
        }
        QVERIFY(QFile::rename(files->tree.path(u"f000"_s), files->tree.path(u"a"_s)));
        QVERIFY(files->info(run).canTakeBack());
        QCOMPARE(files->undoable(), run);
        QCOMPARE(files->undo(run), QStringList{u"renamed"_s});
        QCOMPARE(names(), (QStringList{u"f000"_s, u"f001"_s}));
        QVERIFY(files->info(run).isTakenBack());
    }

    void oneAtATime()
    {
        files->tree.addFile(u"a"_s);
        const QString run = files->run({{u"a"_s, u"b"_s}});
        const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
        QCOMPARE(files->undo(run), QStringList{refusal(UndoRun::Refusal::InHand)});
        QVERIFY(!files->journals.forget(run));
        QVERIFY(begun.run->next()->isDone());
        begun.run->end(false);
        QVERIFY(files->journals.forget(run));
    }

    void journalsOfOthersAreNotTakenBack()
    {
        files->tree.addFile(u"a"_s);
        const QString run = files->run({{u"a"_s, u"b"_s}});
        const QByteArray bytes = files->bytes(run);
        files->write(run, QByteArray(bytes).replace(thisMachine().toLatin1(), "0000000000000000"));
        QCOMPARE(files->info(run).state, JournalInfo::State::OtherMachine);
        QCOMPARE(files->undo(run), QStringList{refusal(UndoRun::Refusal::NotOurs)});
        files->write(run, QByteArray(bytes).replace("\"version\":1", "\"version\":3"));
        QCOMPARE(files->info(run).state, JournalInfo::State::Newer);
        QCOMPARE(files->undo(run), QStringList{refusal(UndoRun::Refusal::NotOurs)});
        files->write(run, "garbage\n");
        QCOMPARE(files->info(run).state, JournalInfo::State::Unreadable);
        QCOMPARE(files->undo(run), QStringList{refusal(UndoRun::Refusal::NotOurs)});
        QCOMPARE(files->undo(u"none"_s), QStringList{refusal(UndoRun::Refusal::NothingToDo)});
        QCOMPARE(files->undoable(), QString());
        files->write(run, bytes);
        QCOMPARE(files->undo(run), QStringList{u"renamed"_s});
    }

    /// Without room for a journal of its own an undo is done all the same.
    void undoWithoutAJournal()
    {
        files->tree.addFile(u"a"_s);
        const QString run = files->run({{u"a"_s, u"b"_s}});
        const QString lock = files->journals.filePath(u"lock"_s);
        files->tree.addFolder(u"data/undo/lock"_s);
        const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
        QVERIFY(begun.run);
        QVERIFY(!begun.run->journalError().isEmpty());
        QCOMPARE(begun.run->next()->result, UndoStep::Result::TakenBack);
        begun.run->end(false);
        QVERIFY(QDir().rmdir(lock));
        QCOMPARE(names(), QStringList{u"a"_s});
        QCOMPARE(files->undo(run), QStringList{u"was-back"_s});
        QVERIFY(files->info(run).isTakenBack());
    }

    void resultsHaveStableIds()
    {
        const QList<std::pair<UndoStep::Result, QString>> ids = {
            {UndoStep::Result::TakenBack, u"renamed"_s}, {UndoStep::Result::WasBack, u"was-back"_s},
            {UndoStep::Result::Missing, u"missing"_s},   {UndoStep::Result::OtherFile, u"other-file"_s},
            {UndoStep::Result::Taken, u"taken"_s},       {UndoStep::Result::Refused, u"refused"_s}};
        for (const auto &[result, id] : ids)
            QCOMPARE(idOf(result), id);
    }
};

QTEST_GUILESS_MAIN(TestUndoRun)
#include "tst_undorun.moc"
