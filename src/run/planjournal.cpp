// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/planjournal.h"

#include "run/journalreader.h"

#include <QHash>

#include <algorithm>

namespace {

QString pathOf(const QString &folder, const QString &name)
{
    return folder + u'/' + name;
}

/// Which file it is, where that has a number.
std::pair<QString, quint64> numberOf(const FileStamp &file)
{
    return {file.volume, file.number};
}

/// What is in a journal, the last first.
struct Lines
{
    std::vector<JournalEntry> entries;
    std::vector<JournalWish> wishes;
};

Lines linesOf(QFile &file, const TakenBack &takenBack, PlanJournal &told)
{
    Lines found;
    // By the run itself, or refused.
    QSet<qint64> undone;
    BackwardLines lines(file);
    while (const auto line = lines.next()) {
        JournalLine read = fromJson(*line);
        if (auto *wish = std::get_if<JournalWish>(&read)) {
            found.wishes.push_back(std::move(*wish));
        } else if (const auto *refusal = std::get_if<JournalRefusal>(&read)) {
            undone.insert(refusal->number);
        } else if (const auto *back = std::get_if<JournalBack>(&read)) {
            undone.insert(back->number);
        } else if (auto *entry = std::get_if<JournalEntry>(&read)) {
            told.nextEntry = std::max(told.nextEntry, entry->number + 1);
            auto standing = takenBack.standing(std::move(*entry));
            if (standing && !undone.contains(standing->entry.number))
                found.entries.push_back(std::move(standing->entry));
        }
    }
    return found;
}

void fillRows(std::vector<JournalWish> &&lastFirst, std::vector<PlanJournal::Row> &rows)
{
    QString folder;
    QString volume;
    rows.reserve(lastFirst.size());
    for (auto wish = lastFirst.rbegin(); wish != lastFirst.rend(); ++wish) {
        FileStamp &file = wish->file;
        if (wish->folder)
            folder = *wish->folder;
        if (!file.volume.isEmpty())
            volume = file.volume;
        else if (wish->isStamped)
            file.volume = volume;
        rows.push_back(
            {.file = file, .folder = folder, .to = wish->to, .places = {pathOf(folder, wish->from)}});
    }
}

/// Follows the rows' files from name to name.
class Trace final
{
public:
    explicit Trace(std::vector<PlanJournal::Row> &ofRows)
        : rows(ofRows)
    {
        for (size_t row = 0; row < rows.size(); ++row) {
            byPath.insert(rows[row].places.constFirst(), row);
            if (rows[row].file.number != 0)
                byFile.insert(numberOf(rows[row].file), row);
        }
    }

    void follow(const JournalEntry &entry)
    {
        const QString from = pathOf(entry.folder, entry.from);
        const QString to = pathOf(entry.folder, entry.to);
        const auto one = rowOf(from, entry.file);
        const auto other = entry.other ? rowOf(to, *entry.other) : std::nullopt;
        byPath.remove(from);
        place(one, to, entry);
        place(other, from, entry);
    }

private:
    /// By the name first: a file can have several, and be several rows.
    [[nodiscard]] std::optional<size_t> rowOf(const QString &path, const FileStamp &file) const
    {
        if (const auto row = byPath.constFind(path); row != byPath.constEnd())
            return *row;
        const auto row = file.number == 0 ? byFile.constEnd() : byFile.constFind(numberOf(file));
        return row == byFile.constEnd() ? std::nullopt : std::optional(*row);
    }
    void place(std::optional<size_t> row, const QString &path, const JournalEntry &entry)
    {
        if (!row)
            return;
        byPath.insert(path, *row);
        rows[*row].places.append(path);
        rows[*row].entry = entry.number;
        rows[*row].filesOfEntry = entry.files();
    }

    std::vector<PlanJournal::Row> &rows;
    QHash<QString, size_t> byPath;
    QHash<std::pair<QString, quint64>, size_t> byFile;
};

} // namespace

std::optional<PlanJournal> PlanJournal::read(QFile &file, qint64 rowCount, const TakenBack &takenBack)
{
    PlanJournal told;
    told.size = endOfLines(file);
    Lines lines = linesOf(file, takenBack, told);
    if (static_cast<qint64>(lines.wishes.size()) != rowCount)
        return std::nullopt;
    fillRows(std::move(lines.wishes), told.rows);
    Trace trace(told.rows);
    for (auto entry = lines.entries.crbegin(); entry != lines.entries.crend(); ++entry)
        trace.follow(*entry);
    return told;
}
