// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/runprogress.h"

#include "core/applog.h"
#include "desktop/messagebox.h"
#include "mainwindow/mainwindow.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

RunProgress::RunProgress(QWidget *parent, int total)
    : dialog(parent)
{
    dialog.setWindowTitle(MainWindow::tr("Please wait"));
    dialog.mode = ProgressDialog::progressMode;
    dialog.stackedWidget->setCurrentIndex(ProgressDialog::ProgressPage);
    dialog.setProgress(0);
    dialog.total = total;
    dialog.show();
}

bool RunProgress::goOn(int item)
{
    dialog.setProgress(item);
    if (isCancelled())
        return false;
    QCoreApplication::processEvents();
    return true;
}

void showReport(QWidget *parent, const RunFigures &figures, const Failures &failures)
{
    const QString report = MainWindow::tr("Total") + u' ' + QString::number(figures.total) + u'\n' +
                           MainWindow::tr("Processed") + u' ' + QString::number(figures.processed) + u'\n' +
                           MainWindow::tr("Failed") + u' ' + QString::number(figures.failed);
    QMessageBox box(parent);
    box.setWindowTitle(MainWindow::tr("Report"));
    box.setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    box.setIcon(QMessageBox::Information);
    box.setStyleSheet(u"QLabel{color:#444;font: bold 10pt}"_s);
    box.setText(report);
    AppLog::instance()->append(QString(report).replace(u'\n', u' '));
    addCloseButton(&box, MainWindow::tr("Close"));
    addDetailsButton(&box, failures);
    box.exec();
}
