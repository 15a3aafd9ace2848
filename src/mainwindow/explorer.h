// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QStringList>

class ExplorerModel;
class ListWidgetFiles;
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

    /// The rows of the list whose files are selected in the explorer.
    [[nodiscard]] QList<int> selectedRows(const ListWidgetFiles &list) const;
    /// Reads the open folders again as soon as it may, and selects what it then finds of these paths.
    void awaitRenamed(const QStringList &paths);

private:
    void follow();
    [[nodiscard]] bool isSeen() const;
    void refresh(const QModelIndex &folder);
    void selectRenamed(const QModelIndex &folder, int first, int last) const;

    QTreeView *tree;
    ExplorerModel *model;
    QTimer *timer;
    QElapsedTimer sinceRefresh;
    /// To be selected by the next reading, and by the one in hand.
    QSet<QString> awaited;
    QSet<QString> renamed;
    /// How long the folders are to be left alone, in nanoseconds.
    qint64 pause = 0;
};

/// Held during a run: the files that are selected in the explorer before it are selected after it, by their
/// new names.
class SelectionKept final
{
public:
    SelectionKept(Explorer &explorerToFollow, const ListWidgetFiles &filesOfTheRun);
    ~SelectionKept();
    Q_DISABLE_COPY_MOVE(SelectionKept)

private:
    Explorer &explorer;
    const ListWidgetFiles &files;
    QList<int> rows;
};
