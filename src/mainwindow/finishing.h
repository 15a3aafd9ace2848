// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/takingback.h"

class FinishRun;
struct PlannedReport;

/// Finishes runs that were to rename all files or none and were interrupted, with the wait dialog, the log
/// lines and the report of a run; rows follow their files.
class Finishing final
{
public:
    /// The window's parts and the history must outlive it.
    Finishing(WindowParts windowParts, RunHistory &runHistory);

    /// Finishes this run, or says why not, above that window.
    void finish(const QString &journal, QWidget *above);

private:
    void tellRefused(const FinishRun &run, PlannedReport &report, Failures &failures) const;
    void renameRest(FinishRun &run, RunProgress &progress, PlannedReport &report, Failures &failures) const;

    WindowParts parts;
    RunHistory &history;
};
