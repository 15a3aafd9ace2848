// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "unit/cli/shelltest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList addX{u"apply"_s, u"--insert"_s, u"x@0"_s};

} // namespace

/// Renaming from a shell.
class TestApply final : public QObject
{
    Q_OBJECT

private slots:
    void planIsPrintedAndAskedFor();
    void answerOfNoTouchesNothing_data();
    void answerOfNoTouchesNothing();
    void withoutATerminalItMustBeTold();
    void conflictEndsItBeforeAnythingIsTouched();
    void classicGoesOnAfterAFailure();
    void classicWithFailuresAlone();
    void nothingToRenameIsACodeOfItsOwn();
    void failureMeanwhileTakesAllBack();
    void failureMeanwhileWithoutUndoTakesAllBack();
    void eachRowIsAnObjectOfWhatBecameOfIt();
    void pathsAreThoseOfAfterwards();
    void runWithoutAJournalIsRefused();
    void runWithoutUndoNeedsNoJournal();
    void interruptedRunStopsBetweenTwoFiles();
    void interruptedRunStillTellsOfEveryRow();
    void planThatCannotBePrintedIsNotDone();
    void closedOutputDoesNotBreakARun();
    void halfOfAClassicRunIsToldByItsRows();
    void namesAreSwappedAndShifted();
};

void TestApply::planIsPrintedAndAskedFor()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 2);
    shell.canAsk = true;
    shell.input = "y\n";
    shell.beforeReading = [&] {
        QCOMPARE(folder.names(), (QStringList{u"000"_s, u"001"_s}));
    };
    const auto ended = shell.run(addX + QStringList{u"000"_s, u"001"_s});
    QCOMPARE(ended.out, QByteArray("000 → x000\n001 → x001\n"));
    QCOMPARE(ended.trouble, QByteArray("Rename 2 files? [y/N] orvanto-cli: renamed 2 files\n"));
    QCOMPARE(ended.code, ExitCode::Done);
    QCOMPARE(folder.names(), (QStringList{u"x000"_s, u"x001"_s}));
}

void TestApply::answerOfNoTouchesNothing_data()
{
    QTest::addColumn<QByteArray>("answer");
    for (const char *answer : {"n\n", "\n", "", "yup\n", "no y\n"})
        QTest::addRow("%d %s", static_cast<int>(qstrlen(answer)), QByteArray(answer).trimmed().constData())
            << QByteArray(answer);
}

void TestApply::answerOfNoTouchesNothing()
{
    QFETCH(QByteArray, answer);
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    shell.canAsk = true;
    shell.input = answer;
    QCOMPARE(shell.run(addX + QStringList(u"a"_s)).code, ExitCode::NothingToDo);
    QCOMPARE(folder.names(), QStringList(u"a"_s));
    QCOMPARE(shell.data.names(), QStringList());
}

void TestApply::withoutATerminalItMustBeTold()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    const auto ended = shell.run(addX + QStringList(u"a"_s));
    QCOMPARE(ended.code, ExitCode::Usage);
    QVERIFY(ended.trouble.contains("--yes"));
    // The answer would be taken for a name.
    shell.canAsk = true;
    shell.input = "a\ny\n";
    QCOMPARE(shell.run(addX + QStringList{u"--files-from"_s, u"-"_s}).code, ExitCode::Usage);
    QCOMPARE(folder.names(), QStringList(u"a"_s));
    QCOMPARE(shell.run(addX + QStringList{u"--yes"_s, u"a"_s}).code, ExitCode::Done);
    QCOMPARE(folder.names(), QStringList(u"xa"_s));
}

void TestApply::conflictEndsItBeforeAnythingIsTouched()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"a"_s, u"b"_s, u"xb"_s})
        folder.addFile(name);
    const auto ended = shell.run(addX + QStringList{u"--yes"_s, u"a"_s, u"b"_s});
    QCOMPARE(ended.code, ExitCode::Conflicts);
    QCOMPARE(ended.out, QByteArray("a → xa\n"));
    QCOMPARE(ended.trouble,
             QByteArray("b → xb: the name is taken\n"
                        "orvanto-cli: nothing was renamed: 1 of 2 files cannot get its new name\n"));
    QCOMPARE(folder.names(), (QStringList{u"a"_s, u"b"_s, u"xb"_s}));
    const auto paths = shell.run(addX + QStringList{u"--yes"_s, u"--print0"_s, u"a"_s, u"b"_s});
    QCOMPARE(paths.out, QByteArray());
    QCOMPARE(paths.code, ExitCode::Conflicts);
    QCOMPARE(shell.data.names(), QStringList());
}

