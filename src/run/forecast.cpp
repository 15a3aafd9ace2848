// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/forecast.h"

#include "run/newname.h"
#include "run/spelling.h"

#include <QDir>

#include <limits>

using Entry = ForecastFolder::Entry;
using Kind = FileIdentity::Kind;
using State = FolderTraits::State;

namespace {

/// Names that a folder reads between two looks at the clock.
constexpr int namesAtOnce = 2000;

std::optional<Fate> fateIn(State state, Fate missing)
{
    switch (state) {
    case State::There:
        return std::nullopt;
    case State::Missing:
        return missing;
    case State::TooLongPath:
        return Fate::TooLong;
    case State::Unreadable:
        return Fate::Unknown;
    }
    Q_UNREACHABLE();
}

} // namespace

/// A row's move, when both of its folders are there.
struct Forecast::Step
{
    const FilePath &file;
    ForecastFolder &source;
    ForecastFolder &target;
    QStringView name;
    Entry *entry;
    /// Of the new name the last part.
    QStringView newName;
    /// Whether the new name leads elsewhere, if only by a detour.
    bool isDetour;
};

Forecast::Forecast(const DiskView &onView)
    : view(onView)
{
}

Forecast::~Forecast() = default;

void Forecast::add(const FilePath &file)
{
    folderAt(QStringView(file.path).first(file.nameAt)).addRow(file.name(), addedRows);
    ++addedRows;
}

bool Forecast::isReady(const FilePath &file, const QString &newName)
{
    if (!folderAt(QStringView(file.path).first(file.nameAt)).read(namesAtOnce))
        return false;
    if (!leadsElsewhere(newName) || NewName(newName).refusal)
        return true;
    const QString folder = file.sibling(newName.first(NewName(newName).lastPartAt));
    return folderAt(folder).read(namesAtOnce);
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
    ForecastFolder &source = readFolder(QStringView(file.path).first(file.nameAt));
    if (const auto fate = fateIn(source.traits().state, Fate::Missing))
        return *fate;
    const QStringView name = QStringView(file.path).sliced(file.nameAt);
    Entry *const entry = source.find(name);
    if (!entry || (!entry->isThere && entry->isSure))
        return Fate::Missing;
    if (newName == name)
        return entry->isSure ? Fate::Unchanged : Fate::Unknown;
    if (seen.lastPartAt == 0)
        return move({file, source, source, name, entry, newName, false}, outcome);
    ForecastFolder &target = readFolder(file.sibling(newName.first(seen.lastPartAt)));
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
    ForecastFolder &source = readFolder(QStringView(file.path).first(file.nameAt));
    const QStringView name = QStringView(file.path).sliced(file.nameAt);
    Entry *const entry = source.find(name);
    const bool isNone = !entry || (!entry->isThere && entry->isSure);
    if (isNone || (entry->isSure && (entry->kind ? entry->kind : kindAt(file.path)) != Kind::Folder))
        return Fate::Empty;
    source.doubt(entry, name);
    const qsizetype lastPartAt = NewName(newName).lastPartAt;
    ForecastFolder &target = readFolder(file.sibling(newName.first(lastPartAt)));
    const QStringView newLastPart = QStringView(newName).sliced(lastPartAt);
    target.doubt(target.find(newLastPart), newLastPart);
    noteMovedWay(file.path);
    noteMovedWay(QDir::cleanPath(file.sibling(newName)));
    return Fate::Unknown;
}

Fate Forecast::move(const Step &step, Outcome &outcome)
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
        noteMovedWay(step.file.path);
        noteMovedWay(target);
    }
    step.source.remove(step.entry, step.name);
    step.target.insert(place, step.newName, handledRows, kind);
    return Fate::Renamed;
}

/// The order is that in which the run learns of things.
std::optional<Fate> Forecast::refusalOf(const Step &step, const Entry *there, Outcome &outcome) const
{
    const FolderTraits &traits = step.target.traits();
    if (traits.volume != step.source.traits().volume)
        return Fate::NotAllowed;
    if (isLongerThan(step.newName, traits.longestName, traits.lengthUnit) ||
        isLongerThan(outcome.path, traits.longestPath, traits.pathUnit))
        return Fate::TooLong;
    if (there && there != step.entry)
        return takenBy(there->row, outcome);
    // The file itself, by another spelling.
    const bool onlyCase = !step.isDetour && step.name.compare(step.newName, Qt::CaseInsensitive) == 0;
    if (there && !(onlyCase && step.target.changesCase()))
        return Fate::Taken;
    if (!step.source.mayMove(step.file.path) || !traits.writable)
        return Fate::ReadOnly;
    if (const auto refusal = step.target.refusalOf(step.newName))
        return refusal;
    const bool isInside = &step.source == &step.target;
    if (step.target.mayClash(step.newName, isInside ? step.name : QStringView()))
        return Fate::Unknown;
    return std::nullopt;
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

ForecastFolder &Forecast::readFolder(QStringView path)
{
    ForecastFolder &folder = folderAt(path);
    while (!folder.read(std::numeric_limits<int>::max())) {
    }
    return folder;
}

ForecastFolder &Forecast::folderAt(QStringView path)
{
    if (lastFolder && path == lastPath)
        return *lastFolder;
    lastPath = path.toString();
    lastFolder = byPath.value(lastPath);
    if (!lastFolder) {
        lastFolder = newFolder(lastPath);
        byPath.insert(lastPath, lastFolder);
    }
    return *lastFolder;
}

ForecastFolder *Forecast::newFolder(const QString &path)
{
    const bool isUntold = leadsThroughMoved(path);
    // With a dot behind it a link to a folder is followed.
    const auto identity = isUntold ? std::nullopt : view.identity(path + u'.');
    if (identity) {
        ForecastFolder *&known = byIdentity[{identity->volume, identity->number}];
        if (!known)
            known = folders.emplace_back(std::make_unique<ForecastFolder>(view, path)).get();
        return known;
    }
    ForecastFolder *folder = folders.emplace_back(std::make_unique<ForecastFolder>(view, path)).get();
    if (isUntold)
        folder->giveUp();
    return folder;
}

void Forecast::noteMovedWay(const QString &path)
{
    movedWays.insert(path);
    const QString way = path + u'/';
    byPath.removeIf(
        [&way](const auto &folder) { return QString(QDir::cleanPath(folder.key()) + u'/').startsWith(way); });
    lastFolder = nullptr;
}

bool Forecast::leadsThroughMoved(const QString &path) const
{
    if (movedWays.isEmpty())
        return false;
    QString way = QDir::cleanPath(path);
    while (!way.isEmpty() && !movedWays.contains(way))
        way.truncate(way.lastIndexOf(u'/'));
    return !way.isEmpty();
}
