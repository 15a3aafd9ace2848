// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/ruletreedrag.h"

#include "mainwindow/activerules.h"
#include "naming/rulesetfolder.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>

namespace {

QStringList ruleSetsIn(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (path.endsWith(ruleSetSuffix, Qt::CaseInsensitive))
            paths.append(path);
    }
    return paths;
}

} // namespace

RuleTreeDrag::RuleTreeDrag(ActiveRules &ofRules, QTreeWidget *ofTree)
    : QObject(ofTree)
    , rules(ofRules)
    , tree(ofTree)
{
    tree->setDragDropMode(QAbstractItemView::InternalMove);
    tree->viewport()->installEventFilter(this);
}

bool RuleTreeDrag::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        return dragFiles(static_cast<QDropEvent *>(event));
    case QEvent::Drop: {
        auto *drop = static_cast<QDropEvent *>(event);
        if (drop->source() != tree) {
            const QStringList paths = ruleSetsIn(drop->mimeData());
            if (dragFiles(drop) && !paths.isEmpty())
                // The drag ends before anybody is asked anything.
                QTimer::singleShot(0, this, [this, paths] { emit ruleSetsDropped(paths); });
            return true;
        }
        dropRule(drop->position().toPoint());
        // The drop line goes.
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(tree->viewport(), &leave);
        // The tree would move the row itself, or remove it when the drag ends.
        drop->setDropAction(Qt::IgnoreAction);
        drop->accept();
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

/// True where it is no rule of the list that is dragged.
bool RuleTreeDrag::dragFiles(QDropEvent *event)
{
    if (event->source() == tree)
        return false;
    const bool isCopy = event->possibleActions().testFlag(Qt::CopyAction);
    if (isCopy && !ruleSetsIn(event->mimeData()).isEmpty()) {
        // Never moved: the file is somebody's.
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore();
    }
    return true;
}

void RuleTreeDrag::dropRule(QPoint place)
{
    const int from = tree->currentIndex().row();
    int to = rowBelow(place);
    if (to > from)
        --to;
    if (from < 0 || to == from)
        return;
    rules.move(from, to);
    tree->setCurrentItem(tree->topLevelItem(to), 0);
}

/// Before which row the drop line stands; the number of rows at the end.
int RuleTreeDrag::rowBelow(QPoint place) const
{
    const QModelIndex index = tree->indexAt(place);
    if (!index.isValid())
        return rules.count();
    return place.y() < tree->visualRect(index).center().y() ? index.row() : index.row() + 1;
}
