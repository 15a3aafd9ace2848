// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/rowreport.h"
#include "run/undorun.h"

/// Takes a run back, and prints its files as the run would.
class TakenBackRun final
{
public:
    TakenBackRun(const Shell &inShell, OutputForm asForm)
        : shell(inShell)
        , form(asForm)
        , report(inShell, asForm)
    {
    }

    /// False when it was interrupted.
    bool takeAllBack(UndoRun &run);

    [[nodiscard]] qint64 done() const { return doneSteps; }
    [[nodiscard]] qint64 failed() const { return failedSteps; }

private:
    void print(const UndoStep &step);

    const Shell &shell;
    OutputForm form;
    RowReport report;
    qint64 doneSteps = 0;
    qint64 failedSteps = 0;
};
