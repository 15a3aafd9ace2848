// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/commandline.h"
#include "cli/plannedfiles.h"
#include "cli/shell.h"

/// What is printed of a row: text as textOfBytes() has it.
struct ReportedRow
{
    QString oldPath;
    QString newPath;
    /// The ids of what becomes of it; the reason only where it is another.
    QString outcome;
    QString reason;
    QString blockedBy;
    /// Whether it has its new path then.
    bool isDone = false;
    /// Why it keeps its old path, where it was to get another; otherwise what else is to be said.
    QString words;
};

/// Prints rows in the form that the command line asks for.
class RowReport final
{
public:
    RowReport(const Shell &inShell, OutputForm asForm)
        : shell(inShell)
        , form(asForm)
    {
    }

    /// To be told of all rows, those in trouble first; in the other forms a row is printed once, in its
    /// place.
    void print(const ReportedRow &row);
    /// Why a file keeps its name, on standard error; in JSON that stands among the rows.
    void trouble(const ReportedRow &row);

    /// A plan as it was foretold, or what came of it, trouble first.
    void plan(const PlannedFiles &files);

private:
    [[nodiscard]] QString pairText(const ReportedRow &row, bool isColored) const;
    void printJson(const ReportedRow &row);

    const Shell &shell;
    OutputForm form;
};

/// What is printed of a planned row.
[[nodiscard]] ReportedRow reportedRow(const PlannedFiles &files, int row);
