// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filepath.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// The files of a run, each once, in little more memory than their bytes take: a million of them are to fit.
class PathList final
{
public:
    /// Relative paths are those of the folder, which is absolute.
    explicit PathList(const QString &currentFolder);

    /// So many paths come: the table need not grow step by step.
    void expect(qsizetype more);
    /// In UTF-8, or in bytes that are no text. False where the file is listed already.
    bool add(const QByteArray &path);
    [[nodiscard]] int count() const { return static_cast<int>(begins.size()) - 1; }

    [[nodiscard]] QByteArray bytes(int row) const { return at(row).toByteArray(); }
    /// As it was given: textOfBytes() of its bytes.
    [[nodiscard]] QString given(int row) const;
    /// The file itself; costs least for one of a folder after the other.
    [[nodiscard]] FilePath file(int row) const;

    /// Puts the rows into the order of these numbers.
    void reorder(std::vector<int> rows);

private:
    [[nodiscard]] QByteArrayView at(int row) const { return pathAt(order.empty() ? row : order.at(row)); }
    [[nodiscard]] QByteArrayView pathAt(int number) const;
    /// What two spellings of one path have in common: with and without the folder, or "./", before them.
    [[nodiscard]] QByteArrayView keyOf(QByteArrayView path) const;
    /// Where the path is in the table, or would be.
    [[nodiscard]] size_t placeOf(QByteArrayView path) const;
    /// To a power of two.
    void growTable(size_t size);

    QString folder;
    QByteArray folderBytes;
    mutable FilePaths filePaths;

    /// All paths, one behind the other; where each begins, and where the last one ends.
    QByteArray text;
    std::vector<qsizetype> begins{0};
    /// Empty as long as they stand as they came.
    std::vector<int> order;
    /// A hash table of their numbers; below 0 where there is none.
    std::vector<int> table;
};
