// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/plannedrun.h"

#include <QRandomGenerator>

#include <utility>

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

PlannedRun::PlannedRun(Disk &on, const Plan &ofPlan, Journal *in)
    : disk(on)
    , plan(ofPlan)
    , journal(in)
    , reader(on)
{
    moves.reserve(plan.order().size());
    for (const Plan::Group &group : plan.groups())
        addMoves(group);
}

PlannedRun::~PlannedRun() = default;

/// The journal and the identities tell exchanged files apart by where they were; what stands in for a path
/// that leads to another row's name has to begin as the paths of the journal do.
bool PlannedRun::canExchange(const Plan::Group &group) const
{
    const FilePath &hub = plan.file(rowAt(group.begin));
    for (qsizetype place = group.begin; place < group.end; ++place) {
        const int row = rowAt(place);
        // The file of the one behind the first is put where it shall be by the last exchange.
        const bool isLast = place == group.begin + 1;
        if (!plan.isExact(row) || (!isLast && plan.file(row).folder() != hub.folder()))
            return false;
    }
    return true;
}

void PlannedRun::addMoves(const Plan::Group &group)
{
    if (group.isRing && exchanges && canExchange(group)) {
        addExchanges(group);
        return;
    }
    // The last row of a ring makes room for the first by a third name; then the others are a line.
    const qsizetype end = group.isRing ? group.end - 1 : group.end;
    if (group.isRing)
        moves.push_back({rowAt(end), Leg::ToThird});
    for (qsizetype place = group.begin; place < end; ++place)
        addMoves(rowAt(place));
    if (group.isRing)
        moves.push_back({rowAt(end), Leg::FromThird});
}

