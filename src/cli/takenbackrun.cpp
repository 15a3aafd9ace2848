// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/takenbackrun.h"

#include "cli/outcometexts.h"

using namespace Qt::StringLiterals;

bool TakenBackRun::takeAllBack(UndoRun &run)
{
    Progress progress(shell);
    bool isComplete = true;
    while (isComplete) {
        if (shell.isInterrupted()) {
            isComplete = false;
            break;
        }
        const auto step = run.next();
        if (!step)
            break;
        ++(step->isDone() ? doneSteps : failedSteps);
        if (countsFiles)
            files.add(*step);
        print(*step);
        progress.show("Taken back", doneSteps + failedSteps, run.total());
    }
    progress.clear();
    while (const auto step = countsFiles ? run.skip() : std::nullopt)
        files.add(*step);
    run.end(!isComplete);
    if (!run.journalError().isEmpty())
        shell.tell(u"this undo cannot be taken back itself, at least in part (%1)"_s.arg(run.journalError()));
    return isComplete;
}

void TakenBackRun::print(const UndoStep &step)
{
    const bool isRefused = step.result == UndoStep::Result::Refused;
    ReportedRow row{.oldPath = step.from,
                    .newPath = step.to,
                    .outcome = isRefused ? idOf(step.why) : idOf(step.result),
                    .reason = {},
                    .blockedBy = {},
                    .isDone = step.isDone(),
                    .words = {}};
    if (step.result == UndoStep::Result::WasBack)
        row.words = u"had its old name already"_s;
    if (!step.isDone()) {
        row.words = reasonInWords(fateOf(step));
        report.trouble(row);
    }
    // In text such a row has been told.
    if (step.isDone() || form != OutputForm::Text)
        report.print(row);
}
