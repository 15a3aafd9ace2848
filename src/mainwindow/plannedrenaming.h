// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/takingback.h"
#include "run/plannedrun.h"

struct PlanInHand;
struct PlannedReport;

/// Renames the files of the list, all or none: with the wait dialog, the log lines and the report of a run.
class PlannedRenaming final
{
public:
    using Namer = std::function<QString(const QString &name, int row)>;

    /// The window's parts and the history must outlive it.
    PlannedRenaming(WindowParts windowParts, RunHistory &runHistory, Namer namer);

    /// Nothing is touched where not all rows can be renamed; those that can are when that is wished then.
    void run();

private:
    enum class Rows { All, ThoseThatCan };

    [[nodiscard]] bool rename(Rows rows);
    [[nodiscard]] bool makePlan(PlanInHand &inHand, RunProgress &progress) const;
    void tellRefused(const PlanInHand &inHand, RunProgress &progress, Failures &failures) const;
    void carryOut(const PlanInHand &inHand, RunProgress &progress, PlannedReport &report,
                  Failures &failures) const;
    [[nodiscard]] PlannedRun::Rest goThrough(PlannedRun &run, const Plan &plan, RunProgress &progress) const;
    [[nodiscard]] bool wantsAllBack(const PlannedRun &run, const Plan &plan) const;
    void tellStanding(const PlannedRun &run, const Plan &plan, PlannedReport &report,
                      Failures &failures) const;
    void followFiles(const PlannedRun &run, const Plan &plan, RunProgress &progress) const;

    WindowParts parts;
    RunHistory &history;
    Namer newName;
};
