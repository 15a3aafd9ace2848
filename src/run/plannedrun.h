// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/disk.h"
#include "run/filestamps.h"
#include "run/journal.h"
#include "run/outcome.h"
#include "run/plan.h"

#include <QDateTime>
#include <QHash>

/// Renames the rows of a plan, all or none: when a move fails, those before it are taken back, in reverse and
/// without replacing anything. The journal knows all rows before the first is moved, and each move before it
/// is made; a run whose journal cannot be written takes everything back. One move after the other, as long as
/// it goes on:
///
///     const auto journal = journals.beginPlanned(program, plan.order().size(), &error);
///     if (!journal)
///         return; // deliberate: no planned run without its journal, if not asked for
///     PlannedRun run(disk, plan, journal.get());
///     while (run.next()) {
///     }
///     run.end();
///
/// The disk is the plain one, not a JournalledDisk. Rows that the plan refuses are left out: whoever wants
/// all or nothing asks plan.refused() first.
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

    /// What becomes of what stands when the run ends before it is Done or TakenBack.
    enum class Rest {
        /// The run stays interrupted: it can be finished, put back or left. JournalInfo::isOpen.
        StaysOpen,
        /// It is done with; an undo can still take it back.
        IsKept,
    };

    /// All have to live as long; the plan is made. Without a journal nothing outlives the process.
    PlannedRun(Disk &on, const Plan &ofPlan, Journal *in = nullptr);
    ~PlannedRun();
    Q_DISABLE_COPY_MOVE(PlannedRun)

    /// Writes the rows ahead; then makes the next move, or takes the last one back. False when there is none.
    bool next();
    /// From now on moves are taken back.
    void takeBack();

    /// To be told once, after the last step. Ends the journal; of a run of which nothing stands none is left.
    void end(Rest rest = Rest::StaysOpen);

    [[nodiscard]] State state() const { return now; }
    /// The moves there are, and those that are made and not taken back: a row may need more than one.
    [[nodiscard]] qsizetype moveCount() const { return static_cast<qsizetype>(moves.size()); }
    [[nodiscard]] qsizetype movesMade() const { return static_cast<qsizetype>(made); }
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
