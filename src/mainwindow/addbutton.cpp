// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/addbutton.h"

#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/opendialogs.h"
#include "mainwindow/pastedfiles.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int noFilesTime = 8000; // milliseconds

} // namespace

AddButton::AddButton(QToolButton *addButton, ListWidgetFiles &listOfFiles)
    : QObject(addButton->window())
    , button(addButton)
    , list(listOfFiles)
    , menu(new QMenu(button))
    , actionAddFiles(menu->addAction(QIcon(u":/img/add_files.png"_s), {}))
    , actionAddFolder(menu->addAction(QIcon(u":/img/folder.png"_s), {}))
    , actionPaste(new QAction(this))
{
    QWidget *window = button->window();
    menu->setObjectName(u"menuAddFiles"_s);
    actionAddFiles->setObjectName(u"actionAddFiles"_s);
    actionAddFiles->setShortcut(Qt::CTRL | Qt::Key_O);
    actionAddFolder->setObjectName(u"actionAddFolder"_s);
    actionAddFolder->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    actionPaste->setObjectName(u"actionPasteFiles"_s);
    actionPaste->setShortcuts(QKeySequence::Paste);
    // A menu's keys do not count while it is closed.
    window->addActions({actionAddFiles, actionAddFolder, actionPaste});
    connect(actionAddFiles, &QAction::triggered, this, [this] { add(QFileDialog::ExistingFiles); });
    connect(actionAddFolder, &QAction::triggered, this, [this] { add(QFileDialog::Directory); });
    connect(actionPaste, &QAction::triggered, this, &AddButton::paste);
    connect(button, &QToolButton::clicked, this, &AddButton::openMenu);
    window->installEventFilter(this);
    retranslate();
}

void AddButton::openMenu()
{
    menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

void AddButton::add(QFileDialog::FileMode mode)
{
    // The dialog is gone before the wait dialog comes.
    if (isAtRest(list))
        handOver(ask(mode));
}

void AddButton::paste()
{
    if (!isAtRest(list))
        return;
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QList<QUrl> files = data ? pastedFiles(*data) : QList<QUrl>();
    if (!files.isEmpty())
        handOver(files);
    else if (const auto *window = qobject_cast<QMainWindow *>(button->window()))
        window->statusBar()->showMessage(tr("There are no files on the clipboard"), noFilesTime);
}

QList<QUrl> AddButton::ask(QFileDialog::FileMode mode)
{
    const bool isFolder = mode == QFileDialog::Directory;
    QFileDialog dialog(button->window(), isFolder ? tr("Add folder") : tr("Add files"), folder);
    dialog.setObjectName(isFolder ? u"dialogAddFolder"_s : u"dialogAddFiles"_s);
    dialog.setWindowModality(Qt::WindowModal); // the icon in the tray stays alive
    dialog.setFileMode(mode);
    // It is for adding, not for looking after files.
    dialog.setOption(QFileDialog::ReadOnly);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    folder = dialog.directory().absolutePath();
    return dialog.selectedUrls();
}

void AddButton::handOver(const QList<QUrl> &files)
{
    QMimeData data;
    data.setUrls(files);
    list.handOver(&data);
}

void AddButton::retranslate()
{
    actionAddFiles->setText(tr("Add files…"));
    actionAddFolder->setText(tr("Add folder…"));
}

bool AddButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}
