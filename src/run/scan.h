// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/listorder.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QStringList>

#include <optional>

/// What a folder contributes to the list: the files in it and below it whose names match. Hidden files,
/// links, and what is no file are passed over; hidden folders and links to folders are not entered.
///
///     Scan scan(folder, {"*.jpg"});
///     while (scan.next() != Scan::Step::End) {
///     }
///     const QStringList paths = scan.takePaths();
class Scan final
{
public:
    enum class Step { Found, Passed, End };

    /// The filters are wildcards; letter case does not count. A name has to match one of them.
    Scan(const QString &folder, const QStringList &nameFilters);

    /// Looks at one entry more, so that whoever asks can do something else in between. Nothing is left at the
    /// End.
    [[nodiscard]] Step next();

    /// How many files were found so far.
    [[nodiscard]] qsizetype count() const { return found; }
    /// How many folders could not be looked into because the system takes no path of that length.
    [[nodiscard]] qsizetype foldersLeftOut() const { return leftOut; }
    /// What was found: each folder's own files first, in natural order, then its subfolders in natural order.
    /// Also when the scan is broken off, which it is by this.
    [[nodiscard]] QStringList takePaths();

private:
    struct Entry
    {
        SortKey key;
        QString path;
        bool operator<(const Entry &other) const;
    };

    void openFolder();
    void closeFolder();
    [[nodiscard]] Step look(const QFileInfo &entry);
    [[nodiscard]] bool matches(const QString &name) const;

    NaturalOrder order;
    QList<QRegularExpression> filters;
    bool takesAnyWithDot = false;
    /// The next one last.
    QStringList foldersToCome;
    std::optional<QDirIterator> entries;
    SortedItems<Entry> filesHere;
    SortedItems<Entry> foldersHere;
    QStringList paths;
    qsizetype found = 0;
    qsizetype leftOut = 0;
};
