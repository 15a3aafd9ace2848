// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

/// The numbers of a folder's files, read from its listing: a fraction of what asking for each file costs. The
/// listing is read piece by piece, so that a folder of a million files holds nobody up who wants two of them.
class FolderNumbers final
{
public:
    explicit FolderNumbers(const QString &folder);
    ~FolderNumbers();
    Q_DISABLE_COPY_MOVE(FolderNumbers)

    /// Reads the next piece, one system call; false at the end.
    bool readOn();
    /// The entries read so far.
    [[nodiscard]] qsizetype entriesRead() const { return entries; }
    /// A file's number as it was when its entry was read, or 0. Given once: who asks is going to rename the
    /// file, and whatever has the name afterwards is another.
    [[nodiscard]] quint64 take(QStringView name);

private:
    /// A number by the hash of its name: a tenth of the memory that names would take. 0 for one that was
    /// given, or where nothing is.
    struct Slot
    {
        size_t hash = 0;
        quint64 number = 0;
    };

    /// Of a name as listings have it.
    [[nodiscard]] static size_t hashOf(QStringView name);
    void insert(size_t hash, quint64 number);
    [[nodiscard]] Slot &slotOf(size_t hash);
    void grow();

    /// A table with open addressing, half of it empty: one look into memory for each file, where QHash takes
    /// three.
    std::vector<Slot> table;
    qsizetype entries = 0;
    /// The system's open folder.
    qintptr handle = -1;
};
