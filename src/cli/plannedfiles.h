// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/pathlist.h"
#include "cli/progress.h"
#include "naming/chain.h"
#include "run/plan.h"

#include <memory>
#include <vector>

/// How many rows come to what.
struct PlanCounts
{
    int renamed = 0;
    int unchanged = 0;
    int stuck = 0;
    /// Of those that are stuck: what cannot be told before.
    int unknown = 0;
};

/// Files, the rules for them, and what becomes of each.
class PlannedFiles final
{
public:
    PlannedFiles(const PathList &files, const Chain &rules)
        : list(files)
        , chain(rules)
    {
    }

    [[nodiscard]] int count() const { return list.count(); }
    [[nodiscard]] const PathList &paths() const { return list; }
    /// Names whose bytes are no text get one that is refused.
    [[nodiscard]] QString newName(int row, const FilePath &file) const;

    /// Plans all rows at once; false when it was interrupted.
    [[nodiscard]] bool makePlan(const Shell &shell);
    /// Foretells every row in the order of the list; false when it was interrupted.
    [[nodiscard]] bool foretell(const Shell &shell);
    /// Good once it was made.
    [[nodiscard]] const Plan &plan() const { return *madePlan; }

    /// What was foretold of a row, or set for it, without its path.
    [[nodiscard]] Outcome outcome(int row) const;
    void setOutcome(int row, const Outcome &outcome);
    [[nodiscard]] PlanCounts counts() const;

private:
    struct Told
    {
        explicit Told(const Outcome &outcome)
            : fate(static_cast<qint8>(outcome.fate))
            , reason(static_cast<qint8>(outcome.reason))
            , row(outcome.row)
        {
        }

        qint8 fate;
        qint8 reason;
        int row;
    };

    const PathList &list;
    const Chain &chain;
    std::vector<Told> told;
    SystemDiskView view;
    std::unique_ptr<Plan> madePlan;
};

/// Whether the row keeps its name although it was to get another.
[[nodiscard]] bool isStuck(const Outcome &outcome);
