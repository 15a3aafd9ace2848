// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/filesorter.h"

#include "mainwindow/aside.h"
#include "mainwindow/fileitem.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/opendialogs.h"
#include "mainwindow/progressdialog.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <chrono>
#include <numeric>
#include <optional>

using namespace std::chrono_literals;

namespace {

constexpr auto lateDialogDelay = 250ms;
constexpr qint64 orderSlice = 8'000'000; // nanoseconds

/// The wait dialog of what mostly takes no time: it comes when that lasts. Until then clicks and keys wait.
class LateDialog final
{
public:
    explicit LateDialog(QWidget *ofWindow)
        : window(ofWindow)
    {
        timer.setSingleShot(true);
        timer.callOnTimeout([this] { show(); });
        timer.start(lateDialogDelay);
    }

    void processEvents(QEventLoop::ProcessEventsFlags flags = {}) const
    {
        QCoreApplication::processEvents(dialog ? flags : flags | QEventLoop::ExcludeUserInputEvents);
    }
    [[nodiscard]] bool isCancelled() const { return dialog && dialog->isHidden(); }

private:
    void show()
    {
        dialog.emplace(window);
        dialog->setWindowTitle(MainWindow::tr("Please wait"));
        dialog->stackedWidget->setCurrentIndex(ProgressDialog::TextPage);
        dialog->labelText->setText(MainWindow::tr("Sort the files"));
        dialog->show();
    }

    QWidget *window;
    std::optional<ProgressDialog> dialog;
    QTimer timer;
};

/// Has nothing painted as long as it lives, and then all of it.
class UpdatesHeld final
{
public:
    explicit UpdatesHeld(QWidget &ofWidget)
        : widget(ofWidget)
    {
        widget.setUpdatesEnabled(false);
    }
    ~UpdatesHeld() { widget.setUpdatesEnabled(true); }
    Q_DISABLE_COPY_MOVE(UpdatesHeld)

private:
    QWidget &widget;
};

/// In slices; empty when rows went meanwhile.
FilesToSort filesAt(const QList<int> &rows, const ListWidgetFiles &list, const LateDialog &dialog)
{
    FilesToSort files;
    files.paths.reserve(rows.size());
    files.numbers.reserve(rows.size());
    QElapsedTimer clock;
    clock.start();
    for (const int row : rows) {
        const FileItem *file = list.fileItem(row);
        if (!file)
            return {};
        files.paths.append(file->path());
        files.numbers.append(file->number());
        if (files.numbers.size() % 1024 == 0 && clock.nsecsElapsed() > orderSlice) {
            dialog.processEvents();
            clock.start();
        }
    }
    return files;
}

/// Empty when it was cancelled.
QList<int> sortedAside(FilesToSort files, FileOrder order, const LateDialog &dialog)
{
    QList<int> sorted;
    std::atomic<bool> isCancelled = false;
    const Aside aside([&] {
        // Letting go of so many paths takes its time, too.
        const FilesToSort own = std::move(files);
        sorted = sortedFiles(own, order, isCancelled);
    });
    while (!aside.isDone()) {
        dialog.processEvents(QEventLoop::WaitForMoreEvents);
        isCancelled = dialog.isCancelled();
    }
    return isCancelled ? QList<int>() : sorted;
}

QItemSelection selectionOf(const QAbstractItemModel *model, const QList<int> &rows)
{
    QItemSelection selection;
    for (qsizetype first = 0, i = 0; i < rows.size(); ++i) {
        if (i + 1 < rows.size() && rows.at(i + 1) == rows.at(i) + 1)
            continue;
        selection.append({model->index(rows.at(first), 0), model->index(rows.at(i), 0)});
        first = i + 1;
    }
    return selection;
}

} // namespace

FileSorter::FileSorter(ListWidgetFiles &listOfFiles, const QAbstractButton &preview,
                       std::function<void()> refreshOfRows)
    : list(listOfFiles)
    , buttonPreview(preview)
    , refreshRows(std::move(refreshOfRows))
{
}

void FileSorter::sort(FileOrder order)
{
    if (isSorting || !isAtRest(list))
        return;
    const QScopedValueRollback sorting(isSorting, true);
    const QList<int> selected = selectedRows();
    QList<int> places = selected;
    if (selected.size() < 2) {
        places.resize(list.count());
        std::iota(places.begin(), places.end(), 0);
    }
    const LateDialog dialog(list.window());
    const QList<int> sorted = sortedAside(filesAt(places, list, dialog), order, dialog);
    if (sorted.isEmpty())
        return;
    RowOrder rows(list, places, sorted);
    const UpdatesHeld updates(list);
    while (rows.goOn(orderSlice))
        dialog.processEvents();
    // More than one keep their places among themselves.
    if (selected.size() == 1)
        list.selectionModel()->select(list.model()->index(rows.newPlace(selected.constFirst()), 0),
                                      QItemSelectionModel::ClearAndSelect);
    showOrder(rows.newPlace(list.currentRow()));
}

void FileSorter::move(RowMoves::To where)
{
    const QList<int> selected = selectedRows();
    if (isSorting || selected.isEmpty() || !isAtRest(list))
        return;
    const QList<int> targets = RowMoves::targets(selected, list.count(), where);
    if (targets == selected)
        return;
    // The list would look for the place of each row that was or is selected.
    const UpdatesHeld updates(list);
    RowOrder rows = RowMoves::ordered(list, selected, targets);
    rows.finish();
    // From one selection to another Qt compares each range with each.
    list.selectionModel()->clearSelection();
    list.selectionModel()->select(selectionOf(list.model(), targets), QItemSelectionModel::Select);
    showOrder(rows.newPlace(list.currentRow()));
}

QList<int> FileSorter::selectedRows() const
{
    QList<int> rows;
    const QItemSelection selection = list.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void FileSorter::showOrder(int currentRow)
{
    if (currentRow >= 0) {
        const QModelIndex current = list.model()->index(currentRow, 0);
        list.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        list.scrollTo(current, QAbstractItemView::EnsureVisible);
    }
    if (buttonPreview.isChecked())
        refreshRows();
}
