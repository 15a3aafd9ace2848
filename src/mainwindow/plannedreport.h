// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/runprogress.h"

/// What came of a run that renames all files or none.
struct PlannedReport
{
    RunFigures figures;
    /// Why it is not all of them; mostly empty.
    QString note;
    /// Whether some could be renamed though not all can.
    bool offersRest = false;
};

// Both have the log say it, too.

/// A row that cannot be renamed, or was not.
void tellNotRenamed(const Failure &failure, Failures &failures);
/// A row that was to have its old name again, and has not. The file is the one from before the run.
void tellNotPutBack(int row, const FilePath &file, const QString &pathNow, Failures &failures);

/// Shows it in a box, and in the log; true when what can be shall be renamed.
[[nodiscard]] bool showPlannedReport(QWidget *parent, const PlannedReport &report, const Failures &failures);
