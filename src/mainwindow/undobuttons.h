// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class Finishing;
class QAction;
class QMenu;
class QToolButton;
class RunHistory;
class TakingBack;

/// The two buttons that take runs back, with their menu and keys: Ctrl+Z and Ctrl+Shift+Z, which are a text
/// field's own while it has the focus.
class UndoButtons final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window of the buttons.
    UndoButtons(QToolButton *undoButton, QToolButton *runsButton, RunHistory &runHistory,
                TakingBack &takingBack, Finishing &finishing);
    /// An entry of another's, at the end of the menu.
    void addEntry(QAction *entry);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showHistory();
    void retranslate();
    void openMenu();
    void showRuns(TakingBack &takingBack, Finishing &finishing);

    QToolButton *buttonUndo;
    QToolButton *buttonRuns;
    RunHistory &history;
    QMenu *menu;
    QAction *actionUndo;
    QAction *actionRedo;
    QAction *actionRuns;
};
