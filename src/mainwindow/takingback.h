// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/failures.h"
#include "run/undorun.h"

#include <functional>

class Explorer;
class Fates;
class ListWidgetFiles;
class QAbstractButton;
class QWidget;
class RunHistory;
class RunProgress;
struct RunFigures;

/// What the window shows of its files, and follows a run.
struct WindowParts
{
    ListWidgetFiles &list;
    QAbstractButton &preview;
    Explorer &explorer;
    Fates &fates;
    std::function<void()> refreshRows;
};

/// Takes runs back, with the wait dialog, the log lines and the report of a run; rows follow their files.
class TakingBack final
{
public:
    /// The window's parts and the history must outlive it.
    TakingBack(WindowParts windowParts, RunHistory &runHistory);

    // These two do nothing where there is nothing to take back, or while files are renamed or added.

    /// Takes back the newest run that still stands.
    void undo();
    /// Takes back the newest undo since the last run.
    void redo();
    /// Takes back this run or undo, or says why not, above that window.
    void takeBack(const QString &journal, QWidget *above);

private:
    using Choice = const JournalInfo *(*)(const QList<JournalInfo> &newestFirst);

    void takeNewestBack(Choice choice);
    [[nodiscard]] bool takeAllBack(UndoRun &run, RunProgress &progress, RunFigures &figures,
                                   Failures &failures) const;

    WindowParts parts;
    RunHistory &history;
};

/// Says in a box, and in the log, why a run is not taken back.
void tellRefusal(UndoRun::Refusal refusal, QWidget *above);
