// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/unfinishedruns.h"

#include "cli/commands.h"
#include "cli/outcometexts.h"
#include "cli/progress.h"
#include "cli/rowreport.h"
#include "cli/shellquote.h"
#include "run/finishrun.h"
#include "run/systemdisk.h"

using namespace Qt::StringLiterals;

namespace {

ReportedRow reportedRow(const FinishRun &run, int row, const Outcome &outcome)
{
    ReportedRow reported{.oldPath = run.file(row).path,
                         .newPath = run.outcome(row).path,
                         .outcome = idOf(outcome.fate),
                         .reason = outcome.reason == outcome.fate ? QString() : idOf(outcome.reason),
                         .blockedBy = outcome.row < 0 ? QString() : run.file(outcome.row).path,
                         .isDone = outcome.isRenamed(),
                         .words = {}};
    if (!reported.isDone)
        reported.words = troubleInWords(outcome, shellQuoted(reported.blockedBy));
    return reported;
}

/// The rows that cannot be, which keep all others from it.
ExitCode tellConflicts(const FinishRun &run, RowReport &report, const Shell &shell)
{
    for (int row = 0; row < run.count(); ++row) {
        const Outcome outcome = run.outcome(row);
        if (!outcome.isRenamed() && outcome.reason != Fate::Unchanged)
            report.trouble(reportedRow(run, row, outcome));
    }
    shell.tell(u"nothing was renamed: %1 of %2 cannot get %3"_s.arg(
        QString::number(run.refused()), filesInWords(run.count()),
        run.refused() == 1 ? u"its new name"_s : u"their new names"_s));
    return ExitCode::Conflicts;
}

/// False when it was interrupted.
bool goOn(FinishRun &run, const Shell &shell)
{
    Progress progress(shell);
    while (run.next()) {
        progress.show("Renamed", run.run()->movesMade(), run.run()->moveCount());
        if (run.run()->state() == PlannedRun::State::GoingOn && shell.isInterrupted() &&
            run.run()->movesMade() < run.run()->moveCount())
            return false;
    }
    return true;
}

} // namespace

QString waysOnInWords(const QString &journal)
{
    return u"\"orvanto-cli undo %1 --finish\" goes on, --back takes that back, --leave leaves it so"_s.arg(
        journal.section(u'.', 0, 0));
}

void tellUnfinishedRuns(const Shell &shell)
{
    for (const JournalInfo &run : JournalFolder(journalFolderOf(shell)).list()) {
        if (run.canFinish())
            shell.tell(
                u"a run of %1 was interrupted; %2"_s.arg(timeInWords(run.time), waysOnInWords(run.name)));
    }
}

ExitCode finishRun(const JournalInfo &info, const CommandLine &line, const Shell &shell)
{
    JournalFolder journals(journalFolderOf(shell));
    SystemDisk disk;
    const SystemDiskView view;
    const auto begun = FinishRun::begin(journals, info.name, disk, view);
    if (!begun.run) {
        const bool isNothing = begun.refusal == UndoRun::Refusal::NothingToDo;
        shell.tell(isNothing ? u"nothing of this run is left to be finished"_s
                             : refusalInWords(begun.refusal));
        return isNothing ? ExitCode::NothingToDo : ExitCode::Conflicts;
    }
    FinishRun &run = *begun.run;
    RowReport report(shell, line.form);
    if (run.refused() > 0)
        return tellConflicts(run, report, shell);
    if (!line.isConfirmed) {
        const auto answer = shell.ask(u"Rename %1 more?"_s.arg(filesInWords(run.total())));
        if (!answer || !*answer)
            return answer ? ExitCode::NothingToDo : ExitCode::Interrupted;
    }
    const bool isComplete = goOn(run, shell);
    run.end();
    const auto state = run.run() ? run.run()->state() : PlannedRun::State::TakenBack;
    QSet<int> renamed;
    for (const PlannedRun::Standing &standing :
         run.run() ? run.run()->standing() : QList<PlannedRun::Standing>())
        renamed.insert(standing.path == run.outcome(standing.row).path ? standing.row : -1);
    for (int row = 0; row < run.count(); ++row) {
        if (run.outcome(row).isRenamed())
            report.print(reportedRow(run, row, renamed.contains(row) ? run.outcome(row) : Outcome()));
    }
    if (!run.journalError().isEmpty()) {
        shell.tell(u"nothing more was renamed: the journal cannot be written (%1)"_s.arg(run.journalError()));
        return ExitCode::NoInputOrOutput;
    }
    if (state == PlannedRun::State::Done) {
        if (line.form == OutputForm::Text)
            shell.tell(u"finished: all of %1 have their new names"_s.arg(filesInWords(run.count())));
        return ExitCode::Done;
    }
    shell.tell((isComplete ? u"stopped, as one file failed; "_s : u"interrupted; "_s) +
               waysOnInWords(info.name));
    return isComplete ? ExitCode::AllFailed : ExitCode::Interrupted;
}

ExitCode leaveRun(const JournalInfo &run, const CommandLine &line, const Shell &shell)
{
    if (!run.isOpen) {
        shell.tell(u"this run was not interrupted, or is done with"_s);
        return ExitCode::NothingToDo;
    }
    if (!JournalFolder(journalFolderOf(shell)).leave(run.name)) {
        shell.tell(u"the journal of this run cannot be written, or another program is at it"_s);
        return ExitCode::NoInputOrOutput;
    }
    if (line.form == OutputForm::Text)
        shell.tell(u"left as it is: no file was renamed"_s);
    return ExitCode::Done;
}
