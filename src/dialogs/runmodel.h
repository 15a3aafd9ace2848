// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalfolder.h"

#include <QAbstractTableModel>

/// The runs of a data directory, the newest first, without the undos.
class RunModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { WhenColumn, CountColumn, PlaceColumn, StateColumn, Columns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Which of them later runs touched is not known then.
    void setJournals(const QList<JournalInfo> &newestFirst);
    /// See JournalFolder::touchedRuns().
    void setTouched(const QHash<QString, QString> &laterByName);

    [[nodiscard]] const JournalInfo &run(int row) const { return runs.at(row); }
    /// The later run that has to be taken back before; null where there is none, or it is not known.
    [[nodiscard]] const JournalInfo *touchedBy(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    QList<JournalInfo> runs;
    QHash<QString, QString> touched;
};
