// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/scan.h"

#include "platform/pathlength.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

bool Scan::Entry::operator<(const Entry &other) const
{
    const int order = key.compare(other.key);
    return order < 0 || (order == 0 && path < other.path);
}

Scan::Scan(const QString &folder, const QStringList &nameFilters)
    : foldersToCome(folder)
{
    for (const QString &filter : nameFilters) {
        // What holds when nothing was typed need not be slow.
        if (filter == "*.*"_L1)
            takesAnyWithDot = true;
        else
            filters.append(QRegularExpression::fromWildcard(filter, Qt::CaseInsensitive));
    }
}

Scan::Step Scan::next()
{
    if (entries && entries->hasNext()) {
        entries->next();
        return look(entries->fileInfo());
    }
    if (entries)
        closeFolder();
    if (foldersToCome.isEmpty())
        return Step::End;
    openFolder();
    return Step::Passed;
}

QStringList Scan::takePaths()
{
    closeFolder();
    foldersToCome.clear();
    return std::exchange(paths, {});
}

void Scan::openFolder()
{
    const QString folder = foldersToCome.takeLast();
    if (isPathTooLong(folder)) {
        ++leftOut;
        return;
    }
    QDir directory(folder + QDir::separator());
    // An iterator that filters looks for the next match on its own, for as long as that takes.
    directory.setFilter(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    entries.emplace(directory);
}

void Scan::closeFolder()
{
    entries.reset();
    filesHere.take([this](Entry &&file) { paths.append(std::move(file.path)); });
    const qsizetype before = foldersToCome.size();
    foldersHere.take([this](Entry &&folder) { foldersToCome.append(std::move(folder.path)); });
    std::reverse(foldersToCome.begin() + before, foldersToCome.end());
}

Scan::Step Scan::look(const QFileInfo &entry)
{
    if (entry.isSymLink() || entry.isHidden())
        return Step::Passed;
    const QString name = entry.fileName();
    if (entry.isDir()) {
        foldersHere.add({order.key(name), entry.filePath()});
        return Step::Passed;
    }
    if (!entry.isFile() || !matches(name))
        return Step::Passed;
    filesHere.add({order.key(name), entry.filePath()});
    ++found;
    return Step::Found;
}

bool Scan::matches(const QString &name) const
{
    if (takesAnyWithDot && name.contains(u'.'))
        return true;
    return std::any_of(filters.begin(), filters.end(),
                       [&name](const QRegularExpression &filter) { return filter.match(name).hasMatch(); });
}
