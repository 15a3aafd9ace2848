// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/undorun.h"

#include "platform/filelock.h"
#include "platform/sharedfile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString idOf(UndoStep::Result result)
{
    switch (result) {
    case UndoStep::Result::TakenBack:
        return idOf(Fate::Renamed);
    case UndoStep::Result::WasBack:
        return u"was-back"_s;
    case UndoStep::Result::Missing:
        return idOf(Fate::Missing);
    case UndoStep::Result::OtherFile:
        return idOf(Fate::OtherFile);
    case UndoStep::Result::Taken:
        return idOf(Fate::Taken);
    case UndoStep::Result::Refused:
        return u"refused"_s;
    }
    Q_UNREACHABLE();
}

Fate fateOf(const UndoStep &step)
{
    switch (step.result) {
    case UndoStep::Result::TakenBack:
    case UndoStep::Result::WasBack:
        return Fate::Renamed;
    case UndoStep::Result::Missing:
        return Fate::Missing;
    case UndoStep::Result::OtherFile:
        return Fate::OtherFile;
    case UndoStep::Result::Taken:
        return Fate::Taken;
    case UndoStep::Result::Refused:
        return step.why;
    }
    Q_UNREACHABLE();
}

namespace {

const JournalInfo *find(const QList<JournalInfo> &journals, const QString &name)
{
    const auto found = std::find_if(journals.begin(), journals.end(),
                                    [&](const JournalInfo &journal) { return journal.name == name; });
    return found == journals.end() ? nullptr : &*found;
}

/// Why a journal cannot be taken back.
UndoRun::Refusal refusalOf(const JournalInfo *journal)
{
    if (!journal)
        return UndoRun::Refusal::NothingToDo;
    if (journal->state == JournalInfo::State::InHand)
        return UndoRun::Refusal::InHand;
    if (journal->canTakeBack())
        return UndoRun::Refusal::None;
    const bool isOurs = journal->state == JournalInfo::State::Complete ||
                        journal->state == JournalInfo::State::Cancelled ||
                        journal->state == JournalInfo::State::Interrupted;
    return isOurs ? UndoRun::Refusal::NothingToDo : UndoRun::Refusal::NotOurs;
}

} // namespace

UndoRun::Begun UndoRun::begin(JournalFolder &folder, const QString &name, Disk &disk, const QString &program)
{
    QList<JournalInfo> journals = folder.list();
    if (const Refusal refusal = refusalOf(find(journals, name)); refusal != Refusal::None)
        return {.run = nullptr, .refusal = refusal};
    std::unique_ptr<UndoRun> run(new UndoRun(folder, name, disk));
    // Where it cannot be written, nobody else can write to it either.
    const bool isWritable = openShared(run->file, QIODevice::ReadWrite | QIODevice::ExistingOnly);
    if (isWritable && lockFile(run->file) == FileLock::HeldByAnother)
        return {.run = nullptr, .refusal = Refusal::InHand};
    // Once more: somebody may have taken it back before it was ours.
    journals = folder.list();
    const JournalInfo *journal = find(journals, name);
    if ((!isWritable && !openShared(run->file, QIODevice::ReadOnly)) || !journal || journal->standing == 0)
        return {.run = nullptr, .refusal = Refusal::NothingToDo};
    if (!folder.touchedBy(name).isEmpty())
        return {.run = nullptr, .refusal = Refusal::TouchedLater};
    run->gone = folder.takenBack(name, journals);
    run->time = journal->time;
    run->steps = journal->standing;
    run->entries.emplace(run->file);
    run->journal = folder.begin(program, run->steps, name, &run->createError);
    run->ended = false;
    return {.run = std::move(run)};
}

UndoRun::UndoRun(JournalFolder &folder, const QString &name, Disk &on)
    : journals(folder)
    , disk(on)
    , stamps(on)
    , file(folder.filePath(name))
{
}

UndoRun::~UndoRun()
{
    end(true);
}

std::optional<UndoStep> UndoRun::next()
{
    while (const auto entry = entries->next()) {
        if (!gone.contains(entry->number))
            return takeBack(*entry);
    }
    return std::nullopt;
}

UndoStep UndoRun::takeBack(const JournalEntry &entry)
{
    UndoStep step;
    step.from = entry.folder + u'/' + entry.to;
    step.to = entry.folder + u'/' + entry.from;
    step.nameAt = entry.folder.size() + 1;
    if (stamps.isAt(step.from, entry.file, time)) {
        step.result = move(entry, step);
    } else if (stamps.isAt(step.to, entry.file, time)) {
        step.result = UndoStep::Result::WasBack;
        if (journal)
            journal->kept(entry.number);
    } else {
        step.result = disk.identity(step.from) ? UndoStep::Result::OtherFile : UndoStep::Result::Missing;
    }
    return step;
}

UndoStep::Result UndoRun::move(const JournalEntry &entry, UndoStep &step)
{
    if (journal)
        journal->renaming({.takesBack = entry.number,
                           .folder = entry.folder,
                           .from = entry.to,
                           .to = entry.from,
                           .file = entry.file});
    const FilePath source{.path = step.from, .nameAt = step.nameAt};
    const RenameResult result = disk.rename(source, step.to);
    if (result == RenameResult::Done)
        return UndoStep::Result::TakenBack;
    step.why = fateOf(result);
    if (journal)
        journal->refused(idOf(step.why));
    if (result == RenameResult::TargetExists)
        return UndoStep::Result::Taken;
    return result == RenameResult::SourceMissing ? UndoStep::Result::Missing : UndoStep::Result::Refused;
}

void UndoRun::end(bool cancelled)
{
    if (std::exchange(ended, true))
        return;
    if (journal)
        journal->end(cancelled);
    file.close();
    journals.prune();
}

QString UndoRun::journalError() const
{
    return journal ? journal->error() : createError;
}
