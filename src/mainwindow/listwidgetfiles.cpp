// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/listwidgetfiles.h"

#include "mainwindow/fileitemdelegate.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QScopedValueRollback>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

// A layout that took t is followed by none for this many times t, and never by one within the shortest pause:
// after each the rows are painted, too.
constexpr int layoutPause = 20;
constexpr qint64 shortestPause = 40'000'000; // nanoseconds

} // namespace

ListWidgetFiles::ListWidgetFiles(QWidget *parent)
    : QListWidget(parent)
    , delegate(new FileItemDelegate(this))
{
    setItemDelegate(delegate);
    setUniformItemSizes(true);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setAlternatingRowColors(true);
    setAutoFillBackground(true);

    layoutTimer.setSingleShot(true);
    connect(&layoutTimer, &QTimer::timeout, this, &ListWidgetFiles::showAddedRows);
}

bool ListWidgetFiles::containsPath(const QString &path) const
{
    if (!knownPaths) {
        knownPaths.emplace();
        knownPaths->reserve(count());
        for (int row = 0; row < count(); ++row)
            knownPaths->insert(this->path(row));
    }
    return knownPaths->contains(path);
}

QString ListWidgetFiles::path(int row) const
{
    return item(row)->data(Qt::UserRole).toString();
}

void ListWidgetFiles::removeSelected()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    QList<bool> doomed(count(), false);
    for (const QModelIndex &index : selected)
        doomed[index.row()] = true;
    QList<std::pair<QString, QString>> kept;
    for (int row = 0; row < count(); ++row) {
        if (!doomed.at(row))
            kept.append({path(row), item(row)->text()});
    }
    // Each row taken out of the middle would move all rows behind it, and the base class would search for
    // each of those again when it is changed next.
    clear();
    for (const auto &[path, text] : std::as_const(kept))
        appendRow(path, text);
    showAddedRows();
}

void ListWidgetFiles::appendRow(const QString &path, const QString &text)
{
    delegate->includeWidth(text);
    auto *item = new QListWidgetItem(text);
    item->setData(Qt::UserRole, path);
    addItem(item);
}

void ListWidgetFiles::showAddedRows()
{
    layoutTimer.stop();
    if (firstAddedRow < 0)
        return;
    const int first = std::exchange(firstAddedRow, -1);
    QListWidget::rowsInserted({}, first, lastAddedRow);
}

void ListWidgetFiles::layoutLater()
{
    delegate->forgetWidths();
    layoutRequested = true;
    scheduleDelayedItemsLayout();
}

bool ListWidgetFiles::isHandlingDrop() const
{
    return handlesDrop;
}

void ListWidgetFiles::setRowText(int row, const QString &text)
{
    delegate->includeWidth(text);
    QSignalBlocker quiet(model());
    if (!layoutRequested)
        quiet.unblock();
    item(row)->setText(text);
}

void ListWidgetFiles::setPath(int row, const QString &path)
{
    const QSignalBlocker quiet(model());
    item(row)->setData(Qt::UserRole, path);
    knownPaths.reset();
}

void ListWidgetFiles::doItemsLayout()
{
    layoutRequested = false;
    sinceLayout.start();
    QListWidget::doItemsLayout();
    layoutCost = sinceLayout.nsecsElapsed();
    sinceLayout.start();
}

void ListWidgetFiles::reset()
{
    firstAddedRow = -1;
    layoutTimer.stop();
    delegate->forgetWidths();
    QListWidget::reset();
    knownPaths.reset();
}

void ListWidgetFiles::onClear()
{
    clear();
}

void ListWidgetFiles::dragEnterEvent(QDragEnterEvent *event)
{
    if (!event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    setFocus();
    event->acceptProposedAction();
}

// Deliberate: the base class's handling of these two never runs; it would refuse what is not a row of a list.
void ListWidgetFiles::dragMoveEvent(QDragMoveEvent * /*event*/) {}

void ListWidgetFiles::dragLeaveEvent(QDragLeaveEvent * /*event*/) {}

void ListWidgetFiles::dropEvent(QDropEvent *event)
{
    const QScopedValueRollback handling(handlesDrop, true);
    emit contentChanged(event->mimeData());
    event->acceptProposedAction();
}

void ListWidgetFiles::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                  const QList<int> &roles)
{
    if (roles.isEmpty() || roles.contains(Qt::UserRole))
        knownPaths.reset();
    // The base class asks for a layout and paints the row. A path alone changes nothing that is shown, and
    // rows that wait for a layout get one anyway.
    const bool waiting = layoutRequested || (firstAddedRow >= 0 && topLeft.row() >= firstAddedRow);
    if (!waiting && roles != QList<int>{Qt::UserRole})
        QListWidget::dataChanged(topLeft, bottomRight, roles);
}

void ListWidgetFiles::rowsInserted(const QModelIndex &parent, int first, int last)
{
    for (int row = first; knownPaths && row <= last; ++row)
        knownPaths->insert(path(row));
    // The base class throws its layout away for every new row. Rows at the end wait until a layout is due;
    // what is shown meanwhile is the last layout.
    const bool follows = firstAddedRow < 0 ? last == count() - 1 : first == lastAddedRow + 1;
    if (!follows) {
        showAddedRows();
        QListWidget::rowsInserted(parent, first, last);
        return;
    }
    if (firstAddedRow < 0)
        firstAddedRow = first;
    lastAddedRow = last;
    const qint64 pause = std::max(shortestPause, layoutPause * layoutCost);
    if (!sinceLayout.isValid() || sinceLayout.nsecsElapsed() >= pause)
        showAddedRows();
    else if (!layoutTimer.isActive())
        layoutTimer.start(std::chrono::ceil<std::chrono::milliseconds>(std::chrono::nanoseconds(pause)));
}

void ListWidgetFiles::rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    showAddedRows();
    knownPaths.reset();
    QListWidget::rowsAboutToBeRemoved(parent, first, last);
}
