// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/commandline.h"
#include "cli/exitcode.h"
#include "cli/plannedfiles.h"
#include "cli/rowreport.h"
#include "run/journalfolder.h"
#include "run/journalleddisk.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"

/// Renames files whose outcomes were foretold, with a journal that the window reads, too.
class PlannedRename final
{
public:
    PlannedRename(const CommandLine &forLine, const Shell &inShell, PlannedFiles &plan);

    [[nodiscard]] ExitCode run();

private:
    enum class End { Complete, Interrupted, Failed };

    [[nodiscard]] bool beginJournal();
    [[nodiscard]] End renameAll(Disk &disk);
    /// False where the run must not go on.
    [[nodiscard]] bool renameNext(RenameRun &rename);
    /// Has the files back that were renamed before one failed.
    void takeBack();
    void tellEnd(End end) const;

    const CommandLine &line;
    const Shell &shell;
    PlannedFiles &files;
    RowReport report;
    JournalFolder journals;
    SystemDisk system;
    std::unique_ptr<Journal> journal;
    int renamed = 0;
    int failed = 0;
    /// Of those renamed, how many have their old names again.
    int takenBack = 0;
};
