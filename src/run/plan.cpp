// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/plan.h"

#include "run/newname.h"

#include <QDir>

using Entry = ForecastFolder::Entry;
using Kind = FileIdentity::Kind;

Plan::Plan(const DiskView &onView)
    : view(onView)
    , folders(onView)
{
}

Plan::~Plan() = default;

void Plan::add(const FilePath &file, const QString &newName)
{
    rows.push_back({file, newName});
    folders.at(QStringView(file.path).first(file.nameAt)).expectRow();
}

void Plan::make()
{
    const int count = static_cast<int>(rows.size());
    // Before anything else, as nothing is told of rows whose way may be another one by then.
    for (int row = 0; row < count; ++row)
        findFile(row);
    for (int row = 0; row < count; ++row)
        rows[static_cast<size_t>(row)].fate = claimName(row);
    for (int row = 0; row < count; ++row)
        findBlocker(row);
    for (int row = 0; row < count; ++row)
        refuseWaiters(row);
    ordered.reserve(rows.size());
    for (const bool isRing : {false, true}) {
        for (int row = 0; row < count; ++row)
            orderFrom(row, isRing);
    }
    for (const Row &row : rows) {
        keptRows += row.fate == Fate::Unchanged ? 1 : 0;
        refusedRows += row.fate != Fate::Unchanged && row.fate != Fate::Renamed ? 1 : 0;
    }
}

Outcome Plan::outcome(int number) const
{
    const Row &row = rows.at(static_cast<size_t>(number));
    const bool isSeparator = leadsElsewhere(row.newName) && row.fate != Fate::NoText;
    return {.fate = isSeparator ? Fate::Separator : row.fate,
            .reason = row.fate,
            .row = row.fate == Fate::TakenByRow ? row.blocker : -1,
            .path = target(number)};
}

QString Plan::target(int number) const
{
    const Row &row = rows.at(static_cast<size_t>(number));
    return row.file.sibling(row.newName);
}

ForecastFolder &Plan::sourceOf(const Row &row)
{
    return folders.read(QStringView(row.file.path).first(row.file.nameAt));
}

ForecastFolder &Plan::targetOf(const Row &row, qsizetype lastPartAt)
{
    return lastPartAt == 0 ? sourceOf(row) : folders.read(row.file.sibling(row.newName.first(lastPartAt)));
}

void Plan::findFile(int number)
{
    Row &row = rows[static_cast<size_t>(number)];
    row.entry = sourceOf(row).find(QStringView(row.file.path).sliced(row.file.nameAt));
    if (!row.entry)
        return;
    // Of two rows of one file the first one moves it.
    if (row.entry->row < 0)
        row.entry->row = number;
    noteMovedWay(row);
}

void Plan::noteMovedWay(const Row &row)
{
    const auto known = row.entry->kind;
    const bool isKept = row.newName == QStringView(row.file.path).sliced(row.file.nameAt);
    if (known == Kind::File || isKept || NewName(row.newName).refusal)
        return;
    const auto there = known ? std::nullopt : view.identity(row.file.path);
    const auto kind = there ? std::optional(there->kind) : known;
    if (kind != Kind::Folder && kind != Kind::Link)
        return;
    folders.noteMovedWay(row.file.path);
    folders.noteMovedWay(QDir::cleanPath(row.file.sibling(row.newName)));
}

/// All that keeps a row from its new name, but for those that have the name now.
Fate Plan::claimName(int number)
{
    const Row &row = rows[static_cast<size_t>(number)];
    const NewName seen(row.newName);
    if (seen.refusal)
        return *seen.refusal;
    ForecastFolder &source = sourceOf(row);
    if (const auto fate = fateIn(source.traits().state, Fate::Missing))
        return *fate;
    if (!row.entry || !row.entry->isThere || row.entry->row != number)
        return Fate::Missing;
    const QStringView name = QStringView(row.file.path).sliced(row.file.nameAt);
    if (row.newName == name)
        return Fate::Unchanged;
    if (isPathTooLong(row.file, row.newName, source.traits()))
        return Fate::TooLong;
    ForecastFolder &target = targetOf(row, seen.lastPartAt);
    if (const auto fate = fateIn(target.traits().state, Fate::NoFolder))
        return *fate;
    return claim({row.file, source, target, name, row.entry, QStringView(row.newName).sliced(seen.lastPartAt),
                  seen.lastPartAt > 0},
                 number);
}

Fate Plan::claim(const FolderStep &step, int number)
{
    Row &row = rows[static_cast<size_t>(number)];
    if (const auto refusal = step.refusalOfWay())
        return *refusal;
    if (const auto refusal = step.refusalOfName())
        return *refusal;
    if (step.entry->kind == Kind::Folder &&
        QDir::cleanPath(row.file.sibling(row.newName)).startsWith(row.file.path + u'/'))
        return Fate::NotAllowed;
    const Entry &place = step.target.claim(step.newName, number);
    if (place.taker != number) {
        row.blocker = place.taker;
        return Fate::TakenByRow;
    }
    if (place.isThere && place.row != number) {
        row.isHeld = true;
        row.blocker = place.row;
    }
    const auto isExact = [](const ForecastFolder &folder) {
        return folder.traits().spelling == FolderTraits::Spelling::Exact;
    };
    row.isExact = isExact(step.source) && isExact(step.target);
    row.isOwnName =
        place.isThere && place.row == number && &step.source == &step.target && !step.isChangeOfCase();
    return Fate::Renamed;
}

/// Who has the name now that a row claimed.
void Plan::findBlocker(int number)
{
    Row &row = rows[static_cast<size_t>(number)];
    if (row.fate != Fate::Renamed)
        return;
    if (!row.isHeld)
        return;
    if (row.blocker < 0)
        row.fate = Fate::Taken;
    else
        rows[static_cast<size_t>(row.blocker)].waiter = number;
}

/// Whoever waits for the name of a row that stays does so, too.
void Plan::refuseWaiters(int number)
{
    while (rows[static_cast<size_t>(number)].fate != Fate::Renamed) {
        const int waiter = std::exchange(rows[static_cast<size_t>(number)].waiter, -1);
        if (waiter < 0)
            return;
        rows[static_cast<size_t>(waiter)].fate = Fate::TakenByRow;
        number = waiter;
    }
}

/// A line begins with the row whose new name is free; what is left when all lines are ordered are rings. The
/// first of a ring waits for the name of the next: they are ordered as a line is, from its other end.
void Plan::orderFrom(int number, bool isRing)
{
    const Row &first = rows[static_cast<size_t>(number)];
    if (first.fate != Fate::Renamed || first.isOrdered || (!isRing && first.blocker >= 0))
        return;
    const auto begin = static_cast<qsizetype>(ordered.size());
    for (int next = number; next >= 0 && !rows[static_cast<size_t>(next)].isOrdered;) {
        Row &row = rows[static_cast<size_t>(next)];
        row.isOrdered = true;
        ordered.push_back(next);
        next = row.waiter;
    }
    orderedGroups.push_back({begin, static_cast<qsizetype>(ordered.size()), isRing});
}
