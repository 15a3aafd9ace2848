// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/finishrun.h"

#include "platform/sharedfile.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

FinishRun::Begun FinishRun::begin(JournalFolder &folder, const QString &name, Disk &disk,
                                  const DiskView &view)
{
    using Refusal = UndoRun::Refusal;
    const auto refused = [](Refusal refusal) {
        return Begun{.run = nullptr, .refusal = refusal};
    };
    const auto info = folder.find(name);
    if (info && info->state == JournalInfo::State::InHand)
        return refused(Refusal::InHand);
    if (!info || !info->canFinish())
        return refused(Refusal::NothingToDo);
    std::unique_ptr<FinishRun> run(new FinishRun(folder, disk, view));
    run->journal = Journal::reopen(folder.filePath(name), &run->lastError);
    if (!run->journal && run->lastError.isEmpty())
        return refused(Refusal::InHand);
    if (!folder.touchedBy(name).isEmpty())
        return refused(Refusal::TouchedLater);
    // Only now: somebody may have taken it back before it was ours.
    const QList<JournalInfo> journals = folder.list();
    QFile file(folder.filePath(name));
    if (!openShared(file, QIODevice::ReadOnly))
        return refused(Refusal::NothingToDo);
    const JournalSummary summary = summaryOf(file);
    auto told = PlanJournal::read(file, info->planned, folder.takenBack(name, journals));
    if (!told || !summary.header)
        return refused(Refusal::NotOurs);
    if (summary.figures.state != JournalFigures::State::Running)
        return refused(Refusal::NothingToDo);
    run->told = std::move(*told);
    run->figures = summary.figures;
    run->makePlan(summary.header->time);
    return {.run = std::move(run)};
}

FinishRun::FinishRun(JournalFolder &folder, Disk &on, const DiskView &view)
    : journals(folder)
    , disk(on)
    , plan(view)
{
}

FinishRun::~FinishRun()
{
    end();
}

void FinishRun::makePlan(const QDateTime &begun)
{
    FileStamps stamps(disk);
    QSet<QString> places;
    for (const PlanJournal::Row &row : told.rows)
        places.insert(row.places.constLast());
    for (int row = 0; row < count(); ++row) {
        const PlanJournal::Row &wished = told.rows[static_cast<size_t>(row)];
        const auto place = placeOf(wished, places, stamps, begun);
        if (!place)
            lost.insert(row, disk.identity(wished.places.constLast()) ? Fate::OtherFile : Fate::Missing);
        addToPlan(wished, place.value_or(wished.places.constLast()));
    }
    plan.make();
    for (int row = 0; row < count(); ++row) {
        const Fate fate = outcome(row).reason;
        refusedRows += fate == Fate::Renamed || fate == Fate::Unchanged ? 0 : 1;
    }
}

/// The last thing that the run told may not have been done, and the last that an undo told may have been.
std::optional<QString> FinishRun::placeOf(const PlanJournal::Row &row, const QSet<QString> &places,
                                          FileStamps &stamps, const QDateTime &begun)
{
    const QString &last = row.places.constLast();
    if (stamps.isAt(last, row.file, begun))
        return last;
    const qsizetype moves = row.places.size() - 1;
    if (moves == 0)
        return std::nullopt;
    const QString &before = row.places.at(moves - 1);
    // Without numbers another row's file may look the same.
    if ((row.file.number == 0 && places.contains(before)) || !stamps.isAt(before, row.file, begun))
        return std::nullopt;
    undone.insert(row.entry, row.filesOfEntry);
    return before;
}

void FinishRun::addToPlan(const PlanJournal::Row &row, const QString &place)
{
    const QString target = row.folder + u'/' + row.to;
    const FilePath file = FilePath::of(place);
    if (QDir::cleanPath(target) == file.path)
        plan.add(file, file.name());
    else if (file.folder() == row.folder)
        plan.add(file, row.to);
    else
        plan.add(file, QDir(file.folder().toString() + u'/').relativeFilePath(target));
}

Outcome FinishRun::outcome(int row) const
{
    Outcome outcome = plan.outcome(row);
    if (const auto fate = lost.constFind(row); fate != lost.constEnd())
        outcome.fate = outcome.reason = *fate;
    return outcome;
}

bool FinishRun::next()
{
    if (refusedRows > 0 || !journal || (!planned && !resume()))
        return false;
    return planned->next();
}

bool FinishRun::resume()
{
    if (!lastError.isEmpty())
        return false;
    if (!journal->resume(told.size, told.nextEntry, figures)) {
        lastError = journal->error();
        return false;
    }
    for (const auto &[entry, files] : undone.asKeyValueRange())
        journal->takenBack({.number = entry, .files = files});
    planned = std::make_unique<PlannedRun>(disk, plan, journal.get());
    return true;
}

void FinishRun::takeBack()
{
    if (planned)
        planned->takeBack();
}

void FinishRun::end(PlannedRun::Rest rest)
{
    if (std::exchange(ended, true))
        return;
    if (planned)
        planned->end(rest);
    if (journal && lastError.isEmpty())
        lastError = journal->error();
    journal.reset();
    journals.prune();
}

QString FinishRun::journalError() const
{
    return journal && lastError.isEmpty() ? journal->error() : lastError;
}