/// The first row waits for the name of the last, that one for the name of the one before it, and so on. The
/// name of the first holds whatever still has to go on.
void PlannedRun::addExchanges(const Plan::Group &group)
{
    const int hub = rowAt(group.begin);
    int row = hub;
    for (qsizetype place = group.end - 1; place > group.begin; --place) {
        const int other = rowAt(place);
        moves.push_back({row, Leg::Exchange, other, hub});
        row = other;
    }
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

void PlannedRun::replan()
{
    exchanges = false;
    const int hub = moves[made].hub;
    moves.resize(made);
    bool isAhead = false;
    for (const Plan::Group &group : plan.groups()) {
        isAhead = isAhead || (group.isRing && rowAt(group.begin) == hub);
        if (isAhead)
            addMoves(group);
    }
}

bool PlannedRun::next()
{
    if (!std::exchange(isPrepared, true) && !writeAhead()) {
        now = State::TakenBack;
        return false;
    }
    if (now == State::GoingBack)
        return takeLastBack();
    if (now != State::GoingOn)
        return false;
    if (made == moves.size()) {
        now = State::Done;
        return false;
    }
    makeNext();
    return true;
}

/// Deliberate: in the order of the list, in which folders tend to be listed, too.
bool PlannedRun::writeAhead()
{
    begun = QDateTime::currentDateTimeUtc();
    stamps.resize(static_cast<size_t>(plan.count()));
    for (int row = 0; row < plan.count(); ++row) {
        if (!plan.isOrdered(row))
            continue;
        const FilePath &file = plan.file(row);
        FileStamp &stamp = stampOf(row);
        stamp = reader.of(file);
        if (!journal || journal->isResumed())
            continue;
        const QString target = plan.target(row);
        if (!journal->wish({.folder = file.folder(),
                            .from = QStringView(file.path).sliced(file.nameAt),
                            .to = QStringView(target).sliced(file.nameAt),
                            .volume = {},
                            .file = stamp}))
            return false;
    }
    return true;
}

void PlannedRun::makeNext()
{
    Move &move = moves[made];
    // What cannot be told from the other could not be put back.
    const bool isPossible =
        move.leg != Leg::Exchange || (stampOf(move.row).number != 0 && stampOf(move.other).number != 0);
    const auto fate = isPossible ? make(move) : std::nullopt;
    if (!fate) {
        replan();
        makeNext();
    } else if (*fate == Fate::Renamed) {
        countThirdName(move.leg, 1);
        renamedRows += placedRows(made++);
    } else {
        failed = move.row;
        why = *fate;
        takeBack();
    }
}

void PlannedRun::countThirdName(Leg leg, int by)
{
    if (leg == Leg::ToThird)
        usedThirdNames += by;
    else if (leg == Leg::FromThird)
        usedThirdNames -= by;
}

bool PlannedRun::isBetween() const
{
    if (usedThirdNames > 0 || made == 0 || made == moves.size())
        return usedThirdNames > 0;
    const Move &next = moves[made];
    return next.leg == Leg::Exchange && next.hub == moves[made - 1].hub;
}

int PlannedRun::placedRows(size_t number) const
{
    const Move &move = moves[number];
    if (move.leg != Leg::Exchange)
        return move.leg == Leg::ToThird ? 0 : 1;
    const bool isLast = number + 1 == moves.size() || moves[number + 1].hub != move.hub;
    return isLast ? 2 : 1;
}

void PlannedRun::takeBack()
{
    if (now == State::GoingOn)
        now = State::GoingBack;
}

std::optional<Fate> PlannedRun::make(Move &move)
{
    if (move.leg == Leg::Exchange)
        return exchange(move);
    if (move.leg == Leg::Whole)
        return rename(move, plan.file(move.row), plan.target(move.row));
    if (move.leg == Leg::FromThird)
        return rename(move, sibling(plan.file(move.row), before(move)), after(move));
    Fate fate = Fate::Taken;
    for (int i = 0; i < mostThirdNames && fate == Fate::Taken; ++i) {
        const QString path = plan.file(move.row).sibling(thirdName());
        thirdNames[move.row] = path;
        fate = rename(move, plan.file(move.row), path);
    }
    return fate;
}

Fate PlannedRun::rename(Move &move, const FilePath &from, const QString &to)
{
    if (journal) {
        move.entry = journal->renaming({.folder = from.folder(),
                                        .from = QStringView(from.path).sliced(from.nameAt),
                                        .to = QStringView(to).sliced(from.nameAt),
                                        .file = stampOf(move.row)});
        // Whoever promises all of it or nothing needs a journal.
        if (!journal->error().isEmpty()) {
            journal->refused(idOf(Fate::Unknown));
            return Fate::Unknown;
        }
    }
    const RenameResult result = disk.rename(from, to);
    if (result == RenameResult::Done || isDone(result, move.row, from.path, to))
        return Fate::Renamed;
    if (journal)
        journal->refused(idOf(fateOf(result)));
    return fateOf(result);
}

/// File systems of a network do what was asked, lose the answer, and fail when they are asked again.
bool PlannedRun::isDone(RenameResult result, int row, const QString &from, const QString &to)
{
    const bool isUnclear = result == RenameResult::Other || result == RenameResult::SourceMissing;
    return isUnclear && reader.isAt(to, stampOf(row), QDateTime::currentDateTimeUtc()) &&
           !disk.identity(from);
}

std::optional<Fate> PlannedRun::exchange(Move &move)
{
    const FilePath &place = plan.file(move.hub);
    const QString target = plan.target(move.row);
    for (const auto &[row, path] : {std::pair(move.row, place.path), std::pair(move.other, target)}) {
        if (!reader.isAt(path, stampOf(row), begun))
            return disk.identity(path) ? Fate::OtherFile : Fate::Missing;
    }
    if (journal) {
        move.entry = journal->renaming({.folder = place.folder(),
                                        .from = QStringView(place.path).sliced(place.nameAt),
                                        .to = QStringView(target).sliced(place.nameAt),
                                        .file = stampOf(move.row),
                                        .other = &stampOf(move.other)});
        if (!journal->error().isEmpty()) {
            journal->refused(idOf(Fate::Unknown));
            return Fate::Unknown;
        }
    }
    const auto result = disk.exchange(place, target);
    if (result == RenameResult::Done || (result == RenameResult::Other && areAt(move, move.row, move.other)))
        return Fate::Renamed;
    const Fate fate = fateOf(result.value_or(RenameResult::Other));
    if (journal)
        journal->refused(idOf(fate));
    // In the middle of a ring there is no other way.
    const bool isFirst = move.row == move.hub;
    return result || !isFirst ? std::optional(fate) : std::nullopt;
}

bool PlannedRun::areAt(const Move &move, int rowAtTarget, int rowAtPlace)
{
    const QDateTime later = QDateTime::currentDateTimeUtc();
    return reader.isAt(plan.target(move.row), stampOf(rowAtTarget), later) &&
           reader.isAt(plan.file(move.hub).path, stampOf(rowAtPlace), later);
}

bool PlannedRun::takeLastBack()
{
    if (made == 0) {
        now = State::TakenBack;
        return false;
    }
    const Move &move = moves[made - 1];
    if (!makeBack(move)) {
        now = State::Stuck;
        return false;
    }
    renamedRows -= placedRows(--made);
    countThirdName(move.leg, -1);
    if (journal)
        journal->takenBack({.number = move.entry, .files = move.leg == Leg::Exchange ? 2 : 1});
    return true;
}

/// The journal names it already.
bool PlannedRun::makeBack(const Move &move)
{
    if (move.leg == Leg::Exchange)
        return exchangeBack(move);
    const QString from = after(move);
    const QString to = before(move);
    const FileStamp &stamp = stampOf(move.row);
    if (!stamp.volume.isEmpty() && !reader.isAt(from, stamp, QDateTime::currentDateTimeUtc()))
        return false;
    const RenameResult result = disk.rename(sibling(plan.file(move.row), from), to);
    return result == RenameResult::Done || isDone(result, move.row, from, to);
}

bool PlannedRun::exchangeBack(const Move &move)
{
    if (!areAt(move, move.row, move.other))
        return false;
    const auto result = disk.exchange(plan.file(move.hub), plan.target(move.row));
    return result == RenameResult::Done ||
           (result == RenameResult::Other && areAt(move, move.other, move.row));
}

QString PlannedRun::before(const Move &move) const
{
    return move.leg == Leg::FromThird ? thirdNames.value(move.row) : plan.file(move.row).path;
}

QString PlannedRun::after(const Move &move) const
{
    return move.leg == Leg::ToThird ? thirdNames.value(move.row) : plan.target(move.row);
}

void PlannedRun::end(Rest rest)
{
    if (!journal)
        return;
    if (now == State::Done)
        journal->end(false);
    else if (rest == Rest::IsKept)
        journal->end(true);
    else
        journal->stop();
}

QList<PlannedRun::Standing> PlannedRun::standing() const
{
    QList<Standing> standing;
    QHash<int, qsizetype> known;
    const auto note = [&](int row, const QString &path) {
        const auto there = known.constFind(row);
        if (there != known.constEnd()) {
            standing[*there].path = path;
        } else {
            known.insert(row, standing.size());
            standing.append({row, path});
        }
    };
    for (size_t i = 0; i < made; ++i) {
        const Move &move = moves[i];
        note(move.row, after(move));
        if (move.leg == Leg::Exchange)
            note(move.other, plan.file(move.hub).path);
    }
    return standing;
}
