// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>
#include <QTreeView>

/// The row of this name directly below a folder of the explorer; invalid when there is none.
inline QModelIndex explorerRow(const QAbstractItemModel *model, const QModelIndex &folder,
                               const QString &name)
{
    for (int row = 0; row < model->rowCount(folder); ++row) {
        if (model->index(row, 0, folder).data() == name)
            return model->index(row, 0, folder);
    }
    return {};
}

/// The names directly below a folder of the explorer, in their order.
inline QStringList explorerNames(const QAbstractItemModel *model, const QModelIndex &folder)
{
    QStringList names;
    for (int row = 0; row < model->rowCount(folder); ++row)
        names.append(model->index(row, 0, folder).data().toString());
    return names;
}

/// Opens a folder and all above it in the explorer, as a user does. Persistent: in the folders above, other
/// programs work.
inline QPersistentModelIndex openInExplorer(QTreeView *explorer, const QString &path)
{
    QStringList way = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (path.startsWith(QLatin1Char('/')))
        way.prepend(QStringLiteral("/"));
    QPersistentModelIndex folder;
    for (const QString &name : std::as_const(way)) {
        const auto row = [&] {
            return explorerRow(explorer->model(), folder, name);
        };
        if (!QTest::qWaitFor([&] { return row().isValid(); }, 30000))
            qFatal("%s is not in the explorer", qPrintable(name));
        folder = row();
        explorer->expand(folder);
    }
    return folder;
}
