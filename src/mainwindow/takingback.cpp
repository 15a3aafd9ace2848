// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/takingback.h"

#include "core/applog.h"
#include "desktop/messagebox.h"
#include "dialogs/runtexts.h"
#include "mainwindow/aside.h"
#include "mainwindow/explorer.h"
#include "mainwindow/fates.h"
#include "mainwindow/fatetexts.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/recordedrun.h"
#include "mainwindow/rowsoffiles.h"
#include "mainwindow/runhistory.h"
#include "mainwindow/runprogress.h"
#include "run/systemdisk.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

/// The window stays alive: a million renames of later runs take seconds to be looked through.
UndoRun::Begun beginAside(JournalFolder &journals, const QString &journal, Disk &disk)
{
    UndoRun::Begun begun;
    const Aside aside(
        [&] { begun = UndoRun::begin(journals, journal, disk, QCoreApplication::applicationVersion()); });
    while (!aside.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return begun;
}

} // namespace

void tellRefusal(UndoRun::Refusal refusal, QWidget *above)
{
    const QString text = refusalText(refusal);
    AppLog::instance()->append(text);
    QMessageBox *box = createMessageBox(above, QMessageBox::Information);
    box->setText(text);
    addCloseButton(box, closeRunsText());
    execMessageBox(box);
}

TakingBack::TakingBack(WindowParts windowParts, RunHistory &runHistory)
    : parts(std::move(windowParts))
    , history(runHistory)
{
}

void TakingBack::undo()
{
    takeNewestBack(&JournalFolder::undoable);
}

void TakingBack::redo()
{
    takeNewestBack(&JournalFolder::redoable);
}

void TakingBack::takeNewestBack(Choice choice)
{
    QWidget *window = parts.list.window();
    const auto dialogs = window->findChildren<ProgressDialog *>();
    const bool isBusy = std::any_of(dialogs.begin(), dialogs.end(),
                                    [](const ProgressDialog *dialog) { return !dialog->isHidden(); });
    if (isBusy || parts.list.isHandlingDrop())
        return;
    // Not what the history knew last: another instance may have been quicker.
    const QList<JournalInfo> newestFirst = history.journals().list();
    if (const JournalInfo *journal = choice(newestFirst))
        takeBack(journal->name, window);
    else
        history.refresh();
}

void TakingBack::takeBack(const QString &journal, QWidget *above)
{
    SystemDisk disk;
    RunProgress progress(above, 0);
    const UndoRun::Begun begun = beginAside(history.journals(), journal, disk);
    if (!begun.run) {
        progress.close();
        history.refresh();
        tellRefusal(begun.refusal, above);
        return;
    }
    UndoRun &run = *begun.run;
    AppLog::instance()->append(undoStartedText());
    parts.preview.setChecked(false);
    RunFigures figures{.total = run.total()};
    const auto most = static_cast<qint64>(std::numeric_limits<int>::max());
    progress.setTotal(static_cast<int>(std::min(figures.total, most)));
    Failures failures;
    const bool isComplete = takeAllBack(run, progress, figures, failures);
    run.end(!isComplete);
    if (!run.journalError().isEmpty())
        tellUnrecorded(run.journalError());
    progress.close();
    parts.refreshRows();
    parts.fates.showFailures(failures);
    history.refresh();
    showReport(above, figures, failures);
}

bool TakingBack::takeAllBack(UndoRun &run, RunProgress &progress, RunFigures &figures,
                             Failures &failures) const
{
    const SelectionKept selection(parts.explorer, parts.list);
    RowsOfFiles rows(parts.list);
    int steps = 0;
    if (progress.isCancelled())
        return false;
    while (const auto step = run.next()) {
        if (step->isDone()) {
            ++figures.processed;
            rows.follow(step->from, step->to);
        } else {
            ++figures.failed;
            const Fate fate = fateOf(*step);
            const FilePath file{.path = step->from, .nameAt = step->nameAt};
            AppLog::instance()->append(notTakenBackText(file.name(), reasonText(fate)));
            qDebug("not taken back: %s", qPrintable(idOf(step->result)));
            failures.append({rows.rowOf(step->from), file, {.fate = fate, .reason = fate, .path = step->to}});
        }
        if (!progress.goOn(steps++))
            return false;
    }
    return true;
}
