// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/commandkeys.h"

#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/opendialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QShortcut>
#include <QToolBar>
#include <QTreeView>

void addRunKeys(const ListWidgetFiles &list, QAbstractButton *preview, QAbstractButton *rename)
{
    const auto add = [&list](const QKeySequence &keys, QAbstractButton *button) {
        auto *shortcut = new QShortcut(keys, list.window());
        // A key that is held down is one wish.
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, button, [&list, button] {
            if (isAtRest(list))
                button->click();
        });
    };
    add(Qt::Key_F5, preview);
    add(Qt::CTRL | Qt::Key_Return, rename);
    // That of the number pad.
    add(Qt::CTRL | Qt::Key_Enter, rename);
}

void addExplorerKeys(QTreeView *explorer)
{
    auto *copy = new QShortcut(QKeySequence::Copy, explorer);
    copy->setContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QShortcut::activated, explorer, [explorer] {
        const QModelIndexList selected = explorer->selectionModel()->selectedIndexes();
        if (QMimeData *files = selected.isEmpty() ? nullptr : explorer->model()->mimeData(selected))
            QGuiApplication::clipboard()->setMimeData(files);
    });
}

void addTabStops(const QToolBar *bar)
{
    QWidget *last = nullptr;
    const auto actions = bar->actions();
    for (QAction *action : actions) {
        QWidget *widget = bar->widgetForAction(action);
        const bool isButton = qobject_cast<QAbstractButton *>(widget);
        if (!isButton)
            continue;
        widget->setFocusPolicy(Qt::TabFocus);
        if (last)
            QWidget::setTabOrder(last, widget);
        last = widget;
    }
}
