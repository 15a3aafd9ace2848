// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/roworder.h"
#include "run/fileorder.h"

#include <functional>

class ListWidgetFiles;
class QAbstractButton;

/// Puts the files of the list into an order that a person asks for, once. The selection and the current row
/// follow their files, and the preview is refreshed. Nothing is done while a dialog is open or files are
/// being added.
class FileSorter final
{
public:
    /// The list, the button and what the function needs must outlive it.
    FileSorter(ListWidgetFiles &listOfFiles, const QAbstractButton &preview,
               std::function<void()> refreshOfRows);

    /// Sorts the selected files among their own places, or all where not more than one is selected. Another
    /// thread finds the order; when that takes its time the wait dialog comes.
    void sort(FileOrder order);
    /// Moves all selected files.
    void move(RowMoves::To where);

private:
    [[nodiscard]] QList<int> selectedRows() const;
    void showOrder(int currentRow);

    ListWidgetFiles &list;
    const QAbstractButton &buttonPreview;
    std::function<void()> refreshRows;
    bool isSorting = false;
};
