// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorer.h"

#include "mainwindow/explorermodel.h"
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
    // What was open before shows what it was then.
    connect(tree, &QTreeView::expanded, model, &ExplorerModel::refresh);
}

void Explorer::follow()
{
    pause += pauseFactor * model->takeCost();
    if (isSeen() && !model->isBusy() && sinceRefresh.nsecsElapsed() >= pause) {
        pause = 0;
        sinceRefresh.start();
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
