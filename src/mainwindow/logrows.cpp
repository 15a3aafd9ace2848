// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/logrows.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTimer>

void fitRowsToMessages(QTableWidget *log)
{
    // A message may be higher than the table.
    log->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QObject::connect(log->model(), &QAbstractItemModel::dataChanged, log,
                     [log](const QModelIndex &from, const QModelIndex &to) {
                         for (int row = from.row(); row <= to.row(); ++row)
                             log->resizeRowToContents(row);
                     });
    auto *later = new QTimer(log);
    later->setSingleShot(true);
    QObject::connect(later, &QTimer::timeout, log, &QTableWidget::resizeRowsToContents);
    // A width that is dragged changes with every step of the mouse.
    QObject::connect(log->horizontalHeader(), &QHeaderView::sectionResized, later,
                     [later] { later->start(0); });
}
