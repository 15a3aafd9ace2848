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

/// Renames files in the order of the list, as the window does, with a journal that the window reads, too.
class ClassicRename final
{
public:
    ClassicRename(const CommandLine &forLine, const Shell &inShell, PlannedFiles &plan);

    [[nodiscard]] ExitCode run();

private:
    enum class End { Complete, Interrupted };

    [[nodiscard]] bool beginJournal();
    [[nodiscard]] End renameAll(Disk &disk);
    void renameNext(RenameRun &rename);
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
};
