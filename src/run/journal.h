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
    /// A run that was not told to have ended counts as cancelled.
    ~Journal();
    Q_DISABLE_COPY_MOVE(Journal)

    /// To be told before each rename; counts it as done. The entry's number is given here.
    void renaming(JournalEntryView entry);
    /// The rename that was told last came to nothing.
    void refused(const QString &reason);
    /// See JournalKept.
    void kept(qint64 takesBack);
    /// The run is over. A journal in which nothing happened is removed.
    void end(bool cancelled);

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

    std::shared_ptr<File> file;
    QString lastError;
    JournalFigures soFar;
    /// The hashes of the folders seen, a tenth of the memory of their names.
    QSet<size_t> folders;
    QString folder;
    QByteArray folderText;
    qint64 entries = 0;
    /// Whether the last entry is in the file.
    bool recorded = false;
    bool ended = false;

    /// Where the next line goes, and where the window ends.
    char *next = nullptr;
    char *windowEnd = nullptr;
    /// What the file's offset is at the window's end.
    qint64 endOffset = 0;
};