void TestApply::classicGoesOnAfterAFailure()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"xb"_s})
        folder.addFile(name);
    const auto ended = shell.run(addX + QStringList{u"--yes"_s, u"--classic"_s, u"a"_s, u"b"_s, u"c"_s});
    QCOMPARE(ended.code, ExitCode::SomeFailed);
    QCOMPARE(ended.trouble, QByteArray("b → xb: the name is taken\norvanto-cli: renamed 2 of 3 files\n"));
    QCOMPARE(folder.names(), (QStringList{u"b"_s, u"xa"_s, u"xb"_s, u"xc"_s}));
    QCOMPARE(folder.content(u"xb"_s), QByteArray("xb"));
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code, ExitCode::Done);
    QCOMPARE(folder.names(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"xb"_s}));
}

void TestApply::classicWithFailuresAlone()
{
    const TestFolder folder;
    ShellTest shell;
    const auto ended = shell.run(addX + QStringList{u"--yes"_s, u"--classic"_s, u"gone"_s});
    QCOMPARE(ended.code, ExitCode::AllFailed);
    QCOMPARE(shell.run({u"history"_s}).out, QByteArray());
}

void TestApply::nothingToRenameIsACodeOfItsOwn()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    folder.addFolder(u"empty"_s);
    for (const QString &operand : {u"a"_s, u"empty"_s}) {
        const auto ended = shell.run({u"apply"_s, u"--yes"_s, u"--replace"_s, u"z"_s, u"y"_s, operand});
        QCOMPARE(ended.code, ExitCode::NothingToDo);
        QVERIFY(ended.trouble.endsWith("there is nothing to rename\n"));
    }
}

void TestApply::failureMeanwhileTakesAllBack()
{
    const TestFolder folder;
    ShellTest shell;
    const QStringList names = {u"000"_s, u"001"_s, u"002"_s};
    folder.addFiles(u"%1"_s, 3);
    shell.canAsk = true;
    shell.input = "y\n";
    shell.beforeReading = [&] {
        folder.addFile(u"x001"_s, "in the way");
    };
    const auto ended = shell.run(addX + names);
    QCOMPARE(ended.code, ExitCode::AllFailed);
    QVERIFY(ended.trouble.contains("001 → x001: the name is taken\n"));
    QVERIFY(ended.trouble.endsWith("those before it have their old names again\n"));
    QCOMPARE(folder.names(), names + QStringList(u"x001"_s));
    QCOMPARE(folder.content(u"x001"_s), QByteArray("in the way"));
    // Nothing of it is left to be taken back.
    QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code, ExitCode::NothingToDo);
}

void TestApply::failureMeanwhileWithoutUndoTakesAllBack()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 3);
    shell.canAsk = true;
    shell.input = "yes\n";
    shell.beforeReading = [&] {
        folder.addFile(u"x001"_s);
    };
    const auto ended =
        shell.run(addX + QStringList{u"--no-undo"_s, u"--json"_s, u"000"_s, u"001"_s, u"002"_s});
    QCOMPARE(ended.code, ExitCode::AllFailed);
    QStringList outcomes;
    for (const QJsonObject &row : ended.objects())
        outcomes.append(row.value("outcome"_L1).toString());
    QCOMPARE(outcomes, (QStringList{u"unknown"_s, u"taken"_s, u"unknown"_s}));
    QCOMPARE(folder.names(), (QStringList{u"000"_s, u"001"_s, u"002"_s, u"x001"_s}));
}

