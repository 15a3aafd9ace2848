// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/sharedfile.h"
#include "run/journalfolder.h"
#include "run/journalreader.h"

#include <QFile>
#include <QHash>

#include <algorithm>

namespace {

/// A file by its number, where it has one that stays.
size_t keyOf(const FileStamp &file)
{
    return qHashMulti(1, file.volume, file.number);
}

size_t keyOf(const QString &folder, const QString &name)
{
    return qHashMulti(2, folder, name);
}

/// Of the files that an entry moves, by their numbers and by what they were called before.
QList<size_t> keysBefore(const JournalEntry &entry)
{
    QList<size_t> keys = {keyOf(entry.folder, entry.from), keyOf(entry.file)};
    if (entry.other)
        keys.append({keyOf(entry.folder, entry.to), keyOf(*entry.other)});
    return keys;
}

} // namespace

QSet<size_t> JournalFolder::filesOf(const QString &name, const QList<JournalInfo> &newestFirst) const
{
    QSet<size_t> keys;
    QFile file(filePath(name));
    if (!openShared(file, QIODevice::ReadOnly))
        return keys;
    const TakenBack gone = takenBack(name, newestFirst);
    BackwardEntries entries(file);
    while (auto told = entries.next()) {
        const auto standing = gone.standing(std::move(*told));
        if (!standing)
            continue;
        const JournalEntry *entry = &standing->entry;
        keys.insert(keyOf(entry->folder, entry->to));
        if (entry->file.number != 0)
            keys.insert(keyOf(entry->file));
        if (entry->other) {
            keys.insert(keyOf(entry->folder, entry->from));
            keys.insert(keyOf(*entry->other));
        }
    }
    return keys;
}

QString JournalFolder::touchedBy(const QString &name) const
{
    const QList<JournalInfo> newestFirst = list();
    std::optional<QSet<size_t>> files;
    for (const JournalInfo &later : newestFirst) {
        if (later.name <= name)
            break;
        if (!later.isRun() || !later.canTakeBack())
            continue;
        if (!files)
            files = filesOf(name, newestFirst);
        QFile file(filePath(later.name));
        if (!openShared(file, QIODevice::ReadOnly))
            continue;
        const TakenBack gone = takenBack(later.name, newestFirst);
        BackwardEntries entries(file);
        while (auto entry = entries.next()) {
            const auto standing = gone.standing(std::move(*entry));
            const QList<size_t> keys = standing ? keysBefore(standing->entry) : QList<size_t>();
            if (std::any_of(keys.begin(), keys.end(), [&](size_t key) { return files->contains(key); }))
                return later.name;
        }
    }
    return {};
}

QHash<QString, QString> JournalFolder::touchedRuns(const std::atomic<bool> &stop) const
{
    QHash<QString, QString> touched;
    const QList<JournalInfo> newestFirst = list();
    const auto counts = [](const JournalInfo &journal) {
        return journal.isRun() && journal.canTakeBack();
    };
    auto left = std::count_if(newestFirst.begin(), newestFirst.end(), counts);
    if (left < 2)
        return touched;
    // What was renamed there, and by which of them last.
    QHash<size_t, qsizetype> renamedBy;
    for (qsizetype run = 0; run < newestFirst.size(); ++run) {
        const JournalInfo &journal = newestFirst.at(run);
        QFile file(filePath(journal.name));
        if (!counts(journal) || !openShared(file, QIODevice::ReadOnly))
            continue;
        const bool isOldest = --left == 0;
        const TakenBack gone = takenBack(journal.name, newestFirst);
        qsizetype newest = run;
        QList<size_t> keys;
        BackwardEntries entries(file);
        while (auto told = entries.next()) {
            if (stop)
                return {};
            const auto standing = gone.standing(std::move(*told));
            if (!standing)
                continue;
            const JournalEntry *entry = &standing->entry;
            newest = std::min(newest, renamedBy.value(keyOf(entry->folder, entry->to), run));
            if (entry->file.number != 0)
                newest = std::min(newest, renamedBy.value(keyOf(entry->file), run));
            if (entry->other)
                newest = std::min({newest, renamedBy.value(keyOf(entry->folder, entry->from), run),
                                   renamedBy.value(keyOf(*entry->other), run)});
            if (isOldest)
                continue;
            keys.append(keyOf(entry->folder, entry->from));
            if (entry->file.number != 0)
                keys.append(keyOf(entry->file));
            if (entry->other)
                keys.append({keyOf(entry->folder, entry->to), keyOf(*entry->other)});
        }
        if (newest < run)
            touched.insert(journal.name, newestFirst.at(newest).name);
        for (const size_t key : std::as_const(keys)) {
            if (!renamedBy.contains(key))
                renamedBy.insert(key, run);
        }
    }
    return touched;
}
