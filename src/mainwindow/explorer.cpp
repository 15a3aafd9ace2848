// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorer.h"

#include "mainwindow/explorermodel.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/progressdialog.h"

#include <QApplication>
#include <QTimer>
#include <QTreeView>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto shortestPause = 1s;
// Reading that took t is followed by none for this many times t.
constexpr int pauseFactor = 40;

} // namespace

Explorer::Explorer(QTreeView *explorerTree, ExplorerModel *explorerModel)
    : QObject(explorerTree)
    , tree(explorerTree)
    , model(explorerModel)
    , timer(new QTimer(this))
{
    // A coarse one may fire before its time.
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &Explorer::follow);
    timer->start(shortestPause);
    sinceRefresh.start();
    connect(model, &ExplorerModel::rowsInserted, this, &Explorer::selectRenamed);
    // What was open before shows what it was then.
    connect(tree, &QTreeView::expanded, model, &ExplorerModel::refresh);
}

QList<int> Explorer::selectedRows(const ListWidgetFiles &list) const
{
    QSet<QString> selected;
    const QModelIndexList indexes = tree->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        selected.insert(model->path(index));
    QList<int> rows;
    for (int row = 0; !selected.isEmpty() && row < list.count(); ++row) {
        if (selected.contains(list.path(row)))
            rows.append(row);
    }
    return rows;
}

void Explorer::awaitRenamed(const QStringList &paths)
{
    awaited = QSet<QString>(paths.begin(), paths.end());
    pause = 0;
    timer->start(0s);
}

void Explorer::follow()
{
    pause += pauseFactor * model->takeCost();
    if (isSeen() && !model->isBusy() && sinceRefresh.nsecsElapsed() >= pause) {
        pause = 0;
        sinceRefresh.start();
        renamed = std::exchange(awaited, {});
        refresh({});
    }
    timer->start(shortestPause);
}

bool Explorer::isSeen() const
{
    return tree->isVisible() && !tree->window()->isMinimized() &&
           !qobject_cast<ProgressDialog *>(QApplication::activeModalWidget());
}

/// The folder and all that is open below it.
void Explorer::refresh(const QModelIndex &folder)
{
    model->refresh(folder);
    for (int row = 0; row < model->rowCount(folder); ++row) {
        const QModelIndex child = model->index(row, 0, folder);
        if (!model->hasChildren(child))
            break; // folders come first
        if (tree->isExpanded(child))
            refresh(child);
    }
}

void Explorer::selectRenamed(const QModelIndex &folder, int first, int last) const
{
    if (renamed.isEmpty())
        return;
    const auto at = [&](int row) {
        return model->index(row, 0, folder);
    };
    QItemSelection selection;
    for (int row = first, begin = first; row <= last; ++row) {
        if (!renamed.contains(model->path(at(row))))
            begin = row + 1;
        else if (row == last || !renamed.contains(model->path(at(row + 1))))
            selection.select(at(begin), at(row));
    }
    tree->selectionModel()->select(selection, QItemSelectionModel::Select);
}

SelectionKept::SelectionKept(Explorer &explorerToFollow, const ListWidgetFiles &filesOfTheRun)
    : explorer(explorerToFollow)
    , files(filesOfTheRun)
    , rows(explorer.selectedRows(files))
{
}

SelectionKept::~SelectionKept()
{
    QStringList paths;
    for (const int row : std::as_const(rows))
        paths.append(files.path(row));
    explorer.awaitRenamed(paths);
}
