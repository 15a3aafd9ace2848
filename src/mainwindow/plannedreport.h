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

/// Shows it in a box, and in the log; true when what can be shall be renamed.
[[nodiscard]] bool showPlannedReport(QWidget *parent, const PlannedReport &report, const Failures &failures);
