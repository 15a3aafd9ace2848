// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorerlisting.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace {

// The coarsest clock of a file system ticks every two seconds: a second change may have the first one's time.
constexpr qint64 coarsestTick = 2500; // milliseconds

std::vector<ExplorerEntry> entriesOf(const QString &folder)
{
    const NaturalOrder order;
    SortedItems<ExplorerEntry> entries;
    const auto add = [&](const QString &name, bool isFolder) {
        entries.add({name, order.key(name), isFolder});
    };
    if (folder.isEmpty()) {
        const QFileInfoList roots = QDir::drives();
        for (const QFileInfo &root : roots)
            add(root.filePath(), true);
    } else {
        QDirIterator found(folder, QDir::AllEntries | QDir::NoDotAndDotDot);
        while (found.hasNext()) {
            found.next();
            add(found.fileName(), found.fileInfo().isDir());
        }
    }
    std::vector<ExplorerEntry> sorted;
    entries.take([&sorted](ExplorerEntry &&entry) {
        // A name that changes while the folder is read can be met twice.
        if (sorted.empty() || !(sorted.back() == entry))
            sorted.push_back(std::move(entry));
    });
    return sorted;
}

/// The stamp of a folder that was last changed at this time and is read now.
QDateTime stampFor(const QString &folder, const QDateTime &changed)
{
    const bool settled = changed.isValid() && changed.msecsTo(QDateTime::currentDateTimeUtc()) > coarsestTick;
    // FAT keeps no such time.
    if (!settled || QStorageInfo(folder).fileSystemType().toUpper().contains("FAT"))
        return {};
    return changed;
}

} // namespace

ExplorerListing readForExplorer(const QString &folder, const QDateTime &stamp)
{
    QElapsedTimer timer;
    timer.start();
    ExplorerListing listing;
    const QDateTime changed = folder.isEmpty() ? QDateTime() : QFileInfo(folder).lastModified();
    listing.isNew = !stamp.isValid() || changed != stamp;
    if (listing.isNew) {
        // Before the entries are read: what changes meanwhile must not count as seen.
        listing.stamp = stampFor(folder, changed);
        listing.entries = entriesOf(folder);
    }
    listing.cost = timer.nsecsElapsed();
    return listing;
}
