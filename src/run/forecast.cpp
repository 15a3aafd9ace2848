// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/forecast.h"

#include "run/newname.h"

#include <QDir>

using Entry = ForecastFolder::Entry;
using Kind = FileIdentity::Kind;

namespace {

/// Names that a folder reads between two looks at the clock.
constexpr int namesAtOnce = 2000;

} // namespace

Forecast::Forecast(const DiskView &onView)
    : view(onView)
    , folders(onView)
{
}

Forecast::~Forecast() = default;

void Forecast::add(const FilePath &file)
{
    folders.at(QStringView(file.path).first(file.nameAt))
        .addRow(QStringView(file.path).sliced(file.nameAt), addedRows);
    ++addedRows;
}

bool Forecast::isReady(const FilePath &file, const QString &newName)
{
    if (!folders.at(QStringView(file.path).first(file.nameAt)).read(namesAtOnce))
        return false;
    if (!leadsElsewhere(newName) || NewName(newName).refusal)
        return true;
    const QString folder = file.sibling(newName.first(NewName(newName).lastPartAt));
    return folders.at(folder).read(namesAtOnce);
}

Outcome Forecast::next(const FilePath &file, const QString &newName)
{
    Outcome outcome;
    outcome.path = file.sibling(newName);
    outcome.reason = reasonFor(file, newName, outcome);
    const bool isSeparator = leadsElsewhere(newName) && outcome.reason != Fate::NoText;
    outcome.fate = isSeparator ? Fate::Separator : outcome.reason;
    ++handledRows;
    return outcome;
}

Fate Forecast::reasonFor(const FilePath &file, const QString &newName, Outcome &outcome)
{
    const NewName seen(newName);
    if (seen.refusal == Fate::Empty && newName.size() > 1 && seen.lastPartAt == newName.size())
        return refuseAllButFolders(file, newName.first(newName.size() - 1));
    if (seen.refusal)
        return *seen.refusal;
    ForecastFolder &source = folders.read(QStringView(file.path).first(file.nameAt));
    if (const auto fate = fateIn(source.traits().state, Fate::Missing))
        return *fate;
    const QStringView name = QStringView(file.path).sliced(file.nameAt);
    Entry *const entry = source.find(name);
    if (!entry || (!entry->isThere && entry->isSure))
        return Fate::Missing;
    if (newName == name)
        return entry->isSure ? Fate::Unchanged : Fate::Unknown;
    if (isPathTooLong(file, newName, source.traits()))
        return entry->isSure ? Fate::TooLong : Fate::Unknown;
    if (seen.lastPartAt == 0)
        return move({file, source, source, name, entry, newName, false}, outcome);
    ForecastFolder &target = folders.read(file.sibling(newName.first(seen.lastPartAt)));
    if (const auto fate = fateIn(target.traits().state, Fate::NoFolder)) {
        if (*fate == Fate::Unknown)
            source.doubt(entry, name);
        // A file that may be gone is missing before its new folder is.
        return entry->isSure ? *fate : Fate::Unknown;
    }
    return move({file, source, target, name, entry, QStringView(newName).sliced(seen.lastPartAt), true},
                outcome);
}

/// Of a folder that took the place of a row's file: systems may take a separator at the end of its new name.
Fate Forecast::refuseAllButFolders(const FilePath &file, const QString &newName)
{
    ForecastFolder &source = folders.read(QStringView(file.path).first(file.nameAt));
    const QStringView name = QStringView(file.path).sliced(file.nameAt);
    Entry *const entry = source.find(name);
    const bool isNone = !entry || (!entry->isThere && entry->isSure);
    if (isNone || (entry->isSure && (entry->kind ? entry->kind : kindAt(file.path)) != Kind::Folder))
        return Fate::Empty;
    source.doubt(entry, name);
    const qsizetype lastPartAt = NewName(newName).lastPartAt;
    ForecastFolder &target = folders.read(file.sibling(newName.first(lastPartAt)));
    const QStringView newLastPart = QStringView(newName).sliced(lastPartAt);
    target.doubt(target.find(newLastPart), newLastPart);
    folders.noteMovedWay(file.path);
    folders.noteMovedWay(QDir::cleanPath(file.sibling(newName)));
    return Fate::Unknown;
}

Fate Forecast::move(const FolderStep &step, Outcome &outcome)
{
    Entry *const place = step.target.find(step.newName);
    const bool isSure = step.entry->isSure && (!place || place->isSure);
    const auto refusal = isSure ? refusalOf(step, place && place->isThere ? place : nullptr, outcome)
                                : std::optional(Fate::Unknown);
    if (refusal == Fate::Unknown) {
        step.source.doubt(step.entry, step.name);
        step.target.doubt(place, step.newName);
    }
    if (refusal)
        return *refusal;
    const auto kind = step.entry->kind ? step.entry->kind : kindAt(step.file.path);
    if (kind == Kind::Folder || kind == Kind::Link) {
        const QString target = QDir::cleanPath(outcome.path);
        if (kind == Kind::Folder && target.startsWith(step.file.path + u'/'))
            return Fate::NotAllowed;
        folders.noteMovedWay(step.file.path);
        folders.noteMovedWay(target);
    }
    step.source.remove(step.entry, step.name);
    step.target.insert(place, step.newName, handledRows, kind);
    return Fate::Renamed;
}

/// The order is that in which the run learns of things.
std::optional<Fate> Forecast::refusalOf(const FolderStep &step, const Entry *there, Outcome &outcome) const
{
    if (const auto refusal = step.refusalOfWay())
        return refusal;
    if (there && there != step.entry)
        return takenBy(there->row, outcome);
    // The file itself, by another spelling.
    if (there && !step.isChangeOfCase())
        return Fate::Taken;
    return step.refusalOfName();
}

Fate Forecast::takenBy(int row, Outcome &outcome) const
{
    if (row < 0)
        return Fate::Taken;
    outcome.row = row;
    return row < handledRows ? Fate::TakenByRow : Fate::LeavesLater;
}

std::optional<Kind> Forecast::kindAt(const QString &path) const
{
    const auto there = view.identity(path);
    return there ? std::optional(there->kind) : std::nullopt;
}
