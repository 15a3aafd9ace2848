// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/applog.h"
#include "desktop/messagebox.h"
#include "mainwindow/explorer.h"
#include "mainwindow/progressdialog.h"
#include "rules/rulechain.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "ui_mainwindow.h"

#include <QDir>
#include <QMessageBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

QString MainWindow::newName(const QString &name, int row) const
{
    QString result = name;
    for (const RuleData *record : ruleList)
        result = applyRuleChain(record, result, row);
    return result;
}

void MainWindow::updateFileItem(int row)
{
    const FilePath file = filePaths.split(ui->listWidgetFiles->path(row));
    QString text = ui->buttonPreview->isChecked() ? newName(file.name(), row) : file.name();
    if (ui->checkBoxShowFullPath->isChecked()) {
        // Deliberate: a folder on a network share is shown with one leading separator.
        const QString folder = file.folder().toString().replace("//"_L1, "/"_L1);
        text = QDir::toNativeSeparators(folder + QDir::separator() + text);
    }
    ui->listWidgetFiles->setRowText(row, text);
}

void MainWindow::on_buttonPreview_clicked()
{
    ui->listWidgetFiles->layoutLater();
    for (int row = 0; row < ui->listWidgetFiles->count(); ++row)
        updateFileItem(row);
}

void MainWindow::on_buttonRename_clicked()
{
    if (ui->listWidgetFiles->count() < 1)
        return;
    AppLog::instance()->append(tr("File renaming started"));
    ProgressDialog dialog(this);
    dialog.setWindowTitle(tr("Please wait"));
    dialog.mode = ProgressDialog::progressMode;
    dialog.stackedWidget->setCurrentIndex(ProgressDialog::ProgressPage);
    dialog.setProgress(0);
    dialog.total = ui->listWidgetFiles->count();
    dialog.show();
    ui->buttonPreview->setChecked(false);
    SystemDisk disk;
    RenameRun run(disk);
    renameAll(run, dialog);
    dialog.close();
    on_buttonPreview_clicked();
    showReport(run);
}

void MainWindow::renameAll(RenameRun &run, ProgressDialog &dialog)
{
    const SelectionKept selection(*explorer, *ui->listWidgetFiles);
    while (run.handled() < ui->listWidgetFiles->count()) {
        const int row = run.handled();
        renameRow(run, row);
        dialog.setProgress(row);
        if (dialog.isHidden()) {
            run.cancel();
            break;
        }
        QCoreApplication::processEvents();
    }
}

void MainWindow::renameRow(RenameRun &run, int row)
{
    const FilePath file = filePaths.split(ui->listWidgetFiles->path(row));
    const QString name = file.name();
    const Outcome outcome = run.next(file, newName(name, row));
    if (outcome.isRenamed())
        ui->listWidgetFiles->setPath(row, outcome.path);
    else
        AppLog::instance()->append(tr("Could not rename file") + u" '%1'"_s.arg(name));
}

void MainWindow::showReport(const RenameRun &run)
{
    const QString report = tr("Total") + u' ' + QString::number(ui->listWidgetFiles->count()) + u'\n' +
                           tr("Processed") + u' ' + QString::number(run.processed()) + u'\n' + tr("Failed") +
                           u' ' + QString::number(run.failed());
    QMessageBox box(this);
    box.setWindowTitle(tr("Report"));
    box.setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    box.setIcon(QMessageBox::Information);
    box.setStyleSheet(u"QLabel{color:#444;font: bold 10pt}"_s);
    box.setText(report);
    AppLog::instance()->append(QString(report).replace(u'\n', u' '));
    addCloseButton(&box, tr("Close"));
    box.exec();
}
