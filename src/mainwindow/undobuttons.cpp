// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/undobuttons.h"

#include "dialogs/dialogruns.h"
#include "dialogs/runtexts.h"
#include "mainwindow/buttontips.h"
#include "mainwindow/fatetexts.h"
#include "mainwindow/finishing.h"
#include "mainwindow/runhistory.h"
#include "mainwindow/takingback.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

UndoButtons::UndoButtons(QToolButton *undoButton, QToolButton *runsButton, RunHistory &runHistory,
                         TakingBack &takingBack, Finishing &finishing)
    : QObject(undoButton->window())
    , buttonUndo(undoButton)
    , buttonRuns(runsButton)
    , history(runHistory)
    , menu(new QMenu(buttonRuns))
    , actionUndo(menu->addAction(QIcon(u":/img/undo.png"_s), {}))
    , actionRedo(menu->addAction(QIcon(u":/img/redo.png"_s), {}))
    , actionRuns(menu->addAction(QIcon(u":/img/runs.png"_s), {}))
{
    QWidget *window = undoButton->window();
    actionUndo->setObjectName(u"actionUndo"_s);
    actionUndo->setShortcut(Qt::CTRL | Qt::Key_Z);
    actionRedo->setObjectName(u"actionRedo"_s);
    actionRedo->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    // A menu's keys do not count while it is closed.
    window->addActions({actionUndo, actionRedo});
    connect(buttonUndo, &QToolButton::clicked, this, [&takingBack] { takingBack.undo(); });
    connect(actionUndo, &QAction::triggered, this, [&takingBack] { takingBack.undo(); });
    connect(actionRedo, &QAction::triggered, this, [&takingBack] { takingBack.redo(); });
    actionRuns->setObjectName(u"actionRuns"_s);
    connect(actionRuns, &QAction::triggered, this,
            [this, &takingBack, &finishing] { showRuns(takingBack, finishing); });
    connect(buttonRuns, &QToolButton::clicked, this, &UndoButtons::openMenu);
    connect(&history, &RunHistory::changed, this, &UndoButtons::showHistory);
    window->installEventFilter(this);
    retranslate();
}

void UndoButtons::addEntry(QAction *entry)
{
    menu->addSeparator();
    menu->addAction(entry);
}

void UndoButtons::openMenu()
{
    menu->popup(buttonRuns->mapToGlobal(QPoint(0, buttonRuns->height())));
}

void UndoButtons::showRuns(TakingBack &takingBack, Finishing &finishing)
{
    DialogRuns dialog(history.journals(), buttonRuns->window());
    dialog.takeBack = [&dialog, &takingBack](const QString &run) {
        takingBack.takeBack(run, &dialog);
    };
    dialog.finish = [&dialog, &finishing](const QString &run) {
        finishing.finish(run, &dialog);
    };
    dialog.exec();
    history.refresh();
}

void UndoButtons::showHistory()
{
    const auto &undoable = history.undoable();
    buttonUndo->setEnabled(undoable.has_value());
    QString tip = tipWithKeys(undoable ? takeBackText(*undoable) : undoText(), actionUndo->shortcuts());
    if (undoable && undoable->canFinish())
        tip += u'\n' + unfinishedTip();
    buttonUndo->setToolTip(plainToolTip(tip));
    actionUndo->setEnabled(undoable.has_value());
    actionRedo->setEnabled(history.redoable().has_value());
}

void UndoButtons::retranslate()
{
    actionUndo->setText(undoText());
    actionRedo->setText(redoText());
    actionRuns->setText(runsMenuText());
    showHistory();
}

bool UndoButtons::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}
