// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/listorder.h"

#include <QDateTime>

#include <vector>

/// A file or folder of the explorer.
struct ExplorerEntry
{
    QString name;
    SortKey key;
    bool isFolder = false;

    friend bool operator==(const ExplorerEntry &left, const ExplorerEntry &right)
    {
        return left.isFolder == right.isFolder && left.name == right.name;
    }
    /// Folders come first.
    friend bool operator<(const ExplorerEntry &left, const ExplorerEntry &right)
    {
        if (left.isFolder != right.isFolder)
            return left.isFolder;
        const int order = left.key.compare(right.key);
        return order < 0 || (order == 0 && left.name < right.name);
    }
};

/// What stood in a folder when it was read.
struct ExplorerListing
{
    /// False: nothing can have changed since the stamp, and nothing was read.
    bool isNew = false;
    std::vector<ExplorerEntry> entries;
    /// The time of the folder's last change; invalid where that time does not tell whether it changed again.
    QDateTime stamp;
    /// What reading took, in nanoseconds.
    qint64 cost = 0;
};

/// Reads what is visible in a folder, unless it is as it was at that stamp. The empty path stands for the
/// machine: its entries are the roots of the file system, such as "/" or "C:/". May be called by any thread.
[[nodiscard]] ExplorerListing readForExplorer(const QString &folder, const QDateTime &stamp = {});
