// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/opendialogs.h"

#include "mainwindow/listwidgetfiles.h"

QList<QDialog *> openDialogs(const QWidget *window)
{
    QList<QDialog *> dialogs = window->findChildren<QDialog *>();
    dialogs.removeIf([](const QDialog *dialog) { return dialog->isHidden(); });
    return dialogs;
}

bool isAtRest(const ListWidgetFiles &list)
{
    return openDialogs(list.window()).isEmpty() && !list.isHandlingDrop();
}
