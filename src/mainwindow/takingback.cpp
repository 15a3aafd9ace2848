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
#include "mainwindow/runhistory.h"
#include "mainwindow/runprogress.h"
#include "run/systemdisk.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QHash>

#include <algorithm>
#include <limits>

namespace {

/// Which rows show the files that are taken back.
class RowsOfFiles final
{
public:
    explicit RowsOfFiles(ListWidgetFiles &listOfFiles)
        : list(listOfFiles)
        , last(list.count())
    {
    }

    /// -1 where no row shows the file.
    [[nodiscard]] int rowOf(const QString &path)
    {
        // Mostly the rows of a run, from its last to its first, or of an undo, from its first to its last.
        for (const int row : {last - 1, last + 1, 0}) {
            if (rows.isEmpty() && row >= 0 && row < list.count() && list.path(row) == path)
                return last = row;
        }
        if (rows.isEmpty())
            lookAtAll();
        const int row = rows.value(keyOf(path), -1);
        // Events are processed meanwhile.
        return row < list.count() && (row < 0 || keyOf(list.path(row)) == keyOf(path)) ? row : -1;
    }

    /// Each row once: a run renames no row twice.
    void follow(const UndoStep &step)
    {
        if (const int row = rowOf(step.from); row >= 0)
            list.setPath(row, step.to);
    }

private:
    /// A file that a run moved to another folder is listed by the way that led there.
    static QString keyOf(const QString &path) { return isPlainPath(path) ? path : QDir::cleanPath(path); }

    void lookAtAll()
    {
        rows.reserve(list.count());
        for (int row = 0; row < list.count(); ++row)
            rows.insert(keyOf(list.path(row)), row);
    }

    ListWidgetFiles &list;
    /// The row found last.
    int last;
    /// By the paths that their files had at first; empty as long as rows follow one another.
    QHash<QString, int> rows;
};

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

void refuse(UndoRun::Refusal refusal, QWidget *above)
{
    const QString text = refusalText(refusal);
    AppLog::instance()->append(text);
    QMessageBox *box = createMessageBox(above, QMessageBox::Information);
    box->setText(text);
    addCloseButton(box, closeRunsText());
    execMessageBox(box);
}

} // namespace

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
        refuse(begun.refusal, above);
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
            rows.follow(*step);
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