void TestApply::eachRowIsAnObjectOfWhatBecameOfIt()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"a1"_s, u"a2"_s, u"b"_s})
        folder.addFile(name);
    const auto ended = shell.run({u"apply"_s, u"--yes"_s, u"--classic"_s, u"--json"_s, u"--regexp"_s,
                                  u"^a."_s, u"c"_s, u"a1"_s, u"a2"_s, u"b"_s});
    QCOMPARE(ended.code, ExitCode::SomeFailed);
    QCOMPARE(ended.trouble, QByteArray());
    const QList<QJsonObject> rows = ended.objects();
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0),
             (QJsonObject{{u"old"_s, u"a1"_s}, {u"new"_s, u"c"_s}, {u"outcome"_s, u"renamed"_s}}));
    QCOMPARE(rows.at(1).value("outcome"_L1).toString(), u"taken-by-row"_s);
    QCOMPARE(rows.at(1).value("blockedBy"_L1).toString(), u"a1"_s);
    QCOMPARE(rows.at(2).value("outcome"_L1).toString(), u"unchanged"_s);
}

void TestApply::pathsAreThoseOfAfterwards()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    folder.addFile(u"sub/b"_s);
    const auto ended = shell.run(
        {u"apply"_s, u"--yes"_s, u"--print0"_s, u"--replace"_s, u"b"_s, u"c"_s, u"a"_s, u"sub/b"_s});
    QCOMPARE(ended.out, QByteArray("a\0sub/c\0", 8));
    QCOMPARE(ended.code, ExitCode::Done);
}

void TestApply::runWithoutAJournalIsRefused()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    shell.data.addFile(u"undo"_s, "in the way");
    const auto ended = shell.run(addX + QStringList{u"--yes"_s, u"a"_s});
    QCOMPARE(ended.code, ExitCode::NoInputOrOutput);
    QVERIFY(ended.trouble.contains("with --no-undo it is done all the same"));
    QCOMPARE(folder.names(), QStringList(u"a"_s));
}

void TestApply::runWithoutUndoNeedsNoJournal()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    shell.data.addFile(u"undo"_s, "in the way");
    QCOMPARE(shell.run(addX + QStringList{u"--yes"_s, u"--no-undo"_s, u"a"_s}).code, ExitCode::Done);
    QCOMPARE(folder.names(), QStringList(u"xa"_s));
}

void TestApply::interruptedRunStopsBetweenTwoFiles()
{
    const QStringList names{u"000"_s, u"001"_s, u"002"_s};
    QMap<int, int> rounds;
    ExitCode code = ExitCode::Interrupted;
    for (int looks = 0; code == ExitCode::Interrupted; ++looks) {
        const TestFolder folder;
        ShellTest shell;
        folder.addFiles(u"%1"_s, 3);
        int left = looks;
        shell.isInterrupted = [&left] {
            return left-- <= 0;
        };
        const auto ended = shell.run(addX + QStringList(u"--yes"_s) + names);
        code = ended.code;
        const auto renamed = static_cast<int>(folder.names().filter(u"x"_s).size());
        ++rounds[renamed];
        QVERIFY(code == ExitCode::Interrupted || renamed == 3);
        if (code == ExitCode::Interrupted && renamed > 0)
            QVERIFY2(
                ended.trouble.contains(
                    u"interrupted: renamed %1 of 3 files; \"orvanto-cli undo "_s.arg(renamed).toUtf8()) &&
                    ended.trouble.endsWith(
                        " --finish\" goes on, --back takes that back, --leave leaves it so\n"),
                ended.trouble.constData());
        else if (code == ExitCode::Interrupted)
            QVERIFY(ended.trouble.contains("interrupted"));
        shell.isInterrupted = [] {
            return false;
        };
        QCOMPARE(shell.run({u"undo"_s, u"--yes"_s}).code,
                 renamed > 0 ? ExitCode::Done : ExitCode::NothingToDo);
        QCOMPARE(folder.names(), names);
    }
    QCOMPARE(rounds.keys(), (QList<int>{0, 1, 2, 3}));
}

