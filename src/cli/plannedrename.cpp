// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/plannedrename.h"

#include "cli/commands.h"
#include "cli/outcometexts.h"
#include "cli/shellquote.h"
#include "cli/unfinishedruns.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

PlannedRename::PlannedRename(const CommandLine &forLine, const Shell &inShell, PlannedFiles &plannedFiles)
    : line(forLine)
    , shell(inShell)
    , files(plannedFiles)
    , report(inShell, forLine.form)
    , journals(journalFolderOf(inShell))
{
}

ExitCode PlannedRename::run()
{
    if (line.isUndoable && !beginJournal())
        return ExitCode::NoInputOrOutput;
    PlannedRun run(system, files.plan(), journal.get());
    renameAll(run);
    noteOutcomes(run);
    run.end();
    if (line.form == OutputForm::Json || line.form == OutputForm::Paths)
        report.plan(files);
    const ExitCode code = tellEnd(run);
    journals.prune();
    return code;
}

bool PlannedRename::beginJournal()
{
    QString error;
    const auto rows = static_cast<qint64>(files.plan().order().size());
    journal = journals.beginPlanned(QCoreApplication::applicationVersion(), rows, &error);
    if (!journal)
        shell.tell(noJournalInWords(error));
    return journal != nullptr;
}

void PlannedRename::renameAll(PlannedRun &run)
{
    Progress progress(shell);
    for (;;) {
        if (run.state() == PlannedRun::State::GoingOn && shell.isInterrupted()) {
            wasInterrupted = true;
            // Without a journal nobody could go on, nor find a file with a name between.
            if (journal)
                return;
            run.takeBack();
        }
        if (!run.next())
            return;
        progress.show("Renamed", run.movesMade(), run.moveCount());
    }
}

void PlannedRename::noteOutcomes(const PlannedRun &run)
{
    if (run.state() == PlannedRun::State::Done)
        return;
    // Not tried, or back again.
    for (const int row : files.plan().order())
        files.setOutcome(row, Outcome());
    for (const PlannedRun::Standing &standing : run.standing()) {
        if (standing.path == files.plan().target(standing.row))
            files.setOutcome(standing.row, files.plan().outcome(standing.row));
    }
    if (run.failedRow() < 0)
        return;
    Outcome outcome;
    outcome.fate = outcome.reason = run.failure();
    files.setOutcome(run.failedRow(), outcome);
    report.trouble(reportedRow(files, run.failedRow()));
}

ExitCode PlannedRename::tellEnd(const PlannedRun &run) const
{
    if (run.state() == PlannedRun::State::Done) {
        const QString all = filesInWords(files.count());
        if (line.form == OutputForm::Text)
            shell.tell(u"renamed "_s + (run.renamed() == files.count()
                                            ? all
                                            : u"%1 of %2"_s.arg(QString::number(run.renamed()), all)));
        return ExitCode::Done;
    }
    if (run.state() == PlannedRun::State::TakenBack || run.movesMade() == 0)
        return tellBack(run);
    const QString some =
        u"renamed %1 of %2"_s.arg(QString::number(run.renamed()), filesInWords(files.count()));
    const QString waysOn =
        journal ? u"; "_s + waysOnInWords(QFileInfo(journal->path()).fileName()) : QString();
    if (run.state() == PlannedRun::State::GoingOn) {
        shell.tell(u"interrupted: "_s + some + waysOn);
        return ExitCode::Interrupted;
    }
    for (const PlannedRun::Standing &standing : run.standing())
        shell.trouble.line(
            u"%1 is %2"_s.arg(shellQuoted(files.paths().given(standing.row)), shellQuoted(standing.path)));
    shell.tell(u"stopped, as one file failed and the others could not be taken back: "_s + some + waysOn);
    return ExitCode::SomeFailed;
}

ExitCode PlannedRename::tellBack(const PlannedRun &run) const
{
    if (wasInterrupted) {
        shell.tell(u"interrupted: nothing was renamed"_s);
        return ExitCode::Interrupted;
    }
    const bool isRecorded = !journal || journal->error().isEmpty();
    const QString why = isRecorded ? u"one file failed"_s : u"the journal cannot be written any more"_s;
    shell.tell(run.moveCount() == 0
                   ? u"nothing was renamed: "_s + why
                   : u"nothing was renamed: %1, and those before it have their old names again"_s.arg(why));
    return ExitCode::AllFailed;
}
