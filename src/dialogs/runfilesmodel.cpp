// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/runfilesmodel.h"

#include "dialogs/runtexts.h"
#include "platform/sharedfile.h"

#include <QDir>

namespace {

/// So many are read at a time, some milliseconds' worth.
constexpr std::size_t rowsAtATime = 1000;

} // namespace

RunFilesModel::RunFilesModel(const QString &journal, const QDateTime &runBegan, QObject *parent)
    : QAbstractTableModel(parent)
    , file(journal)
    , began(runBegan)
{
    if (openShared(file, QIODevice::ReadOnly))
        entries.emplace(file);
    fetchMore({});
}

int RunFilesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int RunFilesModel::columnCount(const QModelIndex & /*parent*/) const
{
    return Columns;
}

bool RunFilesModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && entries.has_value();
}

void RunFilesModel::fetchMore(const QModelIndex & /*parent*/)
{
    std::vector<Row> more;
    while (entries && more.size() < rowsAtATime) {
        auto entry = entries->next();
        if (!entry) {
            entries.reset();
            break;
        }
        auto other = entry->other ? std::optional(otherOf(*entry)) : std::nullopt;
        more.push_back({std::move(*entry), {}});
        if (other)
            more.push_back({std::move(*other), {}});
    }
    if (more.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(more.size()) - 1);
    rows.insert(rows.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    endInsertRows();
}

QVariant RunFilesModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    const Row &row = rows.at(static_cast<std::size_t>(index.row()));
    switch (index.column()) {
    case OldNameColumn:
        return row.entry.from;
    case NewNameColumn:
        return row.entry.to;
    case NowColumn:
        if (row.now.isNull())
            row.now = nowText(row.entry);
        return row.now;
    default:
        return QDir::toNativeSeparators(row.entry.folder.isEmpty() ? QDir::rootPath() : row.entry.folder);
    }
}

QString RunFilesModel::nowText(const JournalEntry &entry) const
{
    const QString newPath = entry.folder + u'/' + entry.to;
    if (stamps.isAt(newPath, entry.file, began))
        return thereNowText(FileNow::HasNewName);
    if (stamps.isAt(entry.folder + u'/' + entry.from, entry.file, began))
        return thereNowText(FileNow::HasOldName);
    return thereNowText(disk.identity(newPath) ? FileNow::OtherFile : FileNow::Missing);
}

QVariant RunFilesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return runFileHeadings().value(section);
}
