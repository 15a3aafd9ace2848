// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filestamps.h"
#include "run/journalfolder.h"
#include "run/journalreader.h"
#include "run/outcome.h"

#include <QFile>
#include <QSet>

#include <memory>
#include <optional>

/// What came of taking one rename back.
struct UndoStep
{
    enum class Result {
        TakenBack,
        /// The file had its old name already.
        WasBack,
        /// Nothing has the new name.
        Missing,
        /// Another file than the one that was renamed has the new name.
        OtherFile,
        /// Something has the old name.
        Taken,
        /// The system refused: see why.
        Refused,
    };

    Result result = Result::Refused;
    /// Of a step that was Refused.
    Fate why = Fate::Unknown;
    /// The path before, and the path that the file had before the run.
    QString from;
    QString to;
    /// Where the names begin in both.
    qsizetype nameAt = 0;

    /// Whether nothing is left to do for this file.
    [[nodiscard]] bool isDone() const { return result == Result::TakenBack || result == Result::WasBack; }
};

/// By what files and scripts know a result; never changed, never translated.
[[nodiscard]] QString idOf(UndoStep::Result result);
/// The same as a run says it; Renamed where nothing is left to do.
[[nodiscard]] Fate fateOf(const UndoStep &step);

/// Takes a run back, or an undo: the journal's renames from the last to the first, a step at a time, as
/// RenameRun does rows. It never replaces a file and moves none but those of the run. What stays can be tried
/// again.
///
///     auto undo = UndoRun::begin(folder, name, disk, program);
///     while (const auto step = undo.run->next()) { ... }
///     undo.run->end(false);
class UndoRun final
{
public:
    enum class Refusal {
        None,
        /// There is no such journal, or nothing of it stands.
        NothingToDo,
        /// It is being written or taken back, perhaps by another process.
        InHand,
        /// It was written by a newer version, on another machine, or is no journal.
        NotOurs,
        /// A later run renamed some of the files: see JournalFolder::touchedBy().
        TouchedLater,
    };
    struct Begun
    {
        std::unique_ptr<UndoRun> run;
        /// Why there is none.
        Refusal refusal = Refusal::None;
    };

    /// The folder and the disk must outlive the run.
    [[nodiscard]] static Begun begin(JournalFolder &folder, const QString &name, Disk &disk,
                                     const QString &program);
    /// Without end() the undo counts as cancelled.
    ~UndoRun();
    Q_DISABLE_COPY_MOVE(UndoRun)

    /// How many steps there are.
    [[nodiscard]] qint64 total() const { return steps; }
    /// Takes the next rename back; no value after the last. An exchange is one call and gives two steps. A
    /// file that a planned run moved more than once has as many steps.
    [[nodiscard]] std::optional<UndoStep> next();
    /// Ends the undo's own journal, lets go of the other, and removes what journals are too much.
    void end(bool cancelled);

    /// Why this undo cannot be taken back itself, at least in part; empty while it can.
    [[nodiscard]] QString journalError() const;

private:
    UndoRun(JournalFolder &folder, const QString &name, Disk &on);
    [[nodiscard]] UndoStep takeBack(const JournalEntry &entry);
    [[nodiscard]] UndoStep::Result move(const JournalEntry &entry, UndoStep &step);
    [[nodiscard]] UndoStep::Result resultOfLost(const UndoStep &step) const;
    [[nodiscard]] UndoStep takeExchangeBack(const JournalEntry &entry);
    [[nodiscard]] UndoStep::Result exchange(const JournalEntry &entry, UndoStep &step);

    JournalFolder &journals;
    Disk &disk;
    FileStamps stamps;
    QFile file;
    std::optional<BackwardEntries> entries;
    /// Entries that were taken back before.
    QSet<qint64> gone;
    QDateTime time;
    qint64 steps = 0;
    /// Of an exchange that was taken back, what is to be told of the other file.
    std::optional<UndoStep> pending;
    /// The undo's own.
    std::unique_ptr<Journal> journal;
    QString createError;
    bool ended = true;
};
