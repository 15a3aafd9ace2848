// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rowsoffiles.h"

#include "mainwindow/listwidgetfiles.h"
#include "run/filepath.h"

#include <QDir>

namespace {

/// A file that a run moved to another folder is listed by the way that led there.
QString keyOf(const QString &path)
{
    return isPlainPath(path) ? path : QDir::cleanPath(path);
}

} // namespace

RowsOfFiles::RowsOfFiles(ListWidgetFiles &listOfFiles)
    : list(listOfFiles)
    , last(list.count())
{
}

int RowsOfFiles::rowOf(const QString &path)
{
    return rowOf(path, -1);
}

int RowsOfFiles::rowOf(const QString &path, int butNot)
{
    // Mostly the rows of a run, from its last to its first, or of an undo, from its first to its last.
    for (const int row : {last - 1, last + 1, 0}) {
        if (rows.isEmpty() && row != butNot && row >= 0 && row < list.count() && list.path(row) == path)
            return last = row;
    }
    if (const int row = moved.value(keyOf(path), -1); row >= 0 && row != butNot && shows(row, path))
        return row;
    if (rows.isEmpty())
        lookAtAll();
    const int row = rows.value(keyOf(path), -1);
    // Events are processed meanwhile.
    return row < 0 || (row != butNot && shows(row, path)) ? row : -1;
}

bool RowsOfFiles::shows(int row, const QString &path) const
{
    return row < list.count() && keyOf(list.path(row)) == keyOf(path);
}

void RowsOfFiles::follow(const QString &from, const QString &to)
{
    // The second of two files that were exchanged: for a moment both rows show one path.
    const bool isOther = lastMoved >= 0 && from == lastTo && to == lastFrom;
    const bool isDisplaced = isOther && displaced >= 0 && shows(displaced, from);
    lastMoved = isDisplaced ? displaced : rowOf(from, isOther ? lastMoved : -1);
    lastFrom = from;
    lastTo = to;
    if (lastMoved < 0)
        return;
    displaced = moved.value(keyOf(to), -1);
    list.setPath(lastMoved, to);
    moved.insert(keyOf(to), lastMoved);
}

void RowsOfFiles::lookAtAll()
{
    rows.reserve(list.count());
    for (int row = 0; row < list.count(); ++row)
        rows.insert(keyOf(list.path(row)), row);
}
