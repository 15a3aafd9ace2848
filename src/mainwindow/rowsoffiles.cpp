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

bool isHidden(const QString &path)
{
    return QStringView(path).sliced(path.lastIndexOf(u'/') + 1).startsWith(u'.');
}

} // namespace

RowsOfFiles::RowsOfFiles(ListWidgetFiles &listOfFiles)
    : list(listOfFiles)
    , last(list.count())
{
}

int RowsOfFiles::rowOf(const QString &path)
{
    // Mostly the rows of a run, from its last to its first, or of an undo, from its first to its last.
    // Of two files that were exchanged the one whose row was found last is not meant.
    for (const int row : {last - 1, last + 1, 0}) {
        if (rows.isEmpty() && row != last && row >= 0 && row < list.count() && list.path(row) == path)
            return last = row;
    }
    if (const int row = passing.value(keyOf(path), -1); row >= 0 && shows(row, path))
        return row;
    if (rows.isEmpty())
        lookAtAll();
    const int row = rows.value(keyOf(path), -1);
    // Events are processed meanwhile.
    return row < 0 || shows(row, path) ? row : -1;
}

bool RowsOfFiles::shows(int row, const QString &path) const
{
    return row < list.count() && keyOf(list.path(row)) == keyOf(path);
}

void RowsOfFiles::follow(const QString &from, const QString &to)
{
    const int row = rowOf(from);
    if (row < 0)
        return;
    list.setPath(row, to);
    if (isHidden(to))
        passing.insert(keyOf(to), row);
}

void RowsOfFiles::lookAtAll()
{
    rows.reserve(list.count());
    for (int row = 0; row < list.count(); ++row)
        rows.insert(keyOf(list.path(row)), row);
}
