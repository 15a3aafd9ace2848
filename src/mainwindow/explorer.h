// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>

class ExplorerModel;
class QModelIndex;
class QTimer;
class QTreeView;

/// Keeps the explorer's open folders true while someone can see them: they are read again once a second at
/// most, and so seldom that it takes no more than a fortieth of the time. Nothing watches them: a rename
/// would be reported twice for each file. While a wait dialog is shown it rests, and costs that work nothing.
class Explorer final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the tree, whose model is set.
    Explorer(QTreeView *explorerTree, ExplorerModel *explorerModel);

private:
    void follow();
    [[nodiscard]] bool isSeen() const;
    void refresh(const QModelIndex &folder);

    QTreeView *tree;
    ExplorerModel *model;
    QTimer *timer;
    QElapsedTimer sinceRefresh;
    /// How long the folders are to be left alone, in nanoseconds.
    qint64 pause = 0;
};
