// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/runprogress.h"

#include "core/applog.h"
#include "desktop/messagebox.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/plannedtexts.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
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
    sinceEvents.start();
}

bool RunProgress::goOn(int item)
{
    dialog.setProgress(item);
    if (isCancelled() && !insists)
        return false;
    QCoreApplication::processEvents();
    sinceEvents.start();
    if (insists)
        showAgain();
    return true;
}

void RunProgress::insist()
{
    insists = true;
    dialog.buttonCancel->hide();
    showAgain();
}

void RunProgress::showAgain()
{
    // Not in a window that was closed meanwhile.
    if (isCancelled() && dialog.parentWidget()->isVisible())
        dialog.show();
}

void fillReport(QMessageBox &box, const RunFigures &figures, const Failures &failures)
{
    const auto line = [](const QString &word, qint64 number) -> QString {
        return word + u' ' + QString::number(number);
    };
    QStringList lines = {line(MainWindow::tr("Total"), figures.total),
                         line(MainWindow::tr("Processed"), figures.processed)};
    if (figures.kept)
        lines.append(line(keptWord(), *figures.kept));
    lines.append(line(MainWindow::tr("Failed"), figures.failed));
    box.setWindowTitle(MainWindow::tr("Report"));
    box.setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    box.setIcon(QMessageBox::Information);
    box.setStyleSheet(u"QLabel{color:#444;font: bold 10pt}"_s);
    box.setText(lines.join(u'\n'));
    AppLog::instance()->append(lines.join(u' '));
    addCloseButton(&box, MainWindow::tr("Close"));
    addDetailsButton(&box, failures);
}

void showReport(QWidget *parent, const RunFigures &figures, const Failures &failures)
{
    QMessageBox box(parent);
    fillReport(box, figures, failures);
    box.exec();
}
