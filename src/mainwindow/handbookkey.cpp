// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/handbookkey.h"

#include "desktop/shell.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QShortcut>
#include <QWidget>

using namespace Qt::StringLiterals;

void addHandbookKey(QWidget *window)
{
    const auto *key = new QShortcut(QKeySequence(QKeySequence::HelpContents), window);
    QObject::connect(key, &QShortcut::activated, window, [] {
        const QString page = QCoreApplication::applicationDirPath() + "/handbook.html"_L1;
        if (QFileInfo::exists(page))
            openWithShell(page);
        else
            qDebug("no handbook: %s", qPrintable(page));
    });
}
