// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commands.h"

#include "cli/filecollector.h"
#include "cli/outcometexts.h"
#include "cli/plannedfiles.h"
#include "cli/rowreport.h"

using namespace Qt::StringLiterals;

ExitCode preview(const CommandLine &line, const Shell &shell)
{
    PathList list(shell.currentFolder);
    const auto found = FileCollector(line, shell, list).collect();
    if (found == FileCollector::Result::Failed)
        return ExitCode::NoInputOrOutput;
    PlannedFiles files(list, line.rules);
    if (found == FileCollector::Result::Interrupted ||
        !(line.isClassic ? files.foretell(shell) : files.makePlan(shell)))
        return ExitCode::Interrupted;
    RowReport(shell, line.form).plan(files);
    const PlanCounts counts = files.counts();
    if (line.form == OutputForm::Text)
        shell.tell(planInWords(files.count(), counts));
    if (shell.isInterrupted())
        return ExitCode::Interrupted;
    return counts.stuck > 0 ? ExitCode::Conflicts : ExitCode::Done;
}
