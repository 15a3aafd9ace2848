// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/failures.h"

#include <QAbstractItemModel>

#include <vector>

/// The rows that a run did not rename, by the reason. Texts are made when they are asked for: there may be a
/// million rows.
class FailureModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, NewNameColumn, FolderColumn, Columns };

    FailureModel(const Failures &failuresToShow, QObject *parent);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

    /// Rows as lines, their columns parted by tabs; of a group its heading alone.
    [[nodiscard]] QString asText(QModelIndexList rows) const;
    [[nodiscard]] QString allAsText() const;

private:
    struct Group
    {
        Fate reason;
        std::vector<qsizetype> members;
    };

    [[nodiscard]] QString cell(const Failure &failure, int column) const;
    [[nodiscard]] QString line(const QModelIndex &row) const;

    const Failures &failures;
    std::vector<Group> groups;
};
