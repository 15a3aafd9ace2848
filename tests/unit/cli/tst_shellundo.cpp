// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "support/plannedscene.h"
#include "unit/cli/shelltest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A run as the window does it, which is no run of the shell.
void renameInTheWindow(const QString &data, const QString &path, const QString &newName)
{
    JournalFolder journals(data + u"/undo"_s);
    QString error;
    const auto journal = journals.begin(u"1.0"_s, 1, {}, &error);
    QVERIFY2(journal, qPrintable(error));
    SystemDisk system;
    JournalledDisk disk(system, *journal);
    RenameRun run(disk);
    QVERIFY(run.next(FilePath::of(path), newName).isRenamed());
    journal->end(false);
}

/// Renames 000 to 002 into the names behind them, interrupted when one has its new name; the run's name.
QString interruptShift(ShellTest &shell, const TestFolder &folder)
{
    shell.isInterrupted = [&folder] {
        return folder.names().contains(u"003"_s);
    };
    const QStringList words{u"apply"_s, u"--yes"_s, u"--trim"_s, u"0,3"_s, u"--number"_s, u"1,2,0"_s};
    const auto ended = shell.run(words + QStringList{u"000"_s, u"001"_s, u"002"_s});
    shell.isInterrupted = [] {
        return false;
    };
    if (ended.code != ExitCode::Interrupted)
        qFatal("not interrupted: %s%s", ended.out.constData(), ended.trouble.constData());
    return shell.run({u"history"_s, u"--json"_s}).objects().value(0).value("run"_L1).toString();
}

/// a gets the name b, b c, and c a.
void renameARing(const QString &data, const TestFolder &folder)
{
    const PlannedScene scene(folder.path(), u"a>b b>c c>a"_s);
    scene.plant();
    const SystemDiskView view;
    Plan plan(view);
    scene.fill(plan);
    JournalFolder journals(data + u"/undo"_s);
    QString error;
    const auto journal = journals.beginPlanned(u"1.0"_s, scene.count(), &error);
    QVERIFY2(journal, qPrintable(error));
    SystemDisk disk;
    PlannedRun run(disk, plan, journal.get());
    while (run.next()) {
    }
    run.end();
    QCOMPARE(run.state(), PlannedRun::State::Done);
}

} // namespace

/// Taking runs back from a shell, and the list of them.
class TestShellUndo final : public QObject
{
    Q_OBJECT

private slots:
    void runsOfTheWindowAreTakenBack();
    void newestRunIsAskedFor();
    void runIsChosenByTheBeginningOfItsName();
    void rowsHaveTheShapeOfARun();
    void filesInTheWayAreToldOf();
    void laterRunComesFirst();
    void withoutATerminalItMustBeTold();
    void interruptionStopsBetweenTwoFiles();
    void historyTellsOfEveryRun();
    void unfinishedRunHasThreeWaysOn();
    void unfinishedRunThatCannotBeFinishedIsLeftAlone();
    void filesOfARingAreCounted();
};

void TestShellUndo::runsOfTheWindowAreTakenBack()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    const auto ended = shell.run({u"undo"_s, u"--yes"_s});
    QCOMPARE(ended.code, ExitCode::Done);
    QCOMPARE(ended.out, u"%1 → %2\n"_s.arg(folder.path(u"b"_s), folder.path(u"a"_s)).toUtf8());
    QCOMPARE(folder.names(), QStringList(u"a"_s));
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code, ExitCode::NothingToDo);
}

void TestShellUndo::newestRunIsAskedFor()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    shell.canAsk = true;
    shell.input = "n\n";
    const auto refused = shell.run({u"undo"_s});
    QCOMPARE(refused.code, ExitCode::NothingToDo);
    QVERIFY(refused.trouble.startsWith("Take back 1 rename of "));
    QCOMPARE(folder.names(), QStringList(u"b"_s));
    shell.input = "Y\n";
    QCOMPARE(shell.run({u"undo"_s}).code, ExitCode::Done);
    QCOMPARE(folder.names(), QStringList(u"a"_s));
}

void TestShellUndo::runIsChosenByTheBeginningOfItsName()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    renameInTheWindow(shell.data.path(), folder.addFile(u"c"_s), u"d"_s);
    const QString older = shell.run({u"history"_s, u"--json"_s}).objects().at(1).value("run"_L1).toString();
    const auto several = shell.run({u"undo"_s, u"--yes"_s, older.left(2)});
    QCOMPARE(several.code, ExitCode::NothingToDo);
    QVERIFY(several.trouble.endsWith("several runs begin so\n"));
    const auto none = shell.run({u"undo"_s, u"--yes"_s, u"never"_s});
    QCOMPARE(none.code, ExitCode::NothingToDo);
    QVERIFY(none.trouble.endsWith("there is no such run\n"));
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s, older}).code, ExitCode::Done);
    QCOMPARE(folder.names(), (QStringList{u"a"_s, u"d"_s}));
}

