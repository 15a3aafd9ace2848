// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/journalfiles.h"

#include <QLockFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class TestJournalFolder final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;
    int made = 0;

    /// A run over one fresh file.
    QString oneRun()
    {
        const QString name = u"f%1"_s.arg(++made);
        files->tree.addFile(name);
        return files->run({{name, name + u'x'}});
    }
    QString oneInterruptedRun()
    {
        const QString name = u"f%1"_s.arg(++made);
        files->tree.addFile(name);
        return files->interruptedRun({{name, name + u'x'}});
    }
    [[nodiscard]] QStringList listed() const
    {
        QStringList names;
        for (const JournalInfo &journal : files->journals.list())
            names.append(journal.name);
        return names;
    }
    /// Makes a journal so large, without writing all of it.
    void enlarge(const QString &name, qint64 size) const
    {
        QFile file(files->journals.filePath(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = file.readAll();
        const qsizetype secondLine = bytes.indexOf('\n') + 1;
        QVERIFY(file.resize(size) && file.seek(secondLine) &&
                file.write(QByteArray(bytes.size(), '\0')) >= 0);
        QVERIFY(file.seek(size - (bytes.size() - secondLine) - 1));
        QVERIFY(file.write("\n" + bytes.sliced(secondLine)) > 0);
    }

private slots:
    void init() { files = std::make_unique<JournalledTree>(); }
    void cleanup() { files.reset(); }

    void noFolderIsNoHistory()
    {
        QVERIFY(files->journals.list().isEmpty());
        QVERIFY(!JournalFolder::undoable({}));
        QVERIFY(!JournalFolder::redoable({}));
        files->journals.prune();
        QVERIFY(!QFileInfo::exists(files->tree.path(u"data"_s)));
    }

    void newestComesFirstWithItsFigures()
    {
        const QDateTime before = QDateTime::currentDateTimeUtc();
        files->tree.addFile(u"sub/a"_s);
        files->tree.addFile(u"b"_s);
        files->tree.addFile(u"c"_s);
        files->tree.addFile(u"sub/d"_s);
        const QString first = oneRun();
        const QString second =
            files->run({{u"sub/a"_s, u"a2"_s}, {u"b"_s, u"b2"_s}, {u"c"_s, u"b2"_s}, {u"sub/d"_s, u"d2"_s}});
        QCOMPARE(listed(), (QStringList{second, first}));
        const JournalInfo info = files->info(second);
        QCOMPARE(info.state, JournalInfo::State::Complete);
        QVERIFY(info.time >= before.addMSecs(-1) && info.time <= QDateTime::currentDateTimeUtc());
        QCOMPARE(info.program, u"1.2.3"_s);
        QCOMPARE(info.rows, 4);
        QCOMPARE(info.renamed, 3);
        QCOMPARE(info.refused, 1);
        QCOMPARE(info.standing, 3);
        QCOMPARE(info.folder, files->tree.path(u"sub"_s));
        QCOMPARE(info.folders, 2);
        QVERIFY(info.isRun());
        QVERIFY(!info.isOpen);
        static const QRegularExpression pattern(u"^\\d{8}T\\d{9}Z-[0-9a-f]{8}\\.jsonl$"_s);
        QVERIFY(pattern.match(first).hasMatch());
    }

    /// A clock that was put back does not bring the order of the runs out of order.
    void laterRunsHaveGreaterNames()
    {
        QStringList names = {oneRun()};
        const QString future = u"29990101T000000000Z-00000000.jsonl"_s;
        files->write(future, files->bytes(names.first()));
        names.append(future);
        for (int i = 0; i < 20; ++i)
            names.append(oneRun());
        QStringList sorted = names;
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(sorted, names);
    }

    void runInHandIsToldApart()
    {
        files->tree.addFile(u"a"_s);
        auto journal = files->begin(1);
        files->renameAll(*journal, {{u"a"_s, u"b"_s}});
        const QString name = JournalledTree::nameOf(*journal);
        const JournalFolder other(files->tree.path(u"data/undo"_s));
        QCOMPARE(other.list().first().state, JournalInfo::State::InHand);
        QVERIFY(!JournalFolder::undoable(other.list()));
        files->journals.prune();
        QVERIFY(!files->journals.forget(name));
        QVERIFY(!files->journals.forgetAll());
        QCOMPARE(listed(), QStringList{name});
        journal->end(false);
        QCOMPARE(files->undoable(), name);
    }

    /// Who is killed between making the folder's lock and writing its name leaves an empty one.
    void lockOfNobodyHoldsUpNobody()
    {
        const QString first = oneRun();
        files->tree.addFile(u"data/undo/lock"_s);
        QCOMPARE(listed(), (QStringList{oneRun(), first}));
        files->tree.addFile(u"data/undo/lock"_s);
        QVERIFY(files->journals.forgetAll());
        QCOMPARE(listed(), QStringList());
    }
    void lockOfALivingOwnerIsKept()
    {
        oneRun();
        QLockFile lock(files->tree.path(u"data/undo/lock"_s));
        QVERIFY(lock.lock());
        QVERIFY(!files->journals.forgetAll());
        QCOMPARE(listed().size(), 1);
        lock.unlock();
        QVERIFY(files->journals.forgetAll());
    }

    void otherFilesAreNoJournals()
    {
        const QString run = oneRun();
        files->tree.addFile(u"data/undo/notes.txt"_s);
        files->tree.addFolder(u"data/undo/20260801T135741123Z-00000000.jsonl"_s);
        files->tree.addLink(u"data/undo/20260801T135741124Z-00000000.jsonl"_s,
                            files->tree.path(u"nowhere"_s));
        QCOMPARE(listed(), QStringList{run});
        QVERIFY(files->journals.forgetAll());
        QVERIFY(QFileInfo::exists(files->tree.path(u"data/undo/notes.txt"_s)));
        QVERIFY(listed().isEmpty());
    }

    void fiftyAreKept()
    {
        QStringList runs;
        for (int i = 0; i < JournalFolder::mostJournals + 5; ++i)
            runs.prepend(oneRun());
        files->journals.prune();
        QCOMPARE(listed(), runs.first(JournalFolder::mostJournals));
    }

    void sixtyFourMegabytesAreKept()
    {
        const QString old = oneRun();
        const QString large = oneRun();
        enlarge(large, 40 << 20);
        const QString small = oneRun();
        files->journals.prune();
        QCOMPARE(listed(), (QStringList{small, large, old}));
        enlarge(small, 30 << 20);
        files->journals.prune();
        QCOMPARE(listed(), QStringList{small});
        // The newest stays, however large.
        enlarge(small, 100 << 20);
        files->journals.prune();
        QCOMPARE(listed(), QStringList{small});
        QCOMPARE(files->undo(small), QStringList{u"renamed"_s});
    }

    void interruptedRunIsKeptUntilDealtWith()
    {
        const QString left = oneInterruptedRun();
        const QString takenBack = oneInterruptedRun();
        const QString open = oneInterruptedRun();
        const QString last = oneRun();
        enlarge(last, JournalFolder::mostBytes);
        files->journals.prune();
        QCOMPARE(listed(), (QStringList{last, open, takenBack, left}));
        QVERIFY(files->journals.leave(left));
        QVERIFY(!files->info(left).isOpen);
        QCOMPARE(files->info(left).state, JournalInfo::State::Interrupted);
        QVERIFY(files->info(left).canTakeBack());
        files->journals.prune();
        QCOMPARE(listed(), (QStringList{last, open, takenBack}));
        QCOMPARE(files->undo(takenBack), QStringList{u"renamed"_s});
        enlarge(files->journals.list().first().name, JournalFolder::mostBytes);
        oneRun();
        files->journals.prune();
        QVERIFY(!listed().contains(takenBack));
        QVERIFY(listed().contains(open));
    }

    void runThatWasKilledBeforeItsFirstRenameIsSwept()
    {
        const QString run = oneRun();
        const QByteArray bytes = files->bytes(run);
        const QByteArray header = bytes.first(bytes.indexOf('\n') + 1);
        files->write(u"20260801T135741123Z-00000000.jsonl"_s, header + QByteArray(1000, '\0'));
        files->write(u"20260801T135741123Z-00000001.jsonl"_s, header.chopped(5));
        files->write(u"20260801T135741123Z-00000002.jsonl"_s, {});
        files->write(u"20260801T135741123Z-00000003.jsonl"_s, QByteArray(5000, '\0'));
        files->journals.prune();
        QCOMPARE(listed(), QStringList{run});
    }

    /// An undo means nothing without its run.
    void familiesGoTogether()
    {
        const QString first = oneRun();
        files->undo(first);
        const QString second = oneRun();
        files->undo(second);
        QCOMPARE(listed().size(), 4);
        QVERIFY(files->journals.forget(files->journals.list().first().name));
        QCOMPARE(listed().size(), 2);
        QCOMPARE(listed().last(), first);
        QVERIFY(files->journals.forget(first));
        QVERIFY(listed().isEmpty());
        QVERIFY(!files->journals.forget(first));
    }

    /// Undone and redone many times: what cancels out goes, and what is so stays so.
    void undoneAndRedoneManyTimes()
    {
        const QString run = oneRun();
        for (int i = 0; i < JournalFolder::mostJournals; ++i) {
            QCOMPARE(files->undo(files->undoable()), QStringList{u"renamed"_s});
            QVERIFY(files->info(run).isTakenBack());
            QCOMPARE(files->undo(files->redoable()), QStringList{u"renamed"_s});
            QCOMPARE(files->info(run).standing, 1);
            QVERIFY(listed().size() <= JournalFolder::mostJournals);
        }
        QVERIFY(listed().contains(run));
    }

    void twoProcessesWorthOfFolders()
    {
        JournalFolder other(files->tree.path(u"data/undo"_s));
        QString error;
        const auto one = files->begin(1);
        const auto two = other.begin({}, 1, {}, &error);
        QVERIFY(two);
        QVERIFY(one->path() != two->path());
        QCOMPARE(files->journals.list().size(), 2);
        for (const JournalInfo &journal : files->journals.list())
            QCOMPARE(journal.state, JournalInfo::State::InHand);
    }

    void circleOfUndosIsNone()
    {
        const QString run = oneRun();
        const QByteArray bytes = files->bytes(run);
        const QString a = u"20260801T135741123Z-00000000.jsonl"_s;
        const QString b = u"20260801T135741124Z-00000000.jsonl"_s;
        const auto undoOf = [&](const QString &name) {
            const QByteArray kind = "\"kind\":\"undo\",\"of\":\"" + name.toLatin1() + '"';
            return QByteArray(bytes).replace("\"kind\":\"run\"", kind);
        };
        files->write(a, undoOf(b));
        files->write(b, undoOf(a));
        QCOMPARE(files->info(a).state, JournalInfo::State::Unreadable);
        const TakenBack back = files->journals.takenBack(a, files->journals.list());
        int gone = 0;
        JournalEntry entry;
        for (entry.number = 0; entry.number < 10; ++entry.number)
            gone += back.standing(entry) ? 0 : 1;
        QVERIFY(gone <= 1);
        files->journals.prune();
        QVERIFY(files->journals.forget(a));
    }
};

QTEST_GUILESS_MAIN(TestJournalFolder)
#include "tst_journalfolder.moc"
