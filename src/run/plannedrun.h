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
    /// Whether some file has neither its old name nor its new one: a run that is kept as it is goes on until
    /// no file has.
    [[nodiscard]] bool isBetween() const;
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
    enum class Leg : quint8 { Whole, ToThird, FromThird, Exchange };
    struct Move
    {
        int row;
        Leg leg;
        /// Of an exchange: the row whose file has the name, and the row where this one's file is by then.
        int other = -1;
        int hub = -1;
        /// Its number in the journal.
        qint64 entry = -1;
    };

    [[nodiscard]] bool canExchange(const Plan::Group &group) const;
    void addMoves(const Plan::Group &group);
    void addExchanges(const Plan::Group &group);
    void addMoves(int row);
    /// From this move on there are no exchanges.
    void replan();

    [[nodiscard]] bool writeAhead();
    void makeNext();
    /// No value where it has to be done in another way.
    [[nodiscard]] std::optional<Fate> make(Move &move);
    [[nodiscard]] Fate rename(Move &move, const FilePath &from, const QString &to);
    [[nodiscard]] std::optional<Fate> exchange(Move &move);
    /// Whether the files of these rows are where an exchange puts them, or had them.
    [[nodiscard]] bool areAt(const Move &move, int rowAtTarget, int rowAtPlace);
    /// How many rows get their new names by it.
    [[nodiscard]] int placedRows(size_t number) const;
    [[nodiscard]] bool isDone(RenameResult result, int row, const QString &from, const QString &to);
    void countThirdName(Leg leg, int by);
    bool takeLastBack();
    [[nodiscard]] bool makeBack(const Move &move);
    [[nodiscard]] bool exchangeBack(const Move &move);

    [[nodiscard]] QString before(const Move &move) const;
    [[nodiscard]] QString after(const Move &move) const;
    [[nodiscard]] int rowAt(qsizetype place) const { return plan.order()[static_cast<size_t>(place)]; }
    [[nodiscard]] FileStamp &stampOf(int row) { return stamps[static_cast<size_t>(row)]; }

    Disk &disk;
    const Plan &plan;
    Journal *journal;
    State now = State::GoingOn;
    bool isPrepared = false;
    bool exchanges = true;
    std::vector<Move> moves;
    /// So many are made and not taken back.
    size_t made = 0;
    /// By their rows: what tells the files from others. Of rows that are not moved they are empty.
    std::vector<FileStamp> stamps;
    FileStamps reader;
    QDateTime begun;
    /// The third names that rows had, as paths.
    QHash<int, QString> thirdNames;
    /// How many of them files have now.
    int usedThirdNames = 0;
    int renamedRows = 0;
    int failed = -1;
    Fate why = Fate::Renamed;
};
