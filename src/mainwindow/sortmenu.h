// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/filesorter.h"

#include <QObject>

class QAction;
class QMenu;
class QToolButton;

/// The button that sorts the list, with its menu, and the keys that move rows while the list has the focus:
/// Alt with Up, Down, Home and End.
class SortMenu final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window of the button.
    SortMenu(QToolButton *sortButton, ListWidgetFiles &listOfFiles, const QAbstractButton &preview,
             const std::function<void()> &refreshRows);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addOrder(FileOrder order, QLatin1StringView objectName);
    void retranslate();
    void openMenu();

    QToolButton *button;
    QMenu *menu;
    FileSorter sorter;
};
