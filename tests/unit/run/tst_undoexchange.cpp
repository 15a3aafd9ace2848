// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/journalfiles.h"
#include "support/plannedscene.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Undos of exchanges of which one file is lost, at least for a while.
class TestUndoExchange final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;
    std::unique_ptr<PlannedScene> scene;

    [[nodiscard]] QString path(const QString &name) const { return files->tree.path(u"f/"_s + name); }
    /// The names and what they hold.
    [[nodiscard]] QStringList now() const
    {
        QStringList found;
        for (const QString &name : files->tree.names(u"f"_s))
            found.append(name + u'=' + QString::fromUtf8(files->tree.content(u"f/"_s + name)));
        return found;
    }
    /// Files that hold their names are renamed so, in as many steps; the run's name.
    QString planned(const QString &rows, int steps = -1)
    {
        scene = std::make_unique<PlannedScene>(files->tree.path(u"f"_s), rows);
        scene->plant();
        const SystemDiskView view;
        Plan plan(view);
        scene->fill(plan);
        QString error;
        const auto journal = files->journals.beginPlanned({}, scene->count(), &error);
        PlannedRun run(files->disk, plan, journal.get());
        while (steps-- != 0 && run.next()) {
        }
        run.end();
        return JournalledTree::nameOf(*journal);
    }
    /// Out of the folder, and back to where it was.
    void lose(const QString &name) { QVERIFY(QFile::rename(path(name), files->tree.path(u"lost"_s))); }
    void find(const QString &name) { QVERIFY(QFile::rename(files->tree.path(u"lost"_s), path(name))); }

