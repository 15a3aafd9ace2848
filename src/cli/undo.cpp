// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commands.h"

#include "cli/outcometexts.h"
#include "cli/shellquote.h"
#include "cli/takenbackrun.h"
#include "cli/unfinishedruns.h"
#include "run/systemdisk.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The journal that is meant: one begins so, and no other, or it is the newest that stands. Empty where there
/// is none, which is told.
QString chosenRun(const QString &beginning, RunChoice choice, const QList<JournalInfo> &newestFirst,
                  const Shell &shell)
{
    if (beginning.isEmpty() && choice != RunChoice::TakeBack) {
        const auto open = std::find_if(newestFirst.begin(), newestFirst.end(),
                                       [](const JournalInfo &run) { return run.canFinish(); });
        if (open == newestFirst.end())
            shell.tell(u"no run was interrupted"_s);
        return open == newestFirst.end() ? QString() : open->name;
    }
    if (beginning.isEmpty()) {
        const JournalInfo *newest = JournalFolder::undoable(newestFirst);
        if (!newest)
            shell.tell(u"there is nothing to take back"_s);
        return newest ? newest->name : QString();
    }
    const auto isMeant = [&](const JournalInfo &run) {
        return run.name.startsWith(beginning);
    };
    const auto matches = std::count_if(newestFirst.begin(), newestFirst.end(), isMeant);
    if (matches == 1)
        return std::find_if(newestFirst.begin(), newestFirst.end(), isMeant)->name;
    shell.tell(u"%1: %2"_s.arg(shellQuoted(beginning),
                               matches == 0 ? u"there is no such run"_s : u"several runs begin so"_s));
    return {};
}

QString question(const JournalInfo &run)
{
    const QString renames =
        run.standing == 1 ? u"1 rename"_s : QLocale(QLocale::English).toString(run.standing) + " renames"_L1;
    const QString place = run.folders > 1 ? u"%1 folders"_s.arg(run.folders) : shellQuoted(run.folder);
    return u"Take back %1 of %2 in %3?"_s.arg(renames, timeInWords(run.time), place);
}

ExitCode exitCodeOfRefusal(UndoRun::Refusal refusal)
{
    return refusal == UndoRun::Refusal::NothingToDo ? ExitCode::NothingToDo : ExitCode::Conflicts;
}

} // namespace

ExitCode undo(const CommandLine &line, const Shell &shell)
{
    if (!line.isConfirmed && !shell.canAsk && line.choice != RunChoice::Leave) {
        shell.tell(u"there is no terminal to ask on: --yes is needed"_s);
        return ExitCode::Usage;
    }
    JournalFolder journals(journalFolderOf(shell));
    const QList<JournalInfo> newestFirst = journals.list();
    const QString name = chosenRun(line.operands.value(0), line.choice, newestFirst, shell);
    if (name.isEmpty())
        return ExitCode::NothingToDo;
    const auto chosen = std::find_if(newestFirst.begin(), newestFirst.end(),
                                     [&](const JournalInfo &run) { return run.name == name; });
    if (line.choice == RunChoice::Finish)
        return finishRun(*chosen, line, shell);
    if (line.choice == RunChoice::Leave)
        return leaveRun(*chosen, line, shell);
    if (!line.isConfirmed && chosen->canTakeBack()) {
        const auto answer = shell.ask(question(*chosen));
        if (!answer)
            return ExitCode::Interrupted;
        if (!*answer)
            return ExitCode::NothingToDo;
    }
    SystemDisk disk;
    const auto begun = UndoRun::begin(journals, name, disk, QCoreApplication::applicationVersion());
    if (!begun.run) {
        shell.tell(refusalInWords(begun.refusal));
        return exitCodeOfRefusal(begun.refusal);
    }
    // A planned run may rename a file more than once, and so may a redo of one.
    TakenBackRun taking(shell, line.form, chosen->planned > 0 || !chosen->isRun());
    const bool isComplete = taking.takeAllBack(*begun.run);
    if (!isComplete || line.form == OutputForm::Text) {
        shell.tell(u"%1: %2 of %3 have their old names"_s.arg(isComplete ? u"taken back"_s : u"interrupted"_s,
                                                              QString::number(taking.doneFiles()),
                                                              filesInWords(taking.totalFiles(*begun.run))));
    }
    return isComplete ? exitCodeOf(taking.done(), taking.failed()) : ExitCode::Interrupted;
}
