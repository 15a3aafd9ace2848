// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorerroad.h"

#include "mainwindow/explorermodel.h"

#include <QDir>
#include <QEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QTreeView>

ExplorerRoad::ExplorerRoad(QTreeView *explorerTree, ExplorerModel *explorerModel, const QString &first)
    : QObject(explorerTree)
    , tree(explorerTree)
    , model(explorerModel)
    , target(QDir::cleanPath(first))
{
    tree->installEventFilter(this);
    connect(model, &ExplorerModel::folderRead, this, &ExplorerRoad::onRead);
    connect(tree, &QTreeView::collapsed, this, &ExplorerRoad::stop);
    connect(tree, &QTreeView::expanded, this, [this] {
        if (!isOpening)
            stop();
    });
    connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &ExplorerRoad::stop);
}

void ExplorerRoad::goTo(const QString &folder)
{
    tree->removeEventFilter(this);
    setOut(folder, Arrival::Selected);
}

bool ExplorerRoad::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        tree->removeEventFilter(this);
        // The window comes first.
        QTimer::singleShot(0, this, [this, first = target] {
            if (target == first)
                setOut(first, Arrival::Quiet);
        });
    }
    return QObject::eventFilter(watched, event);
}

void ExplorerRoad::setOut(const QString &folder, Arrival arrival)
{
    target = QDir::cleanPath(folder);
    onArrival = arrival;
    isOnItsWay = true;
    goOn({});
}

void ExplorerRoad::goOn(QModelIndex from)
{
    for (QModelIndex below = next(from); below.isValid(); below = next(from)) {
        from = below;
        const QScopedValueRollback opening(isOpening, true);
        tree->expand(from);
    }
    stage = from;
    // Opening it has it read; if it was open, it may have changed since.
    model->refresh(from);
}

void ExplorerRoad::onRead(const QModelIndex &folder)
{
    if (!isOnItsWay || folder != stage)
        return;
    if (next(folder).isValid())
        goOn(folder);
    else
        arrive();
}

void ExplorerRoad::arrive()
{
    stop();
    const QModelIndex folder = stage;
    if (!folder.isValid())
        return;
    const auto command =
        onArrival == Arrival::Selected ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
    tree->selectionModel()->setCurrentIndex(folder, command);
    tree->scrollTo(folder, QAbstractItemView::PositionAtTop);
}

void ExplorerRoad::stop()
{
    isOnItsWay = false;
}

/// The folder directly below that the target is in, or is; invalid when there is none.
QModelIndex ExplorerRoad::next(const QModelIndex &from) const
{
    for (int row = 0; row < model->rowCount(from); ++row) {
        const QModelIndex below = model->index(row, 0, from);
        if (!model->hasChildren(below))
            break; // folders come first
        const QString path = model->path(below);
        if (target.startsWith(path) &&
            (target.size() == path.size() || path.endsWith(u'/') || target.at(path.size()) == u'/'))
            return below;
    }
    return {};
}
