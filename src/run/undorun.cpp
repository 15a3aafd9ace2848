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

void UndoneFiles::add(const UndoStep &step)
{
    const auto keyOf = [&](const QString &path) {
        return qHashMulti(0, path, step.file.volume, step.file.number);
    };
    const auto before = reached.constFind(keyOf(step.from));
    if (before == reached.constEnd()) {
        ++files;
    } else {
        doneFiles -= *before ? 1 : 0;
        reached.erase(before);
    }
    doneFiles += step.isDone() ? 1 : 0;
    reached.insert(keyOf(step.to), step.isDone());
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

/// Whether there may be exchanges in it: an undo of a planned run, a redo of that.
qint64 versionFor(const JournalInfo &journal, const QList<JournalInfo> &journals)
{
    const JournalInfo *root = &journal;
    while (root && !root->isRun())
        root = find(journals, root->takesBack);
    // Of what is gone it is not known.
    return !root || root->planned > 0 ? journalVersion : 1;
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
    run->journal = folder.begin({.version = versionFor(*journal, journals),
                                 .time = {},
                                 .program = program,
                                 .machine = {},
                                 .rows = run->steps,
                                 .takesBack = name},
                                &run->createError);
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
    if (const auto step = std::exchange(pending, std::nullopt))
        return step;
    const auto standing = nextEntry();
    if (!standing)
        return std::nullopt;
    return standing->entry.other ? takeExchangeBack(standing->entry) : takeBack(*standing);
}

std::optional<TakenBack::Standing> UndoRun::nextEntry()
{
    while (auto entry = entries->next()) {
        if (auto standing = gone.standing(std::move(*entry)))
            return standing;
    }
    return std::nullopt;
}

namespace {

/// Of its one file.
UndoStep stepOf(const JournalEntry &entry)
{
    UndoStep step;
    step.from = entry.folder + u'/' + entry.to;
    step.to = entry.folder + u'/' + entry.from;
    step.nameAt = entry.folder.size() + 1;
    step.file = entry.file;
    return step;
}

} // namespace

std::optional<UndoStep> UndoRun::skip()
{
    if (const auto step = std::exchange(pending, std::nullopt))
        return step;
    const auto standing = nextEntry();
    if (!standing)
        return std::nullopt;
    if (standing->entry.other)
        pending = stepOf(otherOf(standing->entry));
    return stepOf(standing->entry);
}

UndoStep UndoRun::takeBack(const TakenBack::Standing &standing)
{
    const JournalEntry &entry = standing.entry;
    UndoStep step = stepOf(entry);
    if (stamps.isAt(step.from, entry.file, time)) {
        step.result = move(standing, step);
    } else if (stamps.isAt(step.to, entry.file, time)) {
        step.result = UndoStep::Result::WasBack;
        if (journal)
            journal->kept({.takesBack = entry.number, .half = standing.half});
    } else {
        step.result = resultOfLost(standing, step);
    }
    return step;
}

UndoStep::Result UndoRun::move(const TakenBack::Standing &standing, UndoStep &step)
{
    const JournalEntry &entry = standing.entry;
    if (journal)
        journal->renaming({.takesBack = entry.number,
                           .folder = entry.folder,
                           .from = entry.to,
                           .to = entry.from,
                           .file = entry.file,
                           .half = standing.half});
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

/// Both files go back at once. Where only one of them is left, and the other's name is free, it goes alone.
UndoStep UndoRun::takeExchangeBack(const JournalEntry &entry)
{
    const TakenBack::Standing one = TakenBack::halfOf(entry, 1);
    const TakenBack::Standing two = TakenBack::halfOf(entry, 2);
    UndoStep step = stepOf(one.entry);
    UndoStep other = stepOf(two.entry);
    const bool isThere = stamps.isAt(step.from, step.file, time);
    const bool isOtherThere = stamps.isAt(other.from, other.file, time);
    if (isThere && isOtherThere) {
        step.result = exchange(entry, step);
        other.result = step.result;
        other.why = step.why;
    } else if (stamps.isAt(step.to, step.file, time) && stamps.isAt(other.to, other.file, time)) {
        step.result = other.result = UndoStep::Result::WasBack;
        if (journal)
            journal->kept({.takesBack = entry.number, .files = 2});
    } else {
        step = takeBack(one);
        other = takeBack(two);
    }
    pending = other;
    return step;
}

/// Of a ring another file may have the name again that the lost one had last: nobody else took that.
UndoStep::Result UndoRun::resultOfLost(const TakenBack::Standing &standing, const UndoStep &step)
{
    const bool isThere = disk.identity(step.from).has_value();
    return isThere && (standing.half == 0 || !isExchanged(step.from)) ? UndoStep::Result::OtherFile
                                                                      : UndoStep::Result::Missing;
}

bool UndoRun::isExchanged(const QString &path)
{
    if (!exchanged) {
        exchanged.emplace();
        QFile again(file.fileName());
        if (!openShared(again, QIODevice::ReadOnly))
            return false;
        BackwardEntries told(again);
        while (const auto entry = told.next()) {
            if (entry->other) {
                exchanged->insert(entry->file.number, entry->file);
                exchanged->insert(entry->other->number, *entry->other);
            }
        }
    }
    const auto there = disk.identity(path);
    const auto known = there ? exchanged->constFind(there->number) : exchanged->constEnd();
    return known != exchanged->constEnd() && stamps.isAt(path, *known, time);
}

UndoStep::Result UndoRun::exchange(const JournalEntry &entry, UndoStep &step)
{
    if (journal)
        journal->renaming({.takesBack = entry.number,
                           .folder = entry.folder,
                           .from = entry.to,
                           .to = entry.from,
                           .file = entry.file,
                           .other = &*entry.other});
    const FilePath source{.path = step.from, .nameAt = step.nameAt};
    const auto result = disk.exchange(source, step.to);
    if (result == RenameResult::Done)
        return UndoStep::Result::TakenBack;
    step.why = fateOf(result.value_or(RenameResult::Other));
    if (journal)
        journal->refused(idOf(step.why));
    return UndoStep::Result::Refused;
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
