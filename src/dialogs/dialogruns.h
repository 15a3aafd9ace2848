// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalfolder.h"

#include <QDialog>
#include <QThreadPool>

#include <atomic>
#include <functional>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTreeView;
class RunModel;

/// The runs that are kept: what became of them, their files, and taking them back.
class DialogRuns final : public QDialog
{
    Q_OBJECT

public:
    DialogRuns(const JournalFolder &journals, QWidget *parent);
    ~DialogRuns() override;
    Q_DISABLE_COPY_MOVE(DialogRuns)

    /// Takes a run back, above this dialog.
    std::function<void(const QString &run)> takeBack;
    /// Finishes a planned run that was interrupted, above this dialog.
    std::function<void(const QString &run)> finish;

private:
    void createWidgets();
    void load();
    /// Which runs later ones touched: all journals are read for that, by another thread.
    void findTouched();
    void showSelected();
    /// -1 where none is selected.
    [[nodiscard]] int selectedRow() const;

    void showChoices(const JournalInfo &run, const JournalInfo *later);

    void takeSelectedBack();
    void finishSelected();
    void leaveSelected();
    void showFiles();
    void forgetSelected();
    void forgetAll();

    JournalFolder folder;
    RunModel *model;
    QTreeView *tree;
    QLabel *labelNote;
    QDialogButtonBox *choices = nullptr;
    QPushButton *buttonFinish = nullptr;
    QPushButton *buttonPutBack = nullptr;
    QPushButton *buttonLeave = nullptr;
    QPushButton *buttonTakeBack = nullptr;
    QPushButton *buttonShowFiles = nullptr;
    QPushButton *buttonForget = nullptr;
    QPushButton *buttonForgetAll = nullptr;

    /// Answers to earlier questions do not count.
    int question = 0;
    std::atomic<bool> stops = false;
    QThreadPool reader;
};
