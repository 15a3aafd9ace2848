// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <variant>

/// The lines of a journal. Each is a JSON object whose members are texts and whole numbers.

/// The first line: what the journal is of.
struct JournalHeader
{
    /// Of what version() on the reader knows only that it is a journal.
    qint64 version = 1;
    /// When the run began. A file that was born later is none that the run moved.
    QDateTime time;
    QString program;
    QString machine;
    qint64 rows = 0;
    /// The journal of the run that this one takes back; empty for a run that takes none back.
    QString takesBack;
    /// Of a planned run how many rows it writes ahead; otherwise 0.
    qint64 planned = 0;
};

/// By what a file is known again, whatever it is called and whatever was written into it.
struct FileStamp
{
    /// As Volume has it; empty when nothing is known of the file.
    QString volume;
    /// 0 where the file system keeps no numbers: size and time of modification stand in.
    quint64 number = 0;
    qint64 size = 0;
    /// Milliseconds since 1970, UTC.
    qint64 modified = 0;

    [[nodiscard]] bool operator==(const FileStamp &) const = default;
};

/// Written before a file is renamed: from "folder/from" to "folder/to".
struct JournalEntry
{
    /// Counts from 0 in each journal.
    qint64 number = 0;
    /// The number of the entry that this one takes back, or -1.
    qint64 takesBack = -1;
    QString folder;
    QString from;
    QString to;
    FileStamp file;
    /// Of an exchange the file that goes from "folder/to" to "folder/from" at once.
    std::optional<FileStamp> other = std::nullopt;
    /// Which file of an exchange an undo takes back alone: 1 for its file, 2 for the other; otherwise 0.
    int half = 0;

    /// How many files the entry moves.
    [[nodiscard]] int files() const { return other ? 2 : 1; }
};

/// Of an exchange what becomes of the other file, as a rename of its own.
[[nodiscard]] JournalEntry otherOf(const JournalEntry &exchange);

/// A row of a planned run, all of which are written before the first is renamed: its file and what it shall
/// be called. Where there is no folder or no volume it is that of the row before.
struct JournalWish
{
    std::optional<QString> folder;
    QString from;
    QString to;
    FileStamp file;
    /// Whether anything was known of the file.
    bool isStamped = false;
};

struct JournalWishView
{
    /// Null where it is not to be told.
    QStringView folder;
    QStringView from;
    QStringView to;
    QStringView volume;
    const FileStamp &file;
};

/// A planned run took its entry of this number back itself: written when that was done.
struct JournalBack
{
    qint64 number = 0;
    int files = 1;
};

/// The same, of texts that belong to others: what is written for each file is not copied before.
struct JournalEntryView
{
    qint64 number = 0;
    qint64 takesBack = -1;
    QStringView folder;
    QStringView from;
    QStringView to;
    const FileStamp &file;
    /// See JournalEntry; null where there is none.
    const FileStamp *other = nullptr;
    int half = 0;

    [[nodiscard]] int files() const { return other ? 2 : 1; }
};

/// The rename of this number was refused: nothing was moved.
struct JournalRefusal
{
    qint64 number = 0;
    QString reason;
};

/// The file of the entry that was to be taken back had its old name already, or both of an exchange, or one:
/// see JournalEntry.
struct JournalKept
{
    qint64 takesBack = 0;
    int files = 1;
    int half = 0;
};

/// What came of the run by then: from time to time, and as the last line of a run that came to its end.
struct JournalFigures
{
    enum class State { Running, Complete, Cancelled };

    State state = State::Running;
    qint64 renamed = 0;
    qint64 refused = 0;
    /// The files that had their old names already.
    qint64 kept = 0;
    /// Renamed after the journal could not be written any more.
    qint64 unrecorded = 0;
    /// How many folders the renamed files were in.
    qint64 folders = 0;
};

/// Behind what an interrupted run left: it is to be left alone.
struct JournalLeft
{
};

using JournalLine = std::variant<std::monostate, JournalHeader, JournalEntry, JournalRefusal, JournalKept,
                                 JournalFigures, JournalLeft, JournalWish, JournalBack>;

/// The newest version of the format that is understood. Only journals that tell of planned runs have it:
/// whoever knows the first alone could not take exchanges back.
constexpr qint64 journalVersion = 2;

/// With its newline.
[[nodiscard]] QByteArray toJson(const JournalHeader &header);
[[nodiscard]] QByteArray toJson(const JournalEntry &entry);
[[nodiscard]] QByteArray toJson(const JournalRefusal &refusal);
[[nodiscard]] QByteArray toJson(const JournalKept &kept);
[[nodiscard]] QByteArray toJson(const JournalFigures &figures);
[[nodiscard]] QByteArray toJson(const JournalLeft &left);
[[nodiscard]] QByteArray toJson(const JournalBack &back);

/// As toJson(), into memory that has room for mostBytes(), with the folder as folderJson() gives it; gives
/// the place behind the line.
char *writeJson(const JournalEntryView &entry, QByteArrayView folder, char *memory);
[[nodiscard]] qsizetype mostBytes(const JournalEntryView &entry);
[[nodiscard]] QByteArray folderJson(QStringView folder);
char *writeJson(const JournalWishView &wish, char *memory);
[[nodiscard]] qsizetype mostBytes(const JournalWishView &wish);

/// What a line says, without its newline; monostate for what is no line of a journal, whole or not.
[[nodiscard]] JournalLine fromJson(QByteArrayView line);
