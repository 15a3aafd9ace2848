// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/planjournal.h"
#include "run/plannedrun.h"
#include "run/undorun.h"

#include <QMap>

/// Finishes a planned run that was interrupted, from what its journal and the disk tell: the rows that it
/// wished for are planned anew, all or none of them. The moves go on in the run's own journal, so that an
/// undo takes the whole run back.
///
///     auto begun = FinishRun::begin(folder, name, disk, view);
///     if (begun.run && begun.run->refused() == 0) {
///         while (begun.run->next()) { ... }
///         begun.run->end();
///     }
///
/// The other choices: UndoRun puts everything back, JournalFolder::leave() has the run be as it is.
class FinishRun final
{
public:
    struct Begun
    {
        std::unique_ptr<FinishRun> run;
        /// Why there is none. NothingToDo: it is no planned run that was interrupted.
        UndoRun::Refusal refusal = UndoRun::Refusal::None;
    };

    /// The folder, the disk and the view must outlive the run. Reads the journal and the folders: a million
    /// rows take seconds.
    [[nodiscard]] static Begun begin(JournalFolder &folder, const QString &name, Disk &disk,
                                     const DiskView &view);
    /// Without end() the run stays interrupted. Where nothing was tried the journal is as it was.
    ~FinishRun();
    Q_DISABLE_COPY_MOVE(FinishRun)

    /// How many rows the run wished for.
    [[nodiscard]] int count() const { return static_cast<int>(told.rows.size()); }
    /// Where the row's file is, or should be, before this run; of one that has its new name already, that.
    [[nodiscard]] FilePath file(int row) const { return plan.file(row); }
    /// Renamed, Unchanged where it has its new name already, or why it cannot be.
    [[nodiscard]] Outcome outcome(int row) const;
    /// The rows that cannot be. While there are some nothing is touched: next() says false at once.
    [[nodiscard]] int refused() const { return refusedRows; }
    /// The rows still to be renamed.
    [[nodiscard]] int total() const { return static_cast<int>(plan.order().size()); }

    /// As PlannedRun's.
    [[nodiscard]] bool next();
    void takeBack();
    /// Null where nothing is to be tried.
    [[nodiscard]] const PlannedRun *run() const { return planned.get(); }
    /// See PlannedRun::end().
    void end(PlannedRun::Rest rest = PlannedRun::Rest::StaysOpen);

    /// Why the journal cannot be written, without which nothing is touched. Otherwise empty.
    [[nodiscard]] QString journalError() const;

private:
    FinishRun(JournalFolder &folder, Disk &on, const DiskView &view);
    void makePlan(const QDateTime &begun);
    [[nodiscard]] std::optional<QString> placeOf(const PlanJournal::Row &row, const QSet<QString> &places,
                                                 FileStamps &stamps, const QDateTime &begun);
    void addToPlan(const PlanJournal::Row &row, const QString &place);
    [[nodiscard]] bool resume();

    JournalFolder &journals;
    Disk &disk;
    PlanJournal told;
    JournalFigures figures;
    /// The entries that are told as standing, and are not, with how many files they move.
    QMap<qint64, int> undone;
    /// The rows whose files are not where the journal says.
    QHash<int, Fate> lost;
    Plan plan;
    int refusedRows = 0;
    std::unique_ptr<Journal> journal;
    std::unique_ptr<PlannedRun> planned;
    QString lastError;
    bool ended = false;
};
