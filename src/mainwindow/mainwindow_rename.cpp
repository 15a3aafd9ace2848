// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/applog.h"
#include "mainwindow/activerules.h"
#include "mainwindow/allornothing.h"
#include "mainwindow/explorer.h"
#include "mainwindow/fates.h"
#include "mainwindow/plannedrenaming.h"
#include "mainwindow/recordedrun.h"
#include "mainwindow/runhistory.h"
#include "mainwindow/runprogress.h"
#include "run/renamerun.h"
#include "ui_mainwindow.h"

using namespace Qt::StringLiterals;

QString MainWindow::newName(const QString &name, int row) const
{
    return applyRules(activeRules->steps(), name, row);
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
    const RuleSteps steps = ui->buttonPreview->isChecked() ? activeRules->steps() : RuleSteps();
    const Fates::Refresh refresh(*fates, {steps, ui->checkBoxShowFullPath->isChecked()});
    for (int row = 0; row < ui->listWidgetFiles->count(); ++row)
        updateFileItem(row);
}

void MainWindow::on_buttonRename_clicked()
{
    if (ui->listWidgetFiles->count() < 1)
        return;
    if (allOrNothing->isOn()) {
        plannedRenaming->run();
        return;
    }
    AppLog::instance()->append(tr("File renaming started"));
    RunProgress progress(this, ui->listWidgetFiles->count());
    ui->buttonPreview->setChecked(false);
    RecordedRun recorded(runHistory->journals(), ui->listWidgetFiles->count());
    RenameRun run(recorded.disk());
    Failures failures;
    const bool isComplete = renameAll(run, progress, failures);
    recorded.end(!isComplete);
    progress.close();
    on_buttonPreview_clicked();
    fates->showFailures(failures);
    runHistory->pruneAndRefresh();
    showReport(this, {ui->listWidgetFiles->count(), run.processed(), run.failed()}, failures);
}

bool MainWindow::renameAll(RenameRun &run, RunProgress &progress, Failures &failures)
{
    const SelectionKept selection(*explorer, *ui->listWidgetFiles);
    while (run.handled() < ui->listWidgetFiles->count()) {
        const int row = run.handled();
        renameRow(run, row, failures);
        if (!progress.goOn(row)) {
            run.cancel();
            return false;
        }
    }
    return true;
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
