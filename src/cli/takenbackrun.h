// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/rowreport.h"
#include "run/undorun.h"

/// Takes a run back, and prints its files as the run would.
class TakenBackRun final
{
public:
    /// Whether files may have been renamed more than once: then they are counted, not their renames.
    TakenBackRun(const Shell &inShell, OutputForm asForm, bool countFiles = false)
        : shell(inShell)
        , form(asForm)
        , countsFiles(countFiles)
        , report(inShell, asForm)
    {
    }

    /// False when it was interrupted.
    bool takeAllBack(UndoRun &run);

    /// The files that have their old names, and all.
    [[nodiscard]] qint64 doneFiles() const { return countsFiles ? files.done() : doneSteps; }
    [[nodiscard]] qint64 totalFiles(const UndoRun &run) const
    {
        return countsFiles ? files.total() : run.total();
    }
    [[nodiscard]] qint64 done() const { return doneSteps; }
    [[nodiscard]] qint64 failed() const { return failedSteps; }

private:
    void print(const UndoStep &step);

    const Shell &shell;
    OutputForm form;
    bool countsFiles;
    UndoneFiles files;
    RowReport report;
    qint64 doneSteps = 0;
    qint64 failedSteps = 0;
};