void TestShellUndo::rowsHaveTheShapeOfARun()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    const auto ended = shell.run({u"undo"_s, u"--yes"_s, u"--json"_s});
    QCOMPARE(ended.objects(), QList<QJsonObject>{(QJsonObject{{u"old"_s, folder.path(u"b"_s)},
                                                              {u"new"_s, folder.path(u"a"_s)},
                                                              {u"outcome"_s, u"renamed"_s}})});
    QCOMPARE(ended.trouble, QByteArray());
    // An undo is a run, too.
    const QString name = shell.run({u"history"_s, u"--json"_s}).objects().at(0).value("run"_L1).toString();
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s, u"--print0"_s, name}).out,
             folder.path(u"b"_s).toUtf8() + QByteArray(1, '\0'));
    QCOMPARE(folder.names(), QStringList(u"b"_s));
}

void TestShellUndo::filesInTheWayAreToldOf()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    folder.addFile(u"a"_s, "another");
    const auto ended = shell.run({u"undo"_s, u"--yes"_s});
    QCOMPARE(ended.code, ExitCode::AllFailed);
    QVERIFY(ended.trouble.contains("the name is taken"));
    QCOMPARE(ended.out, QByteArray());
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s, u"--json"_s}).objects().at(0).value("outcome"_L1).toString(),
             u"taken"_s);
    QCOMPARE(folder.content(u"a"_s), QByteArray("another"));
    QCOMPARE(folder.content(u"b"_s), QByteArray("a"));
}

void TestShellUndo::laterRunComesFirst()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    renameInTheWindow(shell.data.path(), folder.path(u"b"_s), u"c"_s);
    const QString older = shell.run({u"history"_s, u"--json"_s}).objects().at(1).value("run"_L1).toString();
    const auto ended = shell.run({u"undo"_s, u"--yes"_s, older});
    QCOMPARE(ended.code, ExitCode::Conflicts);
    QVERIFY(ended.trouble.contains("take that one back first"));
    QCOMPARE(folder.names(), QStringList(u"c"_s));
}

void TestShellUndo::withoutATerminalItMustBeTold()
{
    const TestFolder folder;
    ShellTest shell;
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    QCOMPARE(shell.run({u"undo"_s}).code, ExitCode::Usage);
    QCOMPARE(folder.names(), QStringList(u"b"_s));
}

void TestShellUndo::interruptionStopsBetweenTwoFiles()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 3);
    QCOMPARE(shell.run({u"apply"_s, u"--yes"_s, u"--insert"_s, u"x@0"_s, u"000"_s, u"001"_s, u"002"_s}).code,
             ExitCode::Done);
    int left = 1;
    shell.isInterrupted = [&left] {
        return left-- <= 0;
    };
    const auto ended = shell.run({u"undo"_s, u"--yes"_s});
    QCOMPARE(ended.code, ExitCode::Interrupted);
    QVERIFY(ended.trouble.endsWith("interrupted: 1 of 3 files have their old names\n"));
    QCOMPARE(folder.names(), (QStringList{u"002"_s, u"x000"_s, u"x001"_s}));
    shell.isInterrupted = [] {
        return false;
    };
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code, ExitCode::Done);
    QCOMPARE(folder.names(), (QStringList{u"000"_s, u"001"_s, u"002"_s}));
}

void TestShellUndo::historyTellsOfEveryRun()
{
    const TestFolder folder;
    ShellTest shell;
    QCOMPARE(shell.run({u"history"_s}).out, QByteArray());
    renameInTheWindow(shell.data.path(), folder.addFile(u"a"_s), u"b"_s);
    renameInTheWindow(shell.data.path(), folder.addFile(u"c"_s), u"d"_s);
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code, ExitCode::Done);
    const QList<QJsonObject> runs = shell.run({u"history"_s, u"--json"_s}).objects();
    QStringList states;
    for (const QJsonObject &run : runs)
        states.append(run.value("state"_L1).toString());
    QCOMPARE(states, (QStringList{u"complete"_s, u"taken-back"_s, u"complete"_s}));
    QCOMPARE(runs.at(0).value("takesBack"_L1), runs.at(1).value("run"_L1));
    QCOMPARE(runs.at(2).value("folder"_L1).toString(), folder.path());
    const QByteArrayList lines = shell.run({u"history"_s}).out.split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(0).contains("took back 1 file, complete, "));
    QVERIFY(lines.at(1).contains("renamed 1 file, taken back, "));
}