void TestApply::interruptedRunStillTellsOfEveryRow()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 3);
    shell.isInterrupted = [&] {
        return !folder.names().contains(u"000"_s);
    };
    const auto ended = shell.run(addX + QStringList{u"--yes"_s, u"--json"_s, u"000"_s, u"001"_s, u"002"_s});
    QCOMPARE(ended.code, ExitCode::Interrupted);
    QStringList outcomes;
    for (const QJsonObject &row : ended.objects())
        outcomes.append(row.value("outcome"_L1).toString());
    QCOMPARE(outcomes, (QStringList{u"renamed"_s, u"unknown"_s, u"unknown"_s}));
}

void TestApply::planThatCannotBePrintedIsNotDone()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    shell.fault = WriteResult::Failed;
    QCOMPARE(shell.run(addX + QStringList{u"--yes"_s, u"a"_s}).code, ExitCode::NoInputOrOutput);
    QCOMPARE(folder.names(), QStringList(u"a"_s));
}

void TestApply::closedOutputDoesNotBreakARun()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 3);
    shell.fault = WriteResult::Closed;
    QCOMPARE(shell.run(addX + QStringList{u"--yes"_s, u"000"_s, u"001"_s, u"002"_s}).code, ExitCode::Done);
    QCOMPARE(folder.names(), (QStringList{u"x000"_s, u"x001"_s, u"x002"_s}));
}

void TestApply::halfOfAClassicRunIsToldByItsRows()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 2);
    shell.canAsk = true;
    shell.input = "y\n";
    shell.beforeReading = [&] {
        QVERIFY(QFile::remove(folder.path(u"000"_s)));
    };
    const auto ended = shell.run(addX + QStringList{u"--classic"_s, u"--json"_s, u"000"_s, u"001"_s});
    QCOMPARE(ended.trouble, QByteArray("2 files: 2 would be renamed. Go on? [y/N] "));
    QCOMPARE(ended.objects().at(0).value("outcome"_L1).toString(), u"missing"_s);
    QCOMPARE(ended.objects().at(1).value("outcome"_L1).toString(), u"renamed"_s);
    QCOMPARE(ended.code, ExitCode::SomeFailed);
}

void TestApply::namesAreSwappedAndShifted()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"1"_s, u"2"_s, u"a-b"_s, u"b-a"_s})
        folder.addFile(name, name.toUtf8());
    const QStringList words{u"--regexp"_s, u"(.)-(.)"_s,  u"\\2-\\1"_s, u"--regexp"_s, u"^2$"_s,
                            u"3"_s,        u"--regexp"_s, u"^1$"_s,     u"2"_s};
    const QStringList files{u"1"_s, u"2"_s, u"a-b"_s, u"b-a"_s};
    QCOMPARE(shell.run(QStringList(u"preview"_s) + words + files).code, ExitCode::Done);
    const auto classic = shell.run(QStringList{u"preview"_s, u"--classic"_s} + words + files);
    QCOMPARE(classic.code, ExitCode::Conflicts);
    QVERIFY2(classic.trouble.contains("1 → 2: 2 still has the name\n"), classic.trouble.constData());
    const auto ended = shell.run(QStringList{u"apply"_s, u"--yes"_s} + words + files);
    QCOMPARE(ended.code, ExitCode::Done);
    QVERIFY2(ended.trouble.endsWith("renamed 4 files\n"), ended.trouble.constData());
    QCOMPARE(folder.names(), (QStringList{u"2"_s, u"3"_s, u"a-b"_s, u"b-a"_s}));
    QCOMPARE(folder.content(u"2"_s), QByteArray("1"));
    QCOMPARE(folder.content(u"3"_s), QByteArray("2"));
    QCOMPARE(folder.content(u"a-b"_s), QByteArray("b-a"));
    QCOMPARE(folder.content(u"b-a"_s), QByteArray("a-b"));
    QVERIFY(shell.run({u"history"_s}).out.contains("renamed 4 files"));
    QVERIFY(shell.run({u"undo"_s, u"--yes"_s}).trouble.endsWith("4 of 4 files have their old names\n"));
    QCOMPARE(folder.names(), files);
    QCOMPARE(folder.content(u"a-b"_s), QByteArray("a-b"));
}

QTEST_GUILESS_MAIN(TestApply)
#include "tst_apply.moc"
