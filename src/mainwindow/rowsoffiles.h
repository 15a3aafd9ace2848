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
    void lookAtAll();
    [[nodiscard]] bool shows(int row, const QString &path) const;

    ListWidgetFiles &list;
    /// The row found last.
    int last;
    /// By the paths that their files had at first; empty as long as rows follow one another.
    QHash<QString, int> rows;
    /// By the paths of files that are hidden: third names, which do not last.
    QHash<QString, int> passing;
};
