// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/commandline.h"
#include "cli/exitcode.h"
#include "cli/plannedfiles.h"
#include "cli/rowreport.h"
#include "run/journalfolder.h"
#include "run/plannedrun.h"
#include "run/systemdisk.h"

/// Renames files whose plan was made, all of them or none, with a journal that the window reads, too.
class PlannedRename final
{
public:
    PlannedRename(const CommandLine &forLine, const Shell &inShell, PlannedFiles &plannedFiles);

    [[nodiscard]] ExitCode run();

private:
    [[nodiscard]] bool beginJournal();
    void renameAll(PlannedRun &run);
    void noteOutcomes(const PlannedRun &run);
    [[nodiscard]] ExitCode tellEnd(const PlannedRun &run) const;
    [[nodiscard]] ExitCode tellBack(const PlannedRun &run) const;

    const CommandLine &line;
    const Shell &shell;
    PlannedFiles &files;
    RowReport report;
    JournalFolder journals;
    SystemDisk system;
    std::unique_ptr<Journal> journal;
    bool wasInterrupted = false;
};
