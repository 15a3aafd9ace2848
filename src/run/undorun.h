// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filestamps.h"
#include "run/journalfolder.h"
#include "run/journalreader.h"
#include "run/outcome.h"

#include <QFile>
#include <QHash>

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
    FileStamp file = {};

    /// Whether nothing is left to do for this file.
    [[nodiscard]] bool isDone() const { return result == Result::TakenBack || result == Result::WasBack; }
};

/// By what files and scripts know a result; never changed, never translated.
[[nodiscard]] QString idOf(UndoStep::Result result);
/// The same as a run says it; Renamed where nothing is left to do.
[[nodiscard]] Fate fateOf(const UndoStep &step);

/// Counts the files of steps: one that a planned run moved more than once has as many.
class UndoneFiles final
{
public:
    void add(const UndoStep &step);

    [[nodiscard]] qint64 total() const { return files; }
    /// Those whose last step was done.
    [[nodiscard]] qint64 done() const { return doneFiles; }

private:
    /// Whether the step was done that brings a file to a path.
    QHash<size_t, bool> reached;
    qint64 files = 0;
    qint64 doneFiles = 0;
};

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
    /// The same for whoever stops before the end and counts what is left: nothing is taken back. Such a step
    /// is Refused.
    [[nodiscard]] std::optional<UndoStep> skip();
    /// Ends the undo's own journal, lets go of the other, and removes what journals are too much.
    void end(bool cancelled);

    /// Why this undo cannot be taken back itself, at least in part; empty while it can.
    [[nodiscard]] QString journalError() const;

private:
    [[nodiscard]] std::optional<TakenBack::Standing> nextEntry();
    UndoRun(JournalFolder &folder, const QString &name, Disk &on);
    /// A rename, or one file of an exchange.
    [[nodiscard]] UndoStep takeBack(const TakenBack::Standing &standing);
    [[nodiscard]] UndoStep::Result move(const TakenBack::Standing &standing, UndoStep &step);
    [[nodiscard]] UndoStep::Result resultOfLost(const TakenBack::Standing &standing, const UndoStep &step);
    /// Whether the file there is one of those that the run exchanged.
    [[nodiscard]] bool isExchanged(const QString &path);
    [[nodiscard]] UndoStep takeExchangeBack(const JournalEntry &entry);
    [[nodiscard]] UndoStep::Result exchange(const JournalEntry &entry, UndoStep &step);

    JournalFolder &journals;
    Disk &disk;
    FileStamps stamps;
    QFile file;
    std::optional<BackwardEntries> entries;
    /// Entries that were taken back before.
    TakenBack gone;
    QDateTime time;
    qint64 steps = 0;
    /// Those files by their numbers, once somebody asked.
    std::optional<QHash<quint64, FileStamp>> exchanged;
    /// Of an exchange that was taken back, what is to be told of the other file.
    std::optional<UndoStep> pending;
    /// The undo's own.
    std::unique_ptr<Journal> journal;
    QString createError;
    bool ended = true;
};
