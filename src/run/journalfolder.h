// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journal.h"
#include "run/takenback.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

class QLockFile;

/// What a list of runs shows of one journal.
struct JournalInfo
{
    enum class State {
        Complete,
        Cancelled,
        /// Killed, or the power went.
        Interrupted,
        /// Being written, by this process or another.
        InHand,
        /// Of another machine, where the same paths are other files.
        OtherMachine,
        /// Of a version of the program that knows more.
        Newer,
        /// No journal, or a broken one.
        Unreadable,
    };

    /// Of the file; later ones are greater. It names the run.
    QString name;
    State state = State::Unreadable;
    QDateTime time;
    QString program;
    /// The run that this one takes back; empty for a run that takes none back.
    QString takesBack;
    qint64 rows = 0;
    /// Those in the journal.
    qint64 renamed = 0;
    qint64 refused = 0;
    /// Renamed, but not in the journal: those stay when the run is taken back.
    qint64 unrecorded = 0;
    /// Of those renamed: not taken back. Of an interrupted run it may be one too many, never one too few.
    qint64 standing = 0;
    /// Where the renamed files were; the first folder, and how many there are. At least, of an interrupted
    /// run.
    QString folder;
    qint64 folders = 0;
    qint64 bytes = 0;
    /// Whether an interrupted run was neither taken back nor left alone.
    bool isOpen = false;
    /// Of a planned run how many rows it wished for; otherwise 0. Its renames may be more: a row can need
    /// several.
    qint64 planned = 0;

    /// How many files it renamed, as far as that is known: a planned run may rename some more than once.
    [[nodiscard]] qint64 files() const
    {
        return planned > 0 && state == State::Complete && renamed > 0 ? planned : renamed;
    }
    /// Whether this is a run of its own.
    [[nodiscard]] bool isRun() const { return takesBack.isEmpty(); }
    /// Whether the renames that stand can be taken back.
    [[nodiscard]] bool canTakeBack() const
    {
        return standing > 0 &&
               (state == State::Complete || state == State::Cancelled || state == State::Interrupted);
    }
    /// Whether this is a planned run that was interrupted: FinishRun finishes it, UndoRun puts it back,
    /// leave() has it be. An undo that was interrupted on the way leaves it so.
    [[nodiscard]] bool canFinish() const { return planned > 0 && isOpen; }
    [[nodiscard]] bool isTakenBack() const { return renamed > 0 && standing == 0; }
    [[nodiscard]] bool isPartlyTakenBack() const { return standing > 0 && standing < renamed; }

    /// For JournalFolder: what a list does not show.
    qint64 kept = 0;
    /// Whether no rename is in it, and none will be.
    bool isEmpty = false;
    int lastUncertain = 0;
    bool isLeft = false;
};

/// The journals of a data directory. Any number of processes may use one at the same time.
class JournalFolder final
{
public:
    static constexpr int mostJournals = 50;
    static constexpr qint64 mostBytes = 64 << 20;

    /// The folder need not exist.
    explicit JournalFolder(QString path);

    /// All journals, the newest first.
    [[nodiscard]] QList<JournalInfo> list() const;
    /// The journal of that name; no value where there is none.
    [[nodiscard]] std::optional<JournalInfo> find(const QString &name) const;
    /// The run that Undo takes back: the newest that still stands, at least in part. Null when there is none.
    [[nodiscard]] static const JournalInfo *undoable(const QList<JournalInfo> &newestFirst);
    /// The undo that Redo takes back: the newest since the last run. Null when there is none.
    [[nodiscard]] static const JournalInfo *redoable(const QList<JournalInfo> &newestFirst);
    /// The newest later run that renamed a file of this one's and still stands; that one has to be taken back
    /// before. Reads all of the journals in question.
    [[nodiscard]] QString touchedBy(const QString &name) const;
    /// The same for all runs that can be taken back, with each journal read once: the later one by the
    /// earlier one's name. Gives up when told to stop. May be called by any thread.
    [[nodiscard]] QHash<QString, QString> touchedRuns(const std::atomic<bool> &stop) const;

    /// Starts the journal of a run, or of one that takes another back. Nothing when that cannot be; error
    /// then says why, for a log.
    [[nodiscard]] std::unique_ptr<Journal> begin(const QString &program, qint64 rows,
                                                 const QString &takesBack, QString *error);
    /// The same for a planned run of so many rows to be renamed: see PlannedRun.
    [[nodiscard]] std::unique_ptr<Journal> beginPlanned(const QString &program, qint64 rows, QString *error);
    /// The same for what the header says; its time and machine are of no account.
    [[nodiscard]] std::unique_ptr<Journal> begin(JournalHeader header, QString *error);
    /// Removes what is too much, the oldest first, and what holds nothing. To be called after a run.
    void prune();
    /// An interrupted run is done with, without being taken back.
    bool leave(const QString &name);
    /// Removes a journal and those of the undos and redos that belong to it. False when one of them is in
    /// hand.
    bool forget(const QString &name);
    /// Removes all that are not in hand.
    bool forgetAll();

    [[nodiscard]] QString filePath(const QString &name) const { return path + u'/' + name; }
    /// The entries of a journal that were taken back and not redone.
    [[nodiscard]] TakenBack takenBack(const QString &name, const QList<JournalInfo> &newestFirst) const;

private:
    /// Null when it cannot be locked: another process has it, or it cannot be written.
    [[nodiscard]] std::unique_ptr<QLockFile> locked() const;
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] JournalInfo read(const QString &name) const;
    [[nodiscard]] QSet<size_t> filesOf(const QString &name, const QList<JournalInfo> &newestFirst) const;
    bool remove(const QStringList &some);

    QString path;
};

/// By what a journal knows its machine; not the machine's own number, which is no one else's business.
[[nodiscard]] QString thisMachine();
