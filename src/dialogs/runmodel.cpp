// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/runmodel.h"

#include "dialogs/runtexts.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

void RunModel::setJournals(const QList<JournalInfo> &newestFirst)
{
    beginResetModel();
    touched.clear();
    runs.clear();
    std::copy_if(newestFirst.begin(), newestFirst.end(), std::back_inserter(runs),
                 [](const JournalInfo &journal) { return journal.isRun(); });
    endResetModel();
}

void RunModel::setTouched(const QHash<QString, QString> &laterByName)
{
    touched = laterByName;
    if (!runs.isEmpty())
        emit dataChanged(index(0, StateColumn), index(rowCount() - 1, StateColumn));
}

const JournalInfo *RunModel::touchedBy(int row) const
{
    const QString later = touched.value(run(row).name);
    const auto found = std::find_if(runs.begin(), runs.end(),
                                    [&later](const JournalInfo &journal) { return journal.name == later; });
    return found == runs.end() ? nullptr : &*found;
}

int RunModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(runs.size());
}

int RunModel::columnCount(const QModelIndex & /*parent*/) const
{
    return Columns;
}

QVariant RunModel::data(const QModelIndex &index, int role) const
{
    const JournalInfo &journal = run(index.row());
    if (role == Qt::ToolTipRole && index.column() == PlaceColumn && journal.folders == 1)
        return QDir::toNativeSeparators(journal.folder);
    if (role == Qt::TextAlignmentRole && index.column() == CountColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case WhenColumn:
        return journal.time.isValid() ? timeText(journal.time) : journal.name;
    case CountColumn:
        return QLocale::system().toString(journal.renamed);
    case PlaceColumn:
        return journal.folders > 0 ? placeText(journal) : QString();
    default:
        return stateText(journal, touchedBy(index.row()));
    }
}

QVariant RunModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return runHeadings().value(section);
}
