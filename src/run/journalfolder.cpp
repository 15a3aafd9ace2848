// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalfolder.h"

#include "platform/filelock.h"
#include "platform/sharedfile.h"
#include "run/journalreader.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSysInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView namePattern("????????T?????????Z-????????.jsonl");
constexpr int lockPatience = 2000; // milliseconds

/// No filter of QDir's, which would be a regular expression: of those Qt leaves each thread something that
/// cannot be taken down at its end in a program for Windows that was built with MinGW.
bool isJournal(const QString &name)
{
    const auto fits = [](QChar character, char wanted) {
        return wanted == '?' || character == QLatin1Char(wanted);
    };
    return std::equal(name.begin(), name.end(), namePattern.begin(), namePattern.end(), fits);
}

QString timeText(const QDateTime &time)
{
    return time.toString(u"yyyyMMdd'T'HHmmsszzz'Z'");
}

/// The time of the name, which is later than those of the others, whatever the clock did.
QString stampAfter(const QString &newest)
{
    const QString now = timeText(QDateTime::currentDateTimeUtc());
    const QString last = newest.left(now.size());
    if (now > last)
        return now;
    QDateTime time = QDateTime::fromString(last, u"yyyyMMdd'T'HHmmsszzz'Z'"_s);
    time.setTimeSpec(Qt::UTC);
    return time.isValid() ? timeText(time.addMSecs(1)) : now;
}

JournalInfo::State stateOf(QFile &file, const JournalSummary &summary)
{
    using State = JournalInfo::State;
    if (summary.header && summary.header->version > journalVersion)
        return State::Newer;
    if (summary.header && summary.header->machine != thisMachine())
        return State::OtherMachine;
    if (summary.header && summary.figures.state == JournalFigures::State::Complete)
        return State::Complete;
    if (summary.header && summary.figures.state == JournalFigures::State::Cancelled)
        return State::Cancelled;
    if (isLocked(file))
        return State::InHand;
    return summary.header ? State::Interrupted : State::Unreadable;
}

/// What was taken back of what, from the figures alone.
void countStanding(QList<JournalInfo> &newestFirst)
{
    QHash<QString, qint64> takenBack;
    QSet<QString> dealtWith;
    for (JournalInfo &journal : newestFirst) {
        journal.standing = std::max<qint64>(journal.renamed - takenBack.value(journal.name), 0);
        journal.isOpen = journal.state == JournalInfo::State::Interrupted && journal.standing > 0 &&
                         !journal.isLeft && !dealtWith.contains(journal.name);
        if (journal.isRun())
            continue;
        // The last rename of an interrupted undo may not have been done: then it is still to be taken back.
        const qint64 certain = journal.standing - std::min<qint64>(journal.lastUncertain, journal.standing);
        takenBack[journal.takesBack] += certain + journal.kept;
        if (journal.state == JournalInfo::State::Complete)
            dealtWith.insert(journal.takesBack);
    }
}

} // namespace

QString thisMachine()
{
    static const QString machine = QString::fromLatin1(
        QCryptographicHash::hash(QByteArray("orvanto-journal" + QSysInfo::machineUniqueId()),
                                 QCryptographicHash::Sha256)
            .first(8)
            .toHex());
    return machine;
}

JournalFolder::JournalFolder(QString folderPath)
    : path(std::move(folderPath))
{
}

