// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/applog.h"
#include "mainwindow/progressdialog.h"
#include "platform/filerename.h"
#include "rules/rulechain.h"
#include "ui_mainwindow.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

QString MainWindow::newName(const QString &name, int row) const
{
    QString result = name;
    const QList<RuleData *> chain = ruleList;
    for (const RuleData *record : chain)
        result = applyRuleChain(record, result, row);
    return result;
}

void MainWindow::updateFileItem(int row)
{
    const QFileInfo file(ui->listWidgetFiles->path(row));
    QString text = file.fileName();
    if (ui->buttonPreview->isChecked())
        text = newName(text, row);
    if (ui->checkBoxShowFullPath->isChecked()) {
        // Deliberate: a folder on a network share is shown with one leading separator.
        const QString folder = file.absolutePath().replace("//"_L1, "/"_L1);
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
    const RunResult result = renameAll(dialog);
    dialog.close();
    on_buttonPreview_clicked();
    showReport(result);
}

MainWindow::RunResult MainWindow::renameAll(ProgressDialog &dialog)
{
    RunResult result;
    while (result.last < ui->listWidgetFiles->count()) {
        if (!renameRow(result.last))
            ++result.failed;
        dialog.setProgress(result.last);
        // Deliberate: a cancel leaves the loop before the index goes on, so the report counts one file less.
        if (dialog.isHidden())
            break;
        QCoreApplication::processEvents();
        ++result.last;
    }
    return result;
}

bool MainWindow::renameRow(int row)
{
    const QFileInfo file(ui->listWidgetFiles->path(row));
    const QString folder = file.absolutePath() + u'/';
    const QString oldName = file.fileName();
    const QString newPath = folder + newName(oldName, row);
    // No check of our own: whatever the rules made of the name, the file system's answer alone counts. A name
    // left unchanged is therefore a failure, deliberately.
    if (renameFile(folder + oldName, newPath)) {
        ui->listWidgetFiles->item(row)->setData(Qt::UserRole, newPath);
        return true;
    }
    AppLog::instance()->append(tr("Could not rename file") + u" '%1'"_s.arg(oldName));
    return false;
}

void MainWindow::showReport(const RunResult &result)
{
    const QString report = tr("Total") + u' ' + QString::number(ui->listWidgetFiles->count()) + u'\n' +
                           tr("Processed") + u' ' + QString::number(result.last - result.failed) + u'\n' +
                           tr("Failed") + u' ' + QString::number(result.failed);
    QMessageBox box(this);
    box.setWindowTitle(tr("Report"));
    box.setStandardButtons(QMessageBox::Ok);
    box.setIcon(QMessageBox::Information);
    box.setStyleSheet(u"QLabel{color:#444;font: bold 10pt}"_s);
    box.setText(report);
    AppLog::instance()->append(QString(report).replace(u'\n', u' '));
    QAbstractButton *button = box.button(QMessageBox::Ok);
    button->setText(tr("Close"));
    button->setIcon(QIcon(u":/img/cancel.png"_s));
    button->setIconSize({24, 24});
    box.exec();
}
