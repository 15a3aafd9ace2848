// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "mainwindow/commandids.h"
#include "mainwindow/progressdialog.h"
#include "run/scan.h"
#include "ui_mainwindow.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QStackedWidget>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 countInterval = 40;  // milliseconds
constexpr qint64 longestSilence = 10; // milliseconds

std::unique_ptr<ProgressDialog> createWaitDialog(QWidget *parent, ProgressDialog::Page page)
{
    auto dialog = std::make_unique<ProgressDialog>(parent);
    dialog->setWindowTitle(MainWindow::tr("Please wait"));
    dialog->stackedWidget->setCurrentIndex(page);
    return dialog;
}

/// The path of a dropped file. Qt puts U+FFFD for bytes that are no text, and another file may have that
/// name: half a character in its place keeps the path from leading to any file. Such a row is shown, and
/// fails.
QString localPath(const QUrl &url)
{
    QString path = url.toLocalFile();
    if (!path.contains(QChar::ReplacementCharacter))
        return path;
    if (!QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).isValidUtf8())
        path.replace(QChar::ReplacementCharacter, QChar(0xD800));
    return path;
}

} // namespace

void MainWindow::onFileListAdded(const QMimeData *mimeData)
{
    // Taken before any event is processed: the data belongs to the drag.
    const QList<QUrl> urls = mimeData->urls();
    for (const QUrl &url : urls) {
        if (closesAfterDrop)
            break;
        addPath(localPath(url));
    }
    ui->listWidgetFiles->showAddedRows();
    if (closesAfterDrop)
        QMetaObject::invokeMethod(this, &MainWindow::closeFromAnyState, Qt::QueuedConnection);
}

void MainWindow::addPath(const QString &path)
{
    // Built when it is first shown: dropping a thousand single files shows none.
    std::unique_ptr<ProgressDialog> dialog;
    // The system would be asked for U+FFFD instead of half a character.
    const bool isFolder = path.isValidUtf16() && QFileInfo(path).isDir();
    const QStringList paths = isFolder ? collectFiles(path, dialog) : QStringList(path);
    const qsizetype total = paths.size();
    if (total > 1) {
        dialog->stackedWidget->setCurrentIndex(ProgressDialog::ProgressPage);
        dialog->showValue(0);
        // Also after a cancelled scan: what was found so far is still added.
        dialog->show();
    }
    for (qsizetype i = 0; i < total; ++i) {
        if (ui->listWidgetFiles->containsPath(paths.at(i)))
            continue;
        addRow(paths.at(i));
        // Deliberate: the bar stays below 100 after the last file.
        if (total > 1)
            dialog->showValue(static_cast<int>(std::min<qsizetype>(100, i * 100 / total)));
        QCoreApplication::processEvents();
        if (dialog && dialog->isHidden())
            break;
    }
    if (total > 1)
        ui->listWidgetFiles->showAddedRows();
}

QStringList MainWindow::collectFiles(const QString &folder, std::unique_ptr<ProgressDialog> &dialog)
{
    QStringList nameFilters = ui->lineEditFileFilter->text().split(u';', Qt::SkipEmptyParts);
    if (nameFilters.isEmpty())
        nameFilters.append(u"*.*"_s);
    dialog = createWaitDialog(this, ProgressDialog::TextPage);
    dialog->show();

    Scan scan(folder, nameFilters);
    const auto showCount = [&] {
        dialog->labelText->setText(tr("Acquire files") + " : "_L1 + QString::number(scan.count()));
    };
    QElapsedTimer sinceShown;
    QElapsedTimer sinceEvents;
    sinceEvents.start();
    while (!dialog->isHidden()) {
        const Scan::Step step = scan.next();
        if (step == Scan::Step::End)
            break;
        // After each file, and often enough for a click where none is found.
        if (step == Scan::Step::Passed && !sinceEvents.hasExpired(longestSilence))
            continue;
        // Every new text lays the dialog out again, which takes longer than finding a file.
        if (step == Scan::Step::Found && (!sinceShown.isValid() || sinceShown.hasExpired(countInterval))) {
            showCount();
            sinceShown.start();
        }
        QCoreApplication::processEvents();
        sinceEvents.start();
    }
    if (scan.count() > 0)
        showCount();
    if (scan.foldersLeftOut() > 0)
        qDebug("folders left out, their paths being too long for the system: %lld",
               static_cast<long long>(scan.foldersLeftOut()));
    return scan.takePaths();
}

void MainWindow::addRow(const QString &path)
{
    ui->listWidgetFiles->appendRow(path);
    updateFileItem(ui->listWidgetFiles->count() - 1);
}

void MainWindow::moveFile(int from, int to)
{
    ListWidgetFiles *list = ui->listWidgetFiles;
    list->insertItem(to, list->takeItem(from));
    list->setCurrentRow(to);
}

void MainWindow::onClickedFileList(int id)
{
    ListWidgetFiles *list = ui->listWidgetFiles;
    const int row = list->currentRow();
    switch (id) {
    case MoveFileUp:
        if (row < 1)
            return;
        moveFile(row, row - 1);
        break;
    case MoveFileDown:
        // Deliberate: without a current row there is none to move, and the first becomes current.
        if (row >= list->count() - 1)
            return;
        moveFile(row, row + 1);
        break;
    case RemoveFiles:
        if (row < 0)
            return;
        list->removeSelected();
        list->setCurrentRow(std::max(0, std::min(row, list->count() - 1)));
        break;
    default:
        return;
    }
    list->scrollTo(list->currentIndex(), QAbstractItemView::EnsureVisible);
    if (ui->buttonPreview->isChecked())
        on_buttonPreview_clicked();
}
