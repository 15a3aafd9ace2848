// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commands.h"

#include "cli/classicrename.h"
#include "cli/filecollector.h"
#include "cli/outcometexts.h"
#include "cli/plannedrename.h"
#include "cli/rowreport.h"

using namespace Qt::StringLiterals;

namespace {

void reportConflicts(const PlannedFiles &files, const CommandLine &line, const Shell &shell)
{
    // No file has its new path.
    if (line.form == OutputForm::Paths)
        RowReport(shell, OutputForm::Nothing).plan(files);
    else
        RowReport(shell, line.form).plan(files);
    const int stuck = files.counts().stuck;
    shell.tell(u"nothing was renamed: %1 of %2 cannot get %3"_s.arg(
        QString::number(stuck), filesInWords(files.count()),
        stuck == 1 ? u"its new name"_s : u"their new names"_s));
}

/// No value when it was interrupted.
std::optional<bool> isWanted(const PlannedFiles &files, const CommandLine &line, const Shell &shell)
{
    if (line.isConfirmed)
        return !shell.isInterrupted();
    const PlanCounts counts = files.counts();
    return shell.ask(line.isClassic ? u"%1. Go on?"_s.arg(planInWords(files.count(), counts))
                                    : u"Rename %1?"_s.arg(filesInWords(counts.renamed)));
}

ExitCode tellInterrupted(const Shell &shell)
{
    shell.tell(u"interrupted: nothing was renamed"_s);
    return ExitCode::Interrupted;
}

} // namespace

ExitCode apply(const CommandLine &line, const Shell &shell)
{
    if (!line.isConfirmed && (!shell.canAsk || line.filesFrom == "-"_L1)) {
        shell.tell(u"there is no terminal to ask on: --yes is needed"_s);
        return ExitCode::Usage;
    }
    PathList list(shell.currentFolder);
    const auto found = FileCollector(line, shell, list).collect();
    if (found == FileCollector::Result::Failed)
        return ExitCode::NoInputOrOutput;
    PlannedFiles files(list, line.rules);
    if (found == FileCollector::Result::Interrupted ||
        !(line.isClassic ? files.foretell(shell) : files.makePlan(shell)))
        return tellInterrupted(shell);
    const PlanCounts counts = files.counts();
    if (counts.stuck > 0 && !line.isClassic) {
        reportConflicts(files, line, shell);
        return ExitCode::Conflicts;
    }
    RowReport report(shell, line.form);
    // In the other forms a row is printed when it is known what became of it.
    if (line.form == OutputForm::Text || line.form == OutputForm::Nothing)
        report.plan(files);
    if (counts.renamed + counts.stuck == 0) {
        if (line.form == OutputForm::Json || line.form == OutputForm::Paths)
            report.plan(files);
        shell.tell(u"there is nothing to rename"_s);
        return ExitCode::NothingToDo;
    }
    // A plan that nobody could read is none.
    if (!shell.out.error().isEmpty())
        return ExitCode::NoInputOrOutput;
    const auto wanted = isWanted(files, line, shell);
    if (!wanted || shell.isInterrupted())
        return tellInterrupted(shell);
    if (!*wanted)
        return ExitCode::NothingToDo;
    return line.isClassic ? ClassicRename(line, shell, files).run() : PlannedRename(line, shell, files).run();
}
