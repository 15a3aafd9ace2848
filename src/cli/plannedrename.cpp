// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/plannedrename.h"

#include "cli/commands.h"
#include "cli/outcometexts.h"
#include "cli/takenbackrun.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// What scripts are told of a file that was not tried, or has its old name back.
const Outcome notRenamed;

} // namespace

PlannedRename::PlannedRename(const CommandLine &forLine, const Shell &inShell, PlannedFiles &plan)
    : line(forLine)
    , shell(inShell)
    , files(plan)
    , report(inShell, forLine.form)
    , journals(journalFolderOf(inShell))
{
}

ExitCode PlannedRename::run()
{
    if (line.isUndoable && !beginJournal())
        return ExitCode::NoInputOrOutput;
    End end = End::Complete;
    if (journal) {
        JournalledDisk disk(system, *journal);
        end = renameAll(disk);
        journal->end(end != End::Complete);
    } else {
        end = renameAll(system);
    }
    if (end == End::Failed)
        takeBack();
    if (line.form == OutputForm::Json || line.form == OutputForm::Paths)
        report.plan(files);
    tellEnd(end);
    journals.prune();
    if (end == End::Interrupted)
        return ExitCode::Interrupted;
    if (end == End::Failed)
        return takenBack == renamed ? ExitCode::AllFailed : ExitCode::SomeFailed;
    return exitCodeOf(renamed, failed);
}

bool PlannedRename::beginJournal()
{
    QString error;
    journal = journals.begin(QCoreApplication::applicationVersion(), files.count(), {}, &error);
    if (!journal)
        shell.tell(
            u"nothing was renamed: the run could not be undone, as its journal cannot be written (%1); "
            "with --no-undo it is done all the same"_s.arg(error));
    return journal != nullptr;
}

PlannedRename::End PlannedRename::renameAll(Disk &disk)
{
    Progress progress(shell);
    RenameRun rename(disk);
    End end = End::Complete;
    while (rename.handled() < files.count() && end == End::Complete) {
        if (shell.isInterrupted())
            end = End::Interrupted;
        else if (!renameNext(rename))
            end = End::Failed;
        progress.show("Renamed", rename.handled(), files.count());
    }
    for (int row = rename.handled(); row < files.count(); ++row)
        files.setOutcome(row, notRenamed);
    return end;
}

bool PlannedRename::renameNext(RenameRun &rename)
{
    const int row = rename.handled();
    const FilePath file = files.paths().file(row);
    const Outcome foretold = files.outcome(row);
    const Outcome outcome = rename.next(file, files.newName(row, file));
    renamed += outcome.isRenamed() ? 1 : 0;
    if (isStuck(outcome)) {
        ++failed;
        // The forecast knows which row is in the way.
        if (!isStuck(foretold) || outcome.reason != Fate::Taken)
            files.setOutcome(row, outcome);
        if (!isStuck(foretold))
            report.trouble(reportedRow(files, row));
        return line.isClassic;
    }
    files.setOutcome(row, outcome);
    // What could not be taken back would not be all or nothing.
    return line.isClassic || !journal || journal->error().isEmpty();
}

void PlannedRename::takeBack()
{
    if (!journal || renamed == 0)
        return;
    const QString name = QFileInfo(journal->path()).fileName();
    const auto begun = UndoRun::begin(journals, name, system, QCoreApplication::applicationVersion());
    if (!begun.run)
        return;
    TakenBackRun taking(shell, OutputForm::Nothing);
    taking.takeAllBack(*begun.run);
    takenBack = static_cast<int>(taking.done());
    if (takenBack < renamed)
        return;
    for (int row = 0; row < files.count(); ++row) {
        if (files.outcome(row).isRenamed())
            files.setOutcome(row, notRenamed);
    }
}

void PlannedRename::tellEnd(End end) const
{
    const auto someOf = [this](int some) {
        return u"%1 of %2"_s.arg(QString::number(some), filesInWords(files.count()));
    };
    const bool isRecorded = !journal || journal->error().isEmpty();
    const QString why = isRecorded ? u"one file failed"_s : u"the journal cannot be written any more"_s;
    const QString hint =
        journal && renamed > takenBack ? u": \"orvanto-cli undo\" takes that back"_s : QString();
    if (end == End::Interrupted)
        shell.tell(u"interrupted: renamed %1"_s.arg(someOf(renamed)) + hint);
    else if (end == End::Failed && takenBack == renamed)
        shell.tell(u"nothing was renamed: %1, and those before it have their old names again"_s.arg(why));
    else if (end == End::Failed)
        shell.tell(u"stopped, as %1: renamed %2"_s.arg(why, someOf(renamed - takenBack)) + hint);
    else if (line.form == OutputForm::Text)
        shell.tell(u"renamed "_s + (renamed == files.count() ? filesInWords(renamed) : someOf(renamed)));
    if (journal && journal->figures().unrecorded > 0)
        shell.tell(u"the last renames cannot be taken back: %1 (%2)"_s.arg(
            QString::number(journal->figures().unrecorded), journal->error()));
}
