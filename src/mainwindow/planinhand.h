// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/diskview.h"
#include "run/plan.h"

/// The plan of the file list's run, with the disk that it looks at.
struct PlanInHand
{
    SystemDiskView view;
    Plan plan{view};

    /// As Plan tells it, but that a name that a row keeps is not one that it takes.
    [[nodiscard]] Outcome outcome(int row) const
    {
        Outcome outcome = plan.outcome(row);
        if (outcome.reason == Fate::TakenByRow && plan.file(outcome.row).path == outcome.path) {
            outcome.fate = outcome.fate == outcome.reason ? Fate::LeavesLater : outcome.fate;
            outcome.reason = Fate::LeavesLater;
        }
        return outcome;
    }
};
