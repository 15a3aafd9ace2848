// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

class ListWidgetFiles;

/// Which rows show the files of a run that a journal knows.
class RowsOfFiles final
{
public:
    explicit RowsOfFiles(ListWidgetFiles &listOfFiles);

    /// -1 where no row shows the file.
    [[nodiscard]] int rowOf(const QString &path);
    /// The file has another path; its row, if there is one, too.
    void follow(const QString &from, const QString &to);

private:
    [[nodiscard]] int rowOf(const QString &path, int butNot);
    void lookAtAll();
    [[nodiscard]] bool shows(int row, const QString &path) const;

    ListWidgetFiles &list;
    /// The row found last.
    int last;
    /// By the paths that their files had at first; empty as long as rows follow one another.
    QHash<QString, int> rows;
    /// Those that have followed, by the paths that their files have now: a planned run moves some twice.
    QHash<QString, int> moved;

    /// The step that was followed last, its row, and the row that had followed to the same path before.
    QString lastFrom;
    QString lastTo;
    int lastMoved = -1;
    int displaced = -1;
};
