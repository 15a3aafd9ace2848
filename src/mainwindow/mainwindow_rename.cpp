// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/applog.h"
#include "desktop/messagebox.h"
#include "mainwindow/explorer.h"
#include "mainwindow/fates.h"
#include "mainwindow/progressdialog.h"
#include "rules/rulechain.h"
#include "run/renamerun.h"
#include "run/systemdisk.h"
#include "ui_mainwindow.h"

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
    if (const auto names = fates->refreshedNames()) {
        ui->listWidgetFiles->awaitText(row, names);
        return;
    }
    const FilePath file = filePaths.split(ui->listWidgetFiles->path(row));
    const QString name = ui->buttonPreview->isChecked() ? newName(file.name(), row) : file.name();
    ui->listWidgetFiles->setRowText(row, {file, name, ui->checkBoxShowFullPath->isChecked()});
}

void MainWindow::on_buttonPreview_clicked()
{
    std::vector<RuleData> chain;
    for (const RuleData *record : std::as_const(ruleList)) {
        if (ui->buttonPreview->isChecked())
            chain.push_back(*record);
    }
    const Fates::Refresh refresh(*fates, {std::move(chain), ui->checkBoxShowFullPath->isChecked()});
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
    const Failures failures = renameAll(run, dialog);
    dialog.close();
    on_buttonPreview_clicked();
    fates->showFailures(failures);
    showReport(run, failures);
}

Failures MainWindow::renameAll(RenameRun &run, ProgressDialog &dialog)
{
    Failures failures;
    const SelectionKept selection(*explorer, *ui->listWidgetFiles);
    while (run.handled() < ui->listWidgetFiles->count()) {
        const int row = run.handled();
        renameRow(run, row, failures);
        dialog.setProgress(row);
        if (dialog.isHidden()) {
            run.cancel();
            break;
        }
        QCoreApplication::processEvents();
    }
    return failures;
}

void MainWindow::renameRow(RenameRun &run, int row, Failures &failures)
{
    const FilePath file = filePaths.split(ui->listWidgetFiles->path(row));
    const QString name = file.name();
    const Outcome outcome = run.next(file, newName(name, row));
    if (outcome.isRenamed()) {
        ui->listWidgetFiles->setPath(row, outcome.path);
        return;
    }
    AppLog::instance()->append(tr("Could not rename file") + u" '%1'"_s.arg(name));
    qDebug("not renamed: %s", qPrintable(idOf(outcome.reason)));
    failures.append({row, file, outcome});
}

void MainWindow::showReport(const RenameRun &run, const Failures &failures)
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
    addDetailsButton(&box, failures);
    box.exec();
}
