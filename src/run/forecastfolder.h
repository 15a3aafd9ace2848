// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/diskview.h"
#include "run/namestore.h"
#include "run/outcome.h"

#include <QHash>
#include <QList>

#include <deque>

/// One folder of a forecast: what is in it, first on the disk, then after the moves told so far. The folder
/// is read once.
class ForecastFolder final
{
public:
    struct Entry
    {
        /// The row that has the name; -1: none.
        int row = -1;
        /// Of what was moved away the entry stays.
        bool isThere = false;
        /// Whether that is known: a row whose fate is unknown may have taken the name, or left it.
        bool isSure = true;
        std::optional<FileIdentity::Kind> kind;
        /// The row that shall have the name, where that is asked; -1: none.
        int taker = -1;
    };

    /// The path ends with a separator.
    ForecastFolder(const DiskView &view, const QString &path);

    /// A row of the list, before the folder is read. Of the rows of one file the first counts.
    void addRow(QStringView name, int row);
    /// One more file will be asked for: only for speed, and before the folder is read.
    void expectRow() { ++expectedRows; }
    /// Reads on; false while there is more. Nothing below may be asked before it said true.
    [[nodiscard]] bool read(int atMost);
    /// What is in it shall not be told: counts as read, and as unreadable.
    void giveUp();

    [[nodiscard]] const FolderTraits &traits() const { return known; }
    /// What is, or was, there by the name, by whatever spelling; null if nothing ever was.
    [[nodiscard]] Entry *find(QStringView name);
    /// Puts what is moved here under its new name, in the place of what was there.
    void insert(Entry *gone, QStringView name, int row, std::optional<FileIdentity::Kind> kind);
    void remove(Entry *entry, QStringView name);
    /// The row shall have the name, if none shall have it already: the entry's taker tells.
    Entry &claim(QStringView name, int row);
    /// Whether something is there by the name shall be unknown; the entry is that of the name, if there is
    /// one.
    void doubt(Entry *entry, QStringView name);

    /// Whether something else may be the same name, where nobody knows which spellings are one. The file's
    /// own name is nothing else; it is null where the file comes from another folder.
    [[nodiscard]] bool mayClash(QStringView name, QStringView ownName) const;
    /// Whether a file can be given its own name in another case.
    [[nodiscard]] bool changesCase() const { return canChangeCase; }
    /// NotAllowed or Unknown where the file system does not take a name, or may not.
    [[nodiscard]] std::optional<Fate> refusalOf(QStringView name) const;
    /// Whether this user may rename what is at the path, in this folder.
    [[nodiscard]] bool mayMove(const QString &file) const;

private:
    struct Row
    {
        QStringView name;
        int row;
    };

    [[nodiscard]] QStringView keyOf(QStringView name) const;
    /// In the place of an entry that the name may have had.
    void put(QStringView name, const Entry &entry);
    [[nodiscard]] bool readNames(int atMost);
    [[nodiscard]] bool placeRows(int atMost);
    void findOutSpelling();
    void foldNames();

    const DiskView &view;
    QString path;
    FolderTraits known;
    std::unique_ptr<FolderReader> reader;
    bool hasNames = false;
    bool isRead = false;
    bool canChangeCase = true;

    NameStore store;
    /// They stay where they are.
    std::deque<Entry> entries;
    /// By their keys, which are in the store.
    QHash<QStringView, Entry *> names;
    /// How many have a name but for the case, where the spelling is unknown.
    QHash<QString, int> alike;
    NameStore namesOfRows;
    QList<Row> rows;
    qsizetype placedRows = 0;
    qsizetype expectedRows = 0;
    mutable QString folded;
};
