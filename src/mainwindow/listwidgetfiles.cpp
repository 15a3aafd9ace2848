// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/listwidgetfiles.h"

#include "mainwindow/fileitem.h"
#include "mainwindow/fileitemdelegate.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QScopedValueRollback>

#include <algorithm>
#include <chrono>
#include <typeinfo>

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
    const FileItem *file = fileItem(row);
    return file ? file->path() : item(row)->data(Qt::UserRole).toString();
}

void ListWidgetFiles::removeSelected()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    QList<bool> doomed(count(), false);
    for (const QModelIndex &index : selected)
        doomed[index.row()] = true;
    QList<QListWidgetItem *> kept;
    for (int row = 0; row < count(); ++row) {
        if (!doomed.at(row))
            kept.append(item(row)->clone());
    }
    // Each row taken out of the middle would move all rows behind it, and the base class would search for
    // each of those again when it is changed next.
    const int width = delegate->widestText();
    clear();
    delegate->includeWidth(width);
    for (QListWidgetItem *item : std::as_const(kept))
        addItem(item);
    showAddedRows();
}

void ListWidgetFiles::appendRow(const QString &path, const QString &text)
{
    includeWidth(text);
    addItem(new FileItem(path, {FilePath::of(path), text, false}, ++numberOfLast));
}

void ListWidgetFiles::showAddedRows()
{
    layoutTimer.stop();
    if (firstAddedRow < 0)
        return;
    const int first = std::exchange(firstAddedRow, -1);
    QListWidget::rowsInserted({}, first, lastAddedRow);
}

FileItem *ListWidgetFiles::fileItem(int row) const
{
    QListWidgetItem *found = item(row);
    return found && typeid(*found) == typeid(FileItem) ? static_cast<FileItem *>(found) : nullptr;
}

void ListWidgetFiles::forgetTexts()
{
    delegate->forgetWidths();
    forgetFates();
}

void ListWidgetFiles::awaitText(int row, const std::shared_ptr<const RowNames> &names)
{
    if (FileItem *file = fileItem(row))
        file->awaitText(names, row);
    else
        item(row)->setText(names->textOf(path(row), row).text);
}

void ListWidgetFiles::showTexts(bool areAllKnown)
{
    if (count() > 0 && firstAddedRow < 0) {
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        const QSize size = delegate->sizeHint(option, model()->index(count() - 1, 0));
        const int shown = std::max(rowWidth, contentsSize().width());
        if (size.height() * count() != contentsSize().height()) {
            scheduleDelayedItemsLayout();
        } else if (areAllKnown ? size.width() != shown : size.width() > shown) {
            rowWidth = size.width();
            resizeContents(rowWidth, contentsSize().height());
            updateGeometries();
        }
    }
    viewport()->update();
}

void ListWidgetFiles::includeWidth(const QString &text)
{
    delegate->includeWidth(text);
}

void ListWidgetFiles::forgetFates()
{
    ++age;
}

QRect ListWidgetFiles::visualRect(const QModelIndex &index) const
{
    QRect rect = QListWidget::visualRect(index);
    if (rect.isValid() && rowWidth > 0)
        rect.setWidth(std::max(rowWidth, viewport()->width()));
    return rect;
}

void ListWidgetFiles::handOver(const QMimeData *files)
{
    const QScopedValueRollback handling(handlesDrop, true);
    emit contentChanged(files);
}

bool ListWidgetFiles::isHandlingDrop() const
{
    return handlesDrop;
}

void ListWidgetFiles::setRowText(int row, const RowText &text)
{
    if (FileItem *file = fileItem(row)) {
        file->setRowText(text);
        const QModelIndex index = model()->index(row, 0);
        emit model()->dataChanged(index, index, {Qt::DisplayRole});
    } else {
        item(row)->setText(text.text);
    }
}

void ListWidgetFiles::setPath(int row, const QString &path)
{
    const QSignalBlocker quiet(model());
    if (FileItem *file = fileItem(row))
        file->setPath(path);
    else
        item(row)->setData(Qt::UserRole, path);
    knownPaths.reset();
}

void ListWidgetFiles::doItemsLayout()
{
    rowWidth = 0;
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
    handOver(event->mimeData());
    event->acceptProposedAction();
}

void ListWidgetFiles::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                  const QList<int> &roles)
{
    if (roles.isEmpty() || roles.contains(Qt::UserRole))
        knownPaths.reset();
    // The base class asks for a layout and paints the row. A path alone changes nothing that is shown, and
    // rows that wait for a layout get one anyway.
    const bool waiting = firstAddedRow >= 0 && topLeft.row() >= firstAddedRow;
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
