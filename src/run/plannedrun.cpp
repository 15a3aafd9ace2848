// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/plannedrun.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

/// So many third names are tried when something has them.
constexpr int mostThirdNames = 100;

/// Hidden, short, and nothing of the file's own name.
QString thirdName()
{
    return u".orv-%1"_s.arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
}

FilePath sibling(const FilePath &file, const QString &path)
{
    return path.startsWith(QStringView(file.path).first(file.nameAt))
               ? FilePath{.path = path, .nameAt = file.nameAt}
               : FilePath::of(path);
}

} // namespace

PlannedRun::PlannedRun(Disk &on, const Plan &ofPlan)
    : disk(on)
    , plan(ofPlan)
{
    moves.reserve(plan.order().size());
    for (const Plan::Group &group : plan.groups())
        addMoves(group);
}

PlannedRun::~PlannedRun() = default;

/// The last row of a ring makes room for the first by a third name; then the others are a line.
void PlannedRun::addMoves(const Plan::Group &group)
{
    const auto rowAt = [this](qsizetype place) {
        return plan.order()[static_cast<size_t>(place)];
    };
    const qsizetype end = group.isRing ? group.end - 1 : group.end;
    if (group.isRing)
        moves.push_back({rowAt(end), Leg::ToThird});
    for (qsizetype place = group.begin; place < end; ++place)
        addMoves(rowAt(place));
    if (group.isRing)
        moves.push_back({rowAt(end), Leg::FromThird});
}

void PlannedRun::addMoves(int row)
{
    if (!plan.needsDetour(row)) {
        moves.push_back({row, Leg::Whole});
        return;
    }
    moves.push_back({row, Leg::ToThird});
    moves.push_back({row, Leg::FromThird});
}

bool PlannedRun::next()
{
    if (now == State::GoingBack)
        return takeLastBack();
    if (now != State::GoingOn)
        return false;
    if (made == moves.size()) {
        now = State::Done;
        return false;
    }
    const Move &move = moves[made];
    const RenameResult result = make(move);
    if (result == RenameResult::Done) {
        ++made;
        renamedRows += move.leg == Leg::ToThird ? 0 : 1;
    } else {
        failed = move.row;
        why = fateOf(result);
        takeBack();
    }
    return true;
}

void PlannedRun::takeBack()
{
    if (now == State::GoingOn)
        now = State::GoingBack;
}

RenameResult PlannedRun::make(const Move &move)
{
    if (move.leg == Leg::ToThird)
        return moveToThird(move.row);
    return disk.rename(sibling(plan.file(move.row), before(move)), after(move));
}

RenameResult PlannedRun::moveToThird(int row)
{
    RenameResult result = RenameResult::TargetExists;
    for (int i = 0; i < mostThirdNames && result == RenameResult::TargetExists; ++i) {
        const QString path = plan.file(row).sibling(thirdName());
        thirdNames[row] = path;
        result = disk.rename(plan.file(row), path);
    }
    return result;
}

bool PlannedRun::takeLastBack()
{
    if (made == 0) {
        now = State::TakenBack;
        return false;
    }
    const Move &move = moves[made - 1];
    if (disk.rename(sibling(plan.file(move.row), after(move)), before(move)) != RenameResult::Done) {
        now = State::Stuck;
        return false;
    }
    --made;
    renamedRows -= move.leg == Leg::ToThird ? 0 : 1;
    return true;
}

QString PlannedRun::before(const Move &move) const
{
    return move.leg == Leg::FromThird ? thirdNames.value(move.row) : plan.file(move.row).path;
}

QString PlannedRun::after(const Move &move) const
{
    return move.leg == Leg::ToThird ? thirdNames.value(move.row) : plan.target(move.row);
}

QList<PlannedRun::Standing> PlannedRun::standing() const
{
    QList<Standing> standing;
    QHash<int, qsizetype> underThirdNames;
    for (size_t i = 0; i < made; ++i) {
        const Move &move = moves[i];
        if (move.leg == Leg::FromThird) {
            standing[underThirdNames.take(move.row)].path = after(move);
            continue;
        }
        if (move.leg == Leg::ToThird)
            underThirdNames.insert(move.row, standing.size());
        standing.append({move.row, after(move)});
    }
    return standing;
}
