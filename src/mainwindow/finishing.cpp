// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/finishing.h"

#include "core/applog.h"
#include "dialogs/runtexts.h"
#include "mainwindow/aside.h"
#include "mainwindow/explorer.h"
#include "mainwindow/fates.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/plannedreport.h"
#include "mainwindow/plannedtexts.h"
#include "mainwindow/rowsoffiles.h"
#include "mainwindow/runhistory.h"
#include "run/finishrun.h"
#include "run/systemdisk.h"

#include <QAbstractButton>
#include <QCoreApplication>

namespace {

/// The window stays alive while the journal and the folders are read.
FinishRun::Begun beginFinishAside(JournalFolder &journals, const QString &journal, Disk &disk,
                                  const DiskView &view)
{
    FinishRun::Begun begun;
    const Aside aside([&] { begun = FinishRun::begin(journals, journal, disk, view); });
    while (!aside.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return begun;
}

/// Before the first move the journal is read once more, and all files are looked at.
bool nextAside(FinishRun &run)
{
    bool goesOn = false;
    const Aside aside([&] { goesOn = run.next(); });
    while (!aside.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return goesOn;
}

} // namespace

Finishing::Finishing(WindowParts windowParts, RunHistory &runHistory)
    : parts(std::move(windowParts))
    , history(runHistory)
{
}

void Finishing::finish(const QString &journal, QWidget *above)
{
    SystemDisk disk;
    const SystemDiskView view;
    RunProgress progress(above, 0);
    const FinishRun::Begun begun = beginFinishAside(history.journals(), journal, disk, view);
    if (!begun.run) {
        progress.close();
        history.refresh();
        tellRefusal(begun.refusal, above);
        return;
    }
    FinishRun &run = *begun.run;
    AppLog::instance()->append(finishStartedText());
    parts.preview.setChecked(false);
    PlannedReport report;
    report.figures.total = run.count();
    Failures failures;
    if (run.refused() > 0)
        tellRefused(run, report, failures);
    else
        renameRest(run, progress, report, failures);
    progress.close();
    parts.refreshRows();
    parts.fates.showFailures(failures);
    history.pruneAndRefresh();
    (void)showPlannedReport(above, report, failures);
}

void Finishing::tellRefused(const FinishRun &run, PlannedReport &report, Failures &failures) const
{
    RowsOfFiles rows(parts.list);
    for (int row = 0; row < run.count(); ++row) {
        const Outcome outcome = run.outcome(row);
        if (!outcome.isRenamed() && outcome.reason != Fate::Unchanged)
            tellNotRenamed({rows.rowOf(run.file(row).path), run.file(row), outcome}, failures);
    }
    report.figures.failed = run.refused();
    report.note = notAllCanBeText();
}

void Finishing::renameRest(FinishRun &run, RunProgress &progress, PlannedReport &report,
                           Failures &failures) const
{
    const SelectionKept selection(parts.explorer, parts.list);
    RowsOfFiles rows(parts.list);
    progress.setTotal(run.total());
    // Who cancels has the run as it was: interrupted.
    bool goesOn = !progress.isCancelled() && nextAside(run);
    while (goesOn)
        goesOn = progress.goOn(run.run()->renamed()) && run.next();
    run.end();
    const PlannedRun *planned = run.run();
    const QList<PlannedRun::Standing> standing =
        planned ? planned->standing() : QList<PlannedRun::Standing>();
    for (const auto &[row, path] : standing)
        rows.follow(run.file(row).path, path);
    // Those that had their new names before count, too.
    report.figures.processed = run.count() - run.total() + (planned ? planned->renamed() : 0);
    if (const int row = planned ? planned->failedRow() : -1; row >= 0) {
        ++report.figures.failed;
        Outcome outcome = run.outcome(row);
        outcome.fate = outcome.reason = planned->failure();
        tellNotRenamed({rows.rowOf(run.file(row).path), run.file(row), outcome}, failures);
    }
    if (!run.journalError().isEmpty())
        report.note = needsJournalText();
    else if (report.figures.processed < report.figures.total)
        report.note = stillUnfinishedText();
}
