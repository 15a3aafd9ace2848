// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/filestamps.h"
#include "run/journalreader.h"
#include "run/systemdisk.h"

#include <QAbstractTableModel>
#include <QFile>

#include <optional>
#include <vector>

/// The files of a run, the one that was renamed last first. There may be a million: they are read as far as
/// somebody looks, and what is there now is asked for those that are seen.
class RunFilesModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { OldNameColumn, NewNameColumn, NowColumn, FolderColumn, Columns };

    /// A file that was born after the run began is none of it.
    RunFilesModel(const QString &journal, const QDateTime &runBegan, QObject *parent);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    struct Row
    {
        JournalEntry entry;
        /// Null until somebody asks.
        mutable QString now;
    };

    [[nodiscard]] QString nowText(const JournalEntry &entry) const;

    QFile file;
    std::optional<BackwardEntries> entries;
    QDateTime began;
    std::vector<Row> rows;
    SystemDisk disk;
    mutable FileStamps stamps{disk};
};