private slots:
    void init() { files = std::make_unique<JournalledTree>(); }
    void cleanup()
    {
        scene.reset();
        files.reset();
    }

    void lostFileIsToldEachTime_data()
    {
        QTest::addColumn<QString>("lost");
        QTest::addColumn<QStringList>("results");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("the other") << u"a"_s << QStringList{u"renamed"_s, u"missing"_s}
                                   << QStringList(u"a=a"_s);
        QTest::newRow("its own") << u"b"_s << QStringList{u"missing"_s, u"renamed"_s}
                                 << QStringList(u"b=b"_s);
    }
    void lostFileIsToldEachTime()
    {
        QFETCH(const QString, lost);
        QFETCH(const QStringList, results);
        QFETCH(const QStringList, left);
        const QString run = planned(u"a>b b>a"_s);
        QCOMPARE(now(), (QStringList{u"a=b"_s, u"b=a"_s}));
        lose(lost);
        QCOMPARE(files->undo(run), results);
        QCOMPARE(now(), left);
        for (int again = 0; again < 2; ++again) {
            QCOMPARE(files->info(run).standing, 1);
            QVERIFY(files->info(run).isPartlyTakenBack());
            QCOMPARE(files->undoable(), run);
            QCOMPARE(files->undo(run), QStringList(u"missing"_s));
            QCOMPARE(now(), left);
        }
        // Its place in the exchange is the other's again; in its old one it is back.
        find(lost == u"a"_s ? u"b"_s : u"a"_s);
        QCOMPARE(files->undo(run), QStringList(u"was-back"_s));
        QCOMPARE(now(), (QStringList{u"a=a"_s, u"b=b"_s}));
        QVERIFY(files->info(run).isTakenBack());
    }

    void anotherFileInThePlaceIsLeftAlone()
    {
        const QString run = planned(u"a>b b>a"_s);
        lose(u"a"_s);
        files->tree.addFile(u"f/a"_s, "new");
        QCOMPARE(files->undo(run), (QStringList{u"taken"_s, u"other-file"_s}));
        QCOMPARE(now(), (QStringList{u"a=new"_s, u"b=a"_s}));
        QCOMPARE(files->info(run).standing, 2);
        QVERIFY(QFile::remove(path(u"a"_s)));
        find(u"a"_s);
        QCOMPARE(files->undo(run), QStringList(2, u"renamed"_s));
        QCOMPARE(now(), (QStringList{u"a=a"_s, u"b=b"_s}));
    }

    void oneIsBackAlready()
    {
        const QString run = planned(u"a>b b>a"_s);
        lose(u"a"_s);
        QVERIFY(QFile::rename(path(u"b"_s), path(u"a"_s)));
        QCOMPARE(files->undo(run), (QStringList{u"was-back"_s, u"missing"_s}));
        QCOMPARE(files->info(run).standing, 1);
        QCOMPARE(files->undo(run), QStringList(u"missing"_s));
    }

    void partOfAnUndoIsRedone()
    {
        const QString run = planned(u"a>b b>a"_s);
        lose(u"a"_s);
        (void)files->undo(run);
        QCOMPARE(files->undo(files->redoable()), QStringList(u"renamed"_s));
        QCOMPARE(now(), QStringList(u"b=a"_s));
        QCOMPARE(files->info(run).standing, 2);
        find(u"a"_s);
        QCOMPARE(files->undo(run), QStringList(2, u"renamed"_s));
        QCOMPARE(now(), (QStringList{u"a=a"_s, u"b=b"_s}));
    }

    void undoIsRedoneInPart()
    {
        const QString run = planned(u"a>b b>a"_s);
        QCOMPARE(files->undo(run), QStringList(2, u"renamed"_s));
        const QString undo = files->redoable();
        lose(u"a"_s);
        QCOMPARE(files->undo(undo), (QStringList{u"missing"_s, u"renamed"_s}));
        QCOMPARE(now(), QStringList(u"a=b"_s));
        QCOMPARE(files->info(run).standing, 1);
        QCOMPARE(files->undo(undo), QStringList(u"missing"_s));
        QCOMPARE(files->undo(run), QStringList(u"renamed"_s));
        QCOMPARE(now(), QStringList(u"b=b"_s));
    }

    void runIsFinishedAfterAPartOfItWasTakenBack()
    {
        const QString run = planned(u"a>b b>c c>a"_s, 1);
        QVERIFY(files->info(run).canFinish());
        lose(u"b"_s);
        {
            const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
            QVERIFY(begun.run && begun.run->next());
            begun.run->end(true);
        }
        QVERIFY(files->info(run).canFinish());
        QCOMPARE(files->info(run).standing, 1);
        QVERIFY(QFile::rename(files->tree.path(u"lost"_s), path(u"a"_s)));
        QCOMPARE(finishRun(files->journals, run, files->disk), QString());
        QCOMPARE(now(), (QStringList{u"a=c"_s, u"b=a"_s, u"c=b"_s}));
        QCOMPARE(putBack(files->journals, run, files->disk), QString());
        QCOMPARE(now(), (QStringList{u"a=a"_s, u"b=b"_s, u"c=c"_s}));
    }

    void filesAreCountedOnce()
    {
        const QString run = planned(u"a>b b>c c>a"_s);
        QCOMPARE(files->info(run).renamed, 4);
        lose(u"a"_s);
        const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
        UndoneFiles counted;
        while (const auto step = begun.run->next())
            counted.add(*step);
        QCOMPARE(counted.total(), 3);
        QCOMPARE(counted.done(), 2);
    }

    void whatIsLeftIsCountedToo()
    {
        const QString run = planned(u"a>b b>c c>a"_s);
        const auto begun = UndoRun::begin(files->journals, run, files->disk, {});
        UndoneFiles counted;
        counted.add(begun.run->next().value());
        while (const auto step = begun.run->skip())
            counted.add(*step);
        QCOMPARE(now(), (QStringList{u"a=b"_s, u"b=a"_s, u"c=c"_s}));
        QCOMPARE(counted.total(), 3);
        QCOMPARE(counted.done(), 1);
    }
};

QTEST_GUILESS_MAIN(TestUndoExchange)
#include "tst_undoexchange.moc"
