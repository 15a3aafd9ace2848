// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/classicrename.h"

#include "cli/commands.h"
#include "cli/outcometexts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

ClassicRename::ClassicRename(const CommandLine &forLine, const Shell &inShell, PlannedFiles &plan)
    : line(forLine)
    , shell(inShell)
    , files(plan)
    , report(inShell, forLine.form)
    , journals(journalFolderOf(inShell))
{
}

ExitCode ClassicRename::run()
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
    if (line.form == OutputForm::Json || line.form == OutputForm::Paths)
        report.plan(files);
    tellEnd(end);
    journals.prune();
    if (end == End::Interrupted)
        return ExitCode::Interrupted;
    return exitCodeOf(renamed, failed);
}

bool ClassicRename::beginJournal()
{
    QString error;
    journal = journals.begin(QCoreApplication::applicationVersion(), files.count(), {}, &error);
    if (!journal)
        shell.tell(noJournalInWords(error));
    return journal != nullptr;
}

ClassicRename::End ClassicRename::renameAll(Disk &disk)
{
    Progress progress(shell);
    RenameRun rename(disk);
    End end = End::Complete;
    while (rename.handled() < files.count() && end == End::Complete) {
        if (shell.isInterrupted())
            end = End::Interrupted;
        else
            renameNext(rename);
        progress.show("Renamed", rename.handled(), files.count());
    }
    for (int row = rename.handled(); row < files.count(); ++row)
        files.setOutcome(row, Outcome());
    return end;
}

void ClassicRename::renameNext(RenameRun &rename)
{
    const int row = rename.handled();
    const FilePath file = files.paths().file(row);
    const Outcome foretold = files.outcome(row);
    const Outcome outcome = rename.next(file, files.newName(row, file));
    renamed += outcome.isRenamed() ? 1 : 0;
    if (!isStuck(outcome)) {
        files.setOutcome(row, outcome);
        return;
    }
    ++failed;
    // The forecast knows which row is in the way.
    if (!isStuck(foretold) || outcome.reason != Fate::Taken)
        files.setOutcome(row, outcome);
    if (!isStuck(foretold))
        report.trouble(reportedRow(files, row));
}

void ClassicRename::tellEnd(End end) const
{
    const QString some = u"%1 of %2"_s.arg(QString::number(renamed), filesInWords(files.count()));
    const QString hint = journal && renamed > 0 ? u": \"orvanto-cli undo\" takes that back"_s : QString();
    if (end == End::Interrupted)
        shell.tell(u"interrupted: renamed %1"_s.arg(some) + hint);
    else if (line.form == OutputForm::Text)
        shell.tell(u"renamed "_s + (renamed == files.count() ? filesInWords(renamed) : some));
    if (journal && journal->figures().unrecorded > 0)
        shell.tell(u"the last renames cannot be taken back: %1 (%2)"_s.arg(
            QString::number(journal->figures().unrecorded), journal->error()));
}
