// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

#include <atomic>

/// An order that a person asks for.
struct FileOrder
{
    enum class By { Name, Path, Extension, Size, Modified, Adding };

    By by = By::Name;
    Qt::SortOrder direction = Qt::AscendingOrder;
};

/// Files as a list has them.
struct FilesToSort
{
    QStringList paths;
    /// Growing with the files as they were added.
    QList<quint32> numbers;
};

/// The files in that order: at each place the index of the file that comes there. Names, folders and
/// extensions stand in natural order, a folder's own files before those below it, files without an extension
/// before the others. Equal ones keep their places, in both directions. Files that are not there have no size
/// and no time: they come last, in both directions.
/// Meant for a thread of its own; empty when it is cancelled meanwhile.
[[nodiscard]] QList<int> sortedFiles(const FilesToSort &files, FileOrder order,
                                     const std::atomic<bool> &isCancelled);
