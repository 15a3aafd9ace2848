// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/plannedrenaming.h"

#include "core/applog.h"
#include "desktop/messagebox.h"
#include "mainwindow/aside.h"
#include "mainwindow/explorer.h"
#include "mainwindow/fates.h"
#include "mainwindow/listwidgetfiles.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/planinhand.h"
#include "mainwindow/plannedreport.h"
#include "mainwindow/plannedtexts.h"
#include "mainwindow/runhistory.h"
#include "run/systemdisk.h"

#include <QAbstractButton>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// Before the first move all rows are written ahead. The window stays alive.
bool beginAside(PlannedRun &run)
{
    bool goesOn = false;
    const Aside aside([&] { goesOn = run.next(); });
    while (!aside.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return goesOn;
}

} // namespace

PlannedRenaming::PlannedRenaming(WindowParts windowParts, RunHistory &runHistory, Namer namer)
    : parts(std::move(windowParts))
    , history(runHistory)
    , newName(std::move(namer))
{
}

void PlannedRenaming::run()
{
    // What can be is planned anew: the question may have been open for hours.
    if (rename(Rows::All))
        (void)rename(Rows::ThoseThatCan);
}

/// True when not all rows can be renamed, and those that can shall be.
bool PlannedRenaming::rename(Rows rows)
{
    QWidget *window = parts.list.window();
    AppLog::instance()->append(MainWindow::tr("File renaming started"));
    RunProgress progress(window, parts.list.count());
    parts.preview.setChecked(false);
    PlannedReport report;
    report.figures = {.total = parts.list.count(), .kept = 0};
    Failures failures;
    PlanInHand inHand;
    const Plan &plan = inHand.plan;
    if (!makePlan(inHand, progress)) {
        report.note = cancelledAndTakenBackText();
    } else {
        report.figures.kept = plan.kept();
        report.figures.failed = plan.refused();
        tellRefused(inHand, progress, failures);
        report.offersRest = rows == Rows::All && plan.refused() > 0 && !plan.order().empty();
        if (rows == Rows::All && plan.refused() > 0)
            report.note = notAllCanBeText();
        else if (!plan.order().empty())
            carryOut(inHand, progress, report, failures);
    }
    progress.close();
    parts.refreshRows();
    parts.fates.showFailures(failures);
    history.pruneAndRefresh();
    return showPlannedReport(window, report, failures);
}

/// False when it was cancelled.
bool PlannedRenaming::makePlan(PlanInHand &inHand, RunProgress &progress) const
{
    FilePaths filePaths;
    for (int row = 0; row < parts.list.count(); ++row) {
        const FilePath file = filePaths.split(parts.list.path(row));
        inHand.plan.add(file, newName(file.name(), row));
        if (progress.isDue() && !progress.goOn(0))
            return false;
    }
    const Aside aside([&inHand] { inHand.plan.make(); });
    while (!aside.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return !progress.isCancelled();
}

void PlannedRenaming::tellRefused(const PlanInHand &inHand, RunProgress &progress, Failures &failures) const
{
    for (int row = 0; row < parts.list.count() && inHand.plan.refused() > 0; ++row) {
        const Outcome outcome = inHand.outcome(row);
        if (!outcome.isRenamed() && outcome.reason != Fate::Unchanged)
            tellNotRenamed({row, inHand.plan.file(row), outcome}, failures);
        if (progress.isDue())
            (void)progress.goOn(0);
    }
}

void PlannedRenaming::carryOut(const PlanInHand &inHand, RunProgress &progress, PlannedReport &report,
                               Failures &failures) const
{
    const Plan &plan = inHand.plan;
    QString error;
    const auto journal = history.journals().beginPlanned(QCoreApplication::applicationVersion(),
                                                         static_cast<qint64>(plan.order().size()), &error);
    if (!journal) {
        qDebug("no journal: %s", qPrintable(error));
        report.note = needsJournalText();
        return;
    }
    SystemDisk disk;
    PlannedRun run(disk, plan, journal.get());
    const SelectionKept selection(parts.explorer, parts.list);
    run.end(goThrough(run, plan, progress));
    followFiles(run, plan, progress);
    report.figures.processed = run.renamed();
    if (const int row = run.failedRow(); row >= 0) {
        ++report.figures.failed;
        tellNotRenamed({row, plan.file(row), {run.failure(), run.failure(), -1, plan.target(row)}}, failures);
    }
    if (run.state() == PlannedRun::State::TakenBack)
        report.note = run.failedRow() >= 0 ? failedAndTakenBackText() : cancelledAndTakenBackText();
    else if (run.state() == PlannedRun::State::Stuck)
        tellStanding(run, plan, report, failures);
}

/// What stands when the run is over.
PlannedRun::Rest PlannedRenaming::goThrough(PlannedRun &run, const Plan &plan, RunProgress &progress) const
{
    progress.setTotal(static_cast<int>(plan.order().size()));
    bool isAsked = false;
    for (bool goesOn = beginAside(run); goesOn; goesOn = run.next()) {
        if (progress.goOn(run.renamed()) || isAsked)
            continue;
        isAsked = true;
        if (!wantsAllBack(run, plan)) {
            // No file keeps a name that is neither its old nor its new one.
            while (run.isBetween() && run.next())
                (void)progress.goOn(run.renamed());
            return PlannedRun::Rest::IsKept;
        }
        run.takeBack();
        progress.insist();
    }
    return PlannedRun::Rest::StaysOpen;
}

void PlannedRenaming::tellStanding(const PlannedRun &run, const Plan &plan, PlannedReport &report,
                                   Failures &failures) const
{
    const QList<PlannedRun::Standing> standing = run.standing();
    for (const auto &[row, path] : standing)
        tellNotPutBack(row, plan.file(row), path, failures);
    report.note = cannotGoBackText(standing.size());
}

bool PlannedRenaming::wantsAllBack(const PlannedRun &run, const Plan &plan) const
{
    QWidget *window = parts.list.window();
    // The program ends: nobody is there to answer.
    if (!window->isVisible())
        return true;
    QMessageBox *box = createMessageBox(window, QMessageBox::Question);
    box->setObjectName(u"boxCancelled"_s);
    box->setText(cancelledQuestion(run.renamed(), static_cast<int>(plan.order().size())));
    addMessageButton(box, QMessageBox::Yes, putEverythingBackText(), u":/img/undo.png"_s);
    addMessageButton(box, QMessageBox::No, keepWhatIsDoneText(), u":/img/save.png"_s);
    box->setDefaultButton(QMessageBox::Yes);
    box->setEscapeButton(QMessageBox::Yes);
    return execMessageBox(box) != QMessageBox::No;
}

/// Rows have the paths of their files again.
void PlannedRenaming::followFiles(const PlannedRun &run, const Plan &plan, RunProgress &progress) const
{
    const QList<PlannedRun::Standing> standing = run.standing();
    for (const auto &[row, path] : standing) {
        // Events are processed meanwhile.
        if (row < parts.list.count() && parts.list.path(row) == plan.file(row).path)
            parts.list.setPath(row, path);
        if (progress.isDue())
            (void)progress.goOn(run.renamed());
    }
}
