// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalline.h"
#include "run/takenback.h"

#include <QFile>
#include <QSet>

#include <optional>

/// The lines of a file from its last to its first, a block at a time. What stands behind the last newline is
/// no line; neither is one of a megabyte.
class BackwardLines final
{
public:
    explicit BackwardLines(QIODevice &device);

    /// The line before, without its newline and without zeros at its front; no value at the beginning. It is
    /// valid until the next call.
    [[nodiscard]] std::optional<QByteArrayView> next();

private:
    void readBlock();

    QIODevice &file;
    /// The file from this offset on, as far as it is still needed.
    QByteArray buffer;
    qint64 offset = 0;
    /// The end of the next line in the buffer.
    qsizetype end = 0;
    /// Whether that is the end of something that is no line.
    bool dropping = true;
    bool atBeginning = false;
};

/// The renames of a journal that were done, the last one first. Memory does not grow with them.
class BackwardEntries final
{
public:
    explicit BackwardEntries(QIODevice &device);

    /// The entry before; no value at the beginning. Those that were refused, or that a planned run took back
    /// itself, are passed over.
    [[nodiscard]] std::optional<JournalEntry> next();
    /// Those of the other journal that were found to be back already, as far as next() has come.
    [[nodiscard]] const TakenBack &kept() const { return keptEntries; }
    /// Whether the entry given last is the last thing that the run told: it may have ended before it was
    /// renamed.
    [[nodiscard]] bool isUncertain() const { return uncertain; }

private:
    BackwardLines lines;
    /// Refused, or taken back by the run itself.
    QSet<qint64> undone;
    TakenBack keptEntries;
    bool uncertain = false;
    bool isLast = true;
};

/// What can be said of a journal without reading all of it.
struct JournalSummary
{
    /// No value: no journal, or none that is understood.
    std::optional<JournalHeader> header;
    /// State Running where the run told no end: it is in hand, or was interrupted.
    JournalFigures figures;
    /// Of an interrupted run: how many files its last rename moved if it was done, which nobody knows. They
    /// are among the figures.
    int lastUncertain = 0;
    bool isLeft = false;
    /// The folder of the first rename, or of the first row of a planned run.
    QString folder;
};

/// Reads the beginning, and the end up to the last figures.
[[nodiscard]] JournalSummary summaryOf(QIODevice &file);

/// Where the last line of a file ends.
[[nodiscard]] qint64 endOfLines(QIODevice &file);
