// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journal.h"

#include "platform/reservedfile.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QThreadPool>
#include <QWaitCondition>

#include <algorithm>
#include <chrono>
#include <cstring>

using namespace std::chrono_literals;

namespace {

/// Of a run of a few files, and of a long one.
constexpr qsizetype firstWindow = 1 << 16;
constexpr qsizetype largestWindow = 1 << 20;
/// Kept free behind each entry: for its refusal, for figures, and for those of the end, which must not fail.
constexpr qsizetype forFigures = 1024;
constexpr auto betweenSyncs = 900ms;
/// As many as there are journals being written, which is one for each run in hand.
constexpr int mostThreads = 1000;

/// Not the pool that everybody uses: painting waits for a thread of it, and a run keeps its own to its end.
class SyncThreads final : public QThreadPool
{
public:
    SyncThreads() { setMaxThreadCount(mostThreads); }
};

Q_GLOBAL_STATIC(SyncThreads, syncThreads)

} // namespace

/// What the thread that synchronises shares with the run.
struct Journal::File
{
    std::unique_ptr<ReservedFile> reserved;
    QMutex mutex;
    QWaitCondition wake;
    bool moved = false;
    bool ended = false;

    /// Until the run is over, and once more.
    void keepSynced()
    {
        QDeadlineTimer nextSync;
        QMutexLocker lock(&mutex);
        while (!ended) {
            moved = false;
            lock.unlock();
            if (nextSync.hasExpired()) {
                reserved->sync();
                nextSync = QDeadlineTimer(betweenSyncs);
            }
            while (reserved->touchAhead()) {
            }
            lock.relock();
            if (!ended && !moved)
                wake.wait(&mutex, nextSync);
        }
        lock.unlock();
        reserved->sync();
    }
    /// The thread has something to do.
    void tell(bool File::*what)
    {
        const QMutexLocker lock(&mutex);
        this->*what = true;
        wake.wakeAll();
    }
};

std::unique_ptr<Journal> Journal::create(const QString &path, const JournalHeader &header, QString *error)
{
    auto made = std::make_shared<File>();
    made->reserved = ReservedFile::create(path, error);
    if (!made->reserved)
        return nullptr;
    std::unique_ptr<Journal> journal(new Journal(made));
    const QByteArray line = toJson(header);
    if (!journal->makeRoom(line.size())) {
        *error = journal->lastError;
        return nullptr;
    }
    journal->append(line);
    syncThreads->start([made] { made->keepSynced(); });
    return journal;
}

std::unique_ptr<Journal> Journal::reopen(const QString &path, QString *error)
{
    auto opened = std::make_shared<File>();
    opened->reserved = ReservedFile::reopen(path, error);
    if (!opened->reserved)
        return nullptr;
    std::unique_ptr<Journal> journal(new Journal(opened));
    // Nothing is to be written as long as it is not resumed.
    journal->ended = true;
    return journal;
}

bool Journal::resume(qint64 size, qint64 nextEntry, const JournalFigures &figures)
{
    if (!file->reserved->cut(size)) {
        lastError = file->reserved->error();
        return false;
    }
    endOffset = size;
    entries = nextEntry;
    soFar = figures;
    foldersBefore = std::max<qint64>(figures.folders - 1, 0);
    resumed = true;
    if (!makeRoom(0))
        return false;
    ended = false;
    syncThreads->start([opened = file] { opened->keepSynced(); });
    return true;
}

Journal::Journal(std::shared_ptr<File> made)
    : file(std::move(made))
{
}

Journal::~Journal()
{
    end(true);
}

QString Journal::path() const
{
    return file->reserved->path();
}

bool Journal::makeRoom(qsizetype bytes)
{
    if (windowEnd - next >= bytes + forFigures)
        return true;
    if (!lastError.isEmpty())
        return false;
    const bool first = !next;
    // The end of the run is written in any case.
    if (!first)
        append(toJson(soFar));
    const qint64 written = endOffset - (windowEnd - next);
    const qint64 step = ReservedFile::windowStep();
    const qint64 offset = written & ~(step - 1);
    const qsizetype usual = std::clamp<qsizetype>(offset, firstWindow, largestWindow);
    const qsizetype size = (std::max(usual, bytes + forFigures + step) + step - 1) & ~(step - 1);
    char *window = file->reserved->moveWindow(offset, size);
    if (!window) {
        lastError = file->reserved->error();
        return false;
    }
    next = window + (written - offset);
    windowEnd = window + size;
    endOffset = offset + size;
    file->tell(&File::moved);
    return true;
}

void Journal::append(const QByteArray &line)
{
    std::memcpy(next, line.constData(), static_cast<size_t>(line.size()));
    next += line.size();
}

bool Journal::wish(JournalWishView wish)
{
    if (wish.folder == wishFolder)
        wish.folder = {};
    else
        wishFolder = wish.folder.toString();
    if (wish.file.volume != wishVolume && !wish.file.volume.isEmpty()) {
        wishVolume = wish.file.volume;
        wish.volume = wishVolume;
    }
    if (!makeRoom(mostBytes(wish)))
        return false;
    next = writeJson(wish, next);
    return true;
}

qint64 Journal::renaming(JournalEntryView entry)
{
    entry.number = entries++;
    recorded = makeRoom(mostBytes(entry));
    if (entry.folder != folder || entry.number == 0) {
        folder = entry.folder.toString();
        folderText = folderJson(folder);
        folders.insert(qHash(folder));
        soFar.folders = foldersBefore + folders.size();
    }
    lastFiles = entry.files();
    soFar.renamed += lastFiles;
    if (recorded)
        next = writeJson(entry, folderText, next);
    else
        soFar.unrecorded += lastFiles;
    return entry.number;
}

void Journal::refused(const QString &reason)
{
    soFar.renamed -= lastFiles;
    ++soFar.refused;
    if (recorded)
        append(toJson(JournalRefusal{.number = entries - 1, .reason = reason}));
    else
        soFar.unrecorded -= lastFiles;
}

void Journal::kept(const JournalKept &kept)
{
    const QByteArray line = toJson(kept);
    if (!makeRoom(line.size()))
        return;
    append(line);
    soFar.kept += kept.files;
}

void Journal::takenBack(const JournalBack &back)
{
    const QByteArray line = toJson(back);
    soFar.renamed -= back.files;
    if (makeRoom(line.size()))
        append(line);
}

void Journal::end(bool cancelled)
{
    close(cancelled ? JournalFigures::State::Cancelled : JournalFigures::State::Complete);
}

void Journal::stop()
{
    close(JournalFigures::State::Running);
}

void Journal::close(JournalFigures::State state)
{
    if (ended)
        return;
    ended = true;
    const bool nothingHappened = soFar.renamed == soFar.unrecorded && soFar.kept == 0;
    if (nothingHappened && !resumed) {
        file->reserved->discard();
    } else {
        soFar.state = state;
        append(toJson(soFar));
        file->reserved->finish(endOffset - (windowEnd - next));
    }
    file->tell(&File::ended);
}

bool Journal::sync()
{
    return file->reserved->sync();
}
