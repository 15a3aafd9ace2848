// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/failuremodel.h"

#include "mainwindow/fatetexts.h"

#include <QDir>

#include <algorithm>

FailureModel::FailureModel(const Failures &failuresToShow, QObject *parent)
    : QAbstractItemModel(parent)
    , failures(failuresToShow)
{
    for (qsizetype i = 0; i < failures.size(); ++i) {
        const Fate reason = failures.at(i).outcome.reason;
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [reason](const Group &known) { return known.reason == reason; });
        if (group == groups.end())
            group = groups.insert(groups.end(), {reason, {}});
        group->members.push_back(i);
    }
    // What went wrong first, what nobody wanted changed last.
    std::stable_partition(groups.begin(), groups.end(),
                          [](const Group &group) { return group.reason != Fate::Unchanged; });
}

/// The id is that of the row's group, from 1; that of a group is 0.
QModelIndex FailureModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, static_cast<quintptr>(parent.isValid() ? parent.row() + 1 : 0));
}

QModelIndex FailureModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == 0)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr{0});
}

int FailureModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(groups.size());
    if (parent.internalId() > 0 || parent.column() > 0)
        return 0;
    return static_cast<int>(groups.at(static_cast<std::size_t>(parent.row())).members.size());
}

int FailureModel::columnCount(const QModelIndex & /*parent*/) const
{
    return Columns;
}

QVariant FailureModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    const bool isGroup = index.internalId() == 0;
    const Group &group = groups.at(static_cast<std::size_t>(isGroup ? index.row() : index.parent().row()));
    if (!isGroup)
        return cell(failures.at(group.members.at(static_cast<std::size_t>(index.row()))), index.column());
    if (index.column() > 0)
        return {};
    return groupText(group.reason, static_cast<int>(group.members.size()));
}

QVariant FailureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return detailsHeadings().value(section);
}

QString FailureModel::asText(QModelIndexList rows) const
{
    const auto place = [](const QModelIndex &row) {
        return row.internalId() == 0 ? std::pair(row.row(), -1) : std::pair(row.parent().row(), row.row());
    };
    std::sort(rows.begin(), rows.end(), [&place](const QModelIndex &left, const QModelIndex &right) {
        return place(left) < place(right);
    });
    QString text;
    for (const QModelIndex &row : std::as_const(rows))
        text += line(row);
    return text;
}

QString FailureModel::allAsText() const
{
    QString text;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex group = index(row, 0);
        text += line(group);
        for (int member = 0; member < rowCount(group); ++member)
            text += line(index(member, 0, group));
    }
    return text;
}

QString FailureModel::cell(const Failure &failure, int column) const
{
    if (column == NameColumn)
        return failure.file.name();
    if (column == NewNameColumn)
        return failure.outcome.path.sliced(failure.file.nameAt);
    return QDir::toNativeSeparators(failure.file.folder().toString());
}

QString FailureModel::line(const QModelIndex &row) const
{
    QStringList cells;
    for (int column = 0; column < (row.internalId() > 0 ? Columns : 1); ++column) {
        // A name may hold tabs and line breaks.
        cells.append(row.siblingAtColumn(column).data().toString().replace(u'\t', u' ').replace(u'\n', u' '));
    }
    return cells.join(u'\t') + u'\n';
}