void TestShellUndo::unfinishedRunHasThreeWaysOn()
{
    const QStringList names{u"000"_s, u"001"_s, u"002"_s};
    const QStringList halfway{u"000"_s, u"001"_s, u"003"_s};
    for (const QString &way : {u"--finish"_s, u"--back"_s, u"--leave"_s}) {
        const TestFolder folder;
        ShellTest shell;
        folder.addFiles(u"%1"_s, 3);
        const QString run = interruptShift(shell, folder);
        QCOMPARE(folder.names(), halfway);
        // Whoever works in the shell is told, and nothing happens by itself.
        const auto told = shell.run({u"history"_s});
        QVERIFY2(told.trouble.contains(u"undo %1 --finish"_s.arg(run).toUtf8()), told.trouble.constData());
        QCOMPARE(folder.names(), halfway);
        QCOMPARE(shell.run({u"undo"_s, run, way, way == u"--back"_s ? u"--leave"_s : u"--back"_s}).code,
                 ExitCode::Usage);
        const auto ended = shell.run({u"undo"_s, run, way, u"--yes"_s});
        QVERIFY2(ended.code == ExitCode::Done, ended.trouble.constData());
        if (way == "--finish"_L1) {
            QCOMPARE(folder.names(), (QStringList{u"001"_s, u"002"_s, u"003"_s}));
            QVERIFY(ended.out.contains("/001 → "));
        } else {
            QCOMPARE(folder.names(), way == "--back"_L1 ? names : halfway);
        }
        QCOMPARE(shell.run({u"history"_s}).trouble, QByteArray());
        QCOMPARE(shell.run({u"undo"_s, way, u"--yes"_s}).code, ExitCode::NothingToDo);
        // Finished or left, the whole run can still be taken back.
        QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code,
                 way == "--back"_L1 ? ExitCode::NothingToDo : ExitCode::Done);
        QCOMPARE(folder.names(), names);
    }
}

void TestShellUndo::unfinishedRunThatCannotBeFinishedIsLeftAlone()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 3);
    const QString run = interruptShift(shell, folder);
    QFile::remove(folder.path(u"001"_s));
    const auto ended = shell.run({u"undo"_s, run, u"--finish"_s, u"--yes"_s});
    QCOMPARE(ended.code, ExitCode::Conflicts);
    QVERIFY2(ended.trouble.contains("/002: the file is not there\n"), ended.trouble.constData());
    QCOMPARE(folder.names(), (QStringList{u"000"_s, u"003"_s}));
    QVERIFY(shell.run({u"history"_s}).trouble.contains("--finish"));
}

// By exchanges or by a third name: some of its files are renamed twice.
void TestShellUndo::filesOfARingAreCounted()
{
    const TestFolder folder;
    ShellTest shell;
    renameARing(shell.data.path(), folder);
    int left = 1;
    shell.isInterrupted = [&left] {
        return left-- <= 0;
    };
    auto ended = shell.run({u"undo"_s, u"--yes"_s});
    QCOMPARE(ended.code, ExitCode::Interrupted);
    QVERIFY2(ended.trouble.contains(" of 3 files have their old names\n"), ended.trouble.constData());
    shell.isInterrupted = [] {
        return false;
    };
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code, ExitCode::Done);
    QCOMPARE(folder.content(u"b"_s), "b");
    for (const QString &name : folder.names())
        QVERIFY(QFile::remove(folder.path(name)));

    renameARing(shell.data.path(), folder);
    QVERIFY(QFile::remove(folder.path(u"a"_s)));
    ended = shell.run({u"undo"_s, u"--yes"_s});
    QCOMPARE(ended.code, ExitCode::SomeFailed);
    QVERIFY2(ended.trouble.contains("taken back: 2 of 3 files have their old names\n"),
             ended.trouble.constData());
    QCOMPARE(folder.names(), (QStringList{u"a"_s, u"b"_s}));
    // What is lost is told again, and the list of runs tells that something stands.
    for (int again = 0; again < 2; ++again) {
        ended = shell.run({u"undo"_s, u"--yes"_s, u"--json"_s});
        QCOMPARE(ended.objects().size(), 1);
        QCOMPARE(ended.objects().at(0).value("outcome"_L1).toString(), u"missing"_s);
    }
    QVERIFY(shell.run({u"history"_s}).out.contains("partly taken back"));
    ended = shell.run({u"undo"_s, u"--yes"_s});
    QVERIFY2(ended.trouble.contains("taken back: 0 of 1 file have their old names\n"),
             ended.trouble.constData());
}

QTEST_GUILESS_MAIN(TestShellUndo)
#include "tst_shellundo.moc"