QStringList JournalFolder::names() const
{
    QStringList names = QDir(path).entryList(QDir::Files | QDir::NoSymLinks);
    names.removeIf([](const QString &name) { return !isJournal(name); });
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

JournalInfo JournalFolder::read(const QString &name) const
{
    JournalInfo journal;
    journal.name = name;
    QFile file(filePath(name));
    if (!openShared(file, QIODevice::ReadOnly))
        return journal;
    journal.bytes = file.size();
    const JournalSummary summary = summaryOf(file);
    journal.state = stateOf(file, summary);
    if (!summary.header) {
        journal.isEmpty = journal.state == JournalInfo::State::Unreadable && endOfLines(file) == 0;
        return journal;
    }
    journal.time = summary.header->time;
    journal.program = summary.header->program;
    journal.takesBack = summary.header->takesBack;
    journal.rows = summary.header->rows;
    journal.renamed = summary.figures.renamed - summary.figures.unrecorded;
    journal.refused = summary.figures.refused;
    journal.unrecorded = summary.figures.unrecorded;
    journal.kept = summary.figures.kept;
    journal.folder = summary.folder;
    journal.folders = summary.figures.folders;
    journal.lastUncertain = summary.lastUncertain;
    journal.planned = summary.header->planned;
    journal.isLeft = summary.isLeft;
    journal.isEmpty = journal.state == JournalInfo::State::Interrupted && journal.renamed + journal.kept == 0;
    return journal;
}

QList<JournalInfo> JournalFolder::list() const
{
    QList<JournalInfo> newestFirst;
    for (const QString &name : names()) {
        JournalInfo journal = read(name);
        // An undo is younger than what it takes back.
        if (journal.takesBack >= name)
            journal.state = JournalInfo::State::Unreadable;
        newestFirst.append(std::move(journal));
    }
    countStanding(newestFirst);
    return newestFirst;
}

std::optional<JournalInfo> JournalFolder::find(const QString &name) const
{
    for (const JournalInfo &journal : list()) {
        if (journal.name == name)
            return journal;
    }
    return std::nullopt;
}

const JournalInfo *JournalFolder::undoable(const QList<JournalInfo> &newestFirst)
{
    for (const JournalInfo &journal : newestFirst) {
        if (journal.isRun() && journal.canTakeBack())
            return &journal;
    }
    return nullptr;
}

const JournalInfo *JournalFolder::redoable(const QList<JournalInfo> &newestFirst)
{
    QSet<QString> runs;
    for (const JournalInfo &journal : newestFirst) {
        if (journal.isRun())
            runs.insert(journal.name);
    }
    for (const JournalInfo &journal : newestFirst) {
        if (journal.isRun() && journal.renamed > 0)
            return nullptr;
        if (runs.contains(journal.takesBack) && journal.canTakeBack())
            return &journal;
    }
    return nullptr;
}

std::unique_ptr<Journal> JournalFolder::begin(const QString &program, qint64 rows, const QString &takesBack,
                                              QString *error)
{
    return begin({.time = {}, .program = program, .machine = {}, .rows = rows, .takesBack = takesBack},
                 error);
}

std::unique_ptr<Journal> JournalFolder::beginPlanned(const QString &program, qint64 rows, QString *error)
{
    return begin({.version = journalVersion,
                  .time = {},
                  .program = program,
                  .machine = {},
                  .rows = rows,
                  .takesBack = {},
                  .planned = rows},
                 error);
}

std::unique_ptr<Journal> JournalFolder::begin(JournalHeader header, QString *error)
{
    header.time = QDateTime::currentDateTimeUtc();
    header.machine = thisMachine();
    const QDir folder(path);
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!folder.exists())
        QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const auto lock = locked();
    if (!lock) {
        *error = u"%1 cannot be locked"_s.arg(path);
        return nullptr;
    }
    const QString name = stampAfter(names().value(0)) +
                         u"-%1.jsonl"_s.arg(QRandomGenerator::system()->generate(), 8, 16, QLatin1Char('0'));
    return Journal::create(filePath(name), header, error);
}

std::unique_ptr<QLockFile> JournalFolder::locked() const
{
    auto lock = std::make_unique<QLockFile>(filePath(u"lock"_s));
    // Who is killed before it has written its name leaves a lock of nobody: its age decides then. A living
    // owner's is not taken, however old: the system refuses.
    lock->setStaleLockTime(lockPatience / 20);
    return lock->tryLock(lockPatience) ? std::move(lock) : nullptr;
}

bool JournalFolder::leave(const QString &name)
{
    QFile file(filePath(name));
    if (!openShared(file, QIODevice::ReadWrite | QIODevice::ExistingOnly) ||
        lockFile(file) == FileLock::HeldByAnother)
        return false;
    const qint64 end = endOfLines(file);
    const QByteArray line = toJson(JournalLeft());
    return file.resize(end) && file.seek(end) && file.write(line) == line.size() && file.flush();
}

TakenBack JournalFolder::takenBack(const QString &name, const QList<JournalInfo> &newestFirst) const
{
    TakenBack found;
    for (const JournalInfo &journal : newestFirst) {
        if (journal.takesBack != name || journal.takesBack >= journal.name)
            continue;
        const TakenBack redone = takenBack(journal.name, newestFirst);
        QFile file(filePath(journal.name));
        if (!openShared(file, QIODevice::ReadOnly))
            continue;
        BackwardEntries entries(file);
        while (auto entry = entries.next()) {
            const auto standing = redone.standing(std::move(*entry));
            if (!entries.isUncertain() && standing)
                found.add(standing->entry.takesBack,
                          standing->half != 0 ? standing->half : standing->entry.half);
        }
        found.add(entries.kept());
    }
    return found;
}
