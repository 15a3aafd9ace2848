// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/disk.h"
#include "run/outcome.h"
#include "run/plan.h"

#include <QHash>

/// Renames the rows of a plan, all or none: when a move fails, those before it are taken back, in reverse and
/// without replacing anything. One move after the other, as long as it goes on:
///
///     PlannedRun run(disk, plan);
///     while (run.next()) {
///     }
class PlannedRun final
{
public:
    enum class State {
        /// Moves are to be made.
        GoingOn,
        /// Moves are to be taken back.
        GoingBack,
        /// All rows of the plan have their new names.
        Done,
        /// All have their old ones again.
        TakenBack,
        /// What was to be taken back could not be: see standing().
        Stuck,
    };

    /// Both have to live as long; the plan is made.
    PlannedRun(Disk &on, const Plan &ofPlan);
    ~PlannedRun();
    Q_DISABLE_COPY_MOVE(PlannedRun)

    /// Makes the next move, or takes the last one back; false when there is none.
    bool next();
    /// From now on moves are taken back.
    void takeBack();

    [[nodiscard]] State state() const { return now; }
    /// The rows that have their new names.
    [[nodiscard]] int renamed() const { return renamedRows; }
    /// Of the move that failed: its row, and why. -1: none did.
    [[nodiscard]] int failedRow() const { return failed; }
    [[nodiscard]] Fate failure() const { return why; }

    struct Standing
    {
        int row;
        /// What the file is called now.
        QString path;
    };
    /// The rows that do not have their old names, in the order in which they lost them.
    [[nodiscard]] QList<Standing> standing() const;

private:
    enum class Leg : quint8 { Whole, ToThird, FromThird };
    struct Move
    {
        int row;
        Leg leg;
    };

    void addMoves(const Plan::Group &group);
    void addMoves(int row);
    [[nodiscard]] RenameResult make(const Move &move);
    [[nodiscard]] RenameResult moveToThird(int row);
    bool takeLastBack();
    [[nodiscard]] QString before(const Move &move) const;
    [[nodiscard]] QString after(const Move &move) const;

    Disk &disk;
    const Plan &plan;
    State now = State::GoingOn;
    std::vector<Move> moves;
    /// So many are made and not taken back.
    size_t made = 0;
    /// The third names that rows had, as paths.
    QHash<int, QString> thirdNames;
    int renamedRows = 0;
    int failed = -1;
    Fate why = Fate::Renamed;
};
