// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalline.h"

#include <QSet>

#include <memory>

/// The record of one run, written ahead: whoever renames a file tells the journal before. A line costs no
/// system call and outlives the process; another thread brings them to the disk, at once, about every second,
/// and at the end. What goes wrong with a journal never stops a run.
class Journal final
{
public:
    /// Nothing when the file cannot be made; error then says why.
    [[nodiscard]] static std::unique_ptr<Journal> create(const QString &path, const JournalHeader &header,
                                                         QString *error);
    /// That of an interrupted run, to go on with it: resume() before anything else. Until then it is only
    /// held, and stays as it is. Nothing where it is in another's hand, or cannot be written; error then says
    /// why, and is empty for the first.
    [[nodiscard]] static std::unique_ptr<Journal> reopen(const QString &path, QString *error);
    /// A run that was not told to have ended counts as cancelled.
    ~Journal();
    Q_DISABLE_COPY_MOVE(Journal)

    /// The journal's lines end there, and the next entry has that number. False when that cannot be.
    [[nodiscard]] bool resume(qint64 size, qint64 nextEntry, const JournalFigures &figures);
    [[nodiscard]] bool isResumed() const { return resumed; }

    /// A row of a planned run, before the first rename. Without the folder and the volume, which are told
    /// where they change. False when it is not in the journal.
    [[nodiscard]] bool wish(JournalWishView wish);
    /// To be told before each rename or exchange; counts it as done. The number that the entry gets.
    qint64 renaming(JournalEntryView entry);
    /// The rename that was told last came to nothing.
    void refused(const QString &reason);
    /// See JournalKept.
    void kept(const JournalKept &kept);
    /// The planned run took an entry of its own back.
    void takenBack(const JournalBack &back);
    /// The run is over. A journal in which nothing happened is removed.
    void end(bool cancelled);
    /// The run stops and is to be gone on with: it counts as interrupted.
    void stop();

    /// Waits until all that was told is on the disk, for whoever must not go on before.
    bool sync();

    [[nodiscard]] QString path() const;
    /// Why the journal does not hold everything; empty while it does.
    [[nodiscard]] QString error() const { return lastError; }
    [[nodiscard]] const JournalFigures &figures() const { return soFar; }

private:
    struct File;

    explicit Journal(std::shared_ptr<File> made);
    [[nodiscard]] bool makeRoom(qsizetype bytes);
    void append(const QByteArray &line);
    void close(JournalFigures::State state);

    std::shared_ptr<File> file;
    QString lastError;
    JournalFigures soFar;
    /// The hashes of the folders seen, a tenth of the memory of their names.
    QSet<size_t> folders;
    QString folder;
    QByteArray folderText;
    QString wishFolder;
    QString wishVolume;
    qint64 entries = 0;
    /// Of the folders that a resumed run had seen.
    qint64 foldersBefore = 0;
    /// Whether the last entry is in the file, and how many files it moves.
    bool recorded = false;
    int lastFiles = 1;
    bool resumed = false;
    bool ended = false;

    /// Where the next line goes, and where the window ends.
    char *next = nullptr;
    char *windowEnd = nullptr;
    /// What the file's offset is at the window's end.
    qint64 endOffset = 0;
};
