// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalreader.h"

#include <algorithm>

namespace {

constexpr qint64 blockSize = 1 << 16;
constexpr qsizetype longestLine = 1 << 20;

/// Where a disk lost a block, the line behind it begins with zeros.
QByteArrayView withoutZeros(QByteArrayView line)
{
    const auto first = std::find_if(line.begin(), line.end(), [](char c) { return c != '\0'; });
    return line.sliced(first - line.begin());
}

} // namespace

BackwardLines::BackwardLines(QIODevice &device)
    : file(device)
    , offset(device.size())
{
}

std::optional<QByteArrayView> BackwardLines::next()
{
    while (!atBeginning) {
        const QByteArrayView text = QByteArrayView(buffer).first(end);
        const qsizetype newline = text.lastIndexOf('\n');
        if (newline < 0 && offset > 0) {
            readBlock();
            continue;
        }
        const bool isLine = !dropping;
        dropping = false;
        atBeginning = newline < 0;
        end = std::max<qsizetype>(newline, 0);
        if (isLine)
            return withoutZeros(text.sliced(newline + 1));
    }
    return std::nullopt;
}

void BackwardLines::readBlock()
{
    dropping = dropping || end > longestLine;
    const qint64 size = std::min(blockSize, offset);
    offset -= size;
    QByteArray block;
    if (file.seek(offset))
        block = file.read(size);
    if (block.size() < size) {
        // What cannot be read cuts the file.
        offset = 0;
        dropping = true;
    }
    buffer = dropping ? block : block + buffer.first(end);
    end = buffer.size();
}

BackwardEntries::BackwardEntries(QIODevice &device)
    : lines(device)
{
}

std::optional<JournalEntry> BackwardEntries::next()
{
    while (const auto line = lines.next()) {
        JournalLine read = fromJson(*line);
        // What was lost on the disk does not tell either what came of the last rename.
        if (std::holds_alternative<std::monostate>(read) || std::holds_alternative<JournalLeft>(read))
            continue;
        if (const auto *refusal = std::get_if<JournalRefusal>(&read)) {
            undone.insert(refusal->number);
        } else if (const auto *back = std::get_if<JournalBack>(&read)) {
            undone.insert(back->number);
        } else if (const auto *keptEntry = std::get_if<JournalKept>(&read)) {
            keptEntries.add(keptEntry->takesBack, keptEntry->half);
        } else if (auto *entry = std::get_if<JournalEntry>(&read)) {
            uncertain = std::exchange(isLast, false);
            if (!undone.remove(entry->number))
                return std::move(*entry);
        }
        isLast = false;
    }
    return std::nullopt;
}

namespace {

/// The header, and the folder of the first rename.
void readHead(QIODevice &file, JournalSummary &summary)
{
    if (!file.seek(0))
        return;
    const QByteArray head = file.read(2 * blockSize);
    QByteArrayView rest(head);
    for (bool isFirst = true;; isFirst = false) {
        const qsizetype newline = rest.indexOf('\n');
        if (newline < 0)
            return;
        JournalLine line = fromJson(rest.first(newline));
        if (isFirst) {
            if (auto *header = std::get_if<JournalHeader>(&line))
                summary.header = std::move(*header);
            else
                return;
        }
        if (auto *entry = std::get_if<JournalEntry>(&line)) {
            summary.folder = std::move(entry->folder);
            return;
        }
        if (auto *wish = std::get_if<JournalWish>(&line)) {
            summary.folder = std::move(wish->folder).value_or(QString());
            return;
        }
        rest = rest.sliced(newline + 1);
    }
}

/// The figures told last, and what happened since.
void readTail(QIODevice &file, JournalSummary &summary)
{
    BackwardLines lines(file);
    JournalFigures since;
    QSet<qint64> refused;
    bool isLast = true;
    while (const auto text = lines.next()) {
        JournalLine line = fromJson(*text);
        if (const auto *told = std::get_if<JournalFigures>(&line)) {
            summary.figures = *told;
            break;
        }
        if (std::holds_alternative<std::monostate>(line))
            continue;
        if (std::holds_alternative<JournalLeft>(line)) {
            summary.isLeft = true;
            continue;
        }
        if (const auto *entry = std::get_if<JournalEntry>(&line)) {
            since.renamed += refused.contains(entry->number) ? 0 : entry->files();
            summary.lastUncertain = isLast ? entry->files() : summary.lastUncertain;
        } else if (const auto *refusal = std::get_if<JournalRefusal>(&line)) {
            refused.insert(refusal->number);
            ++since.refused;
        } else if (const auto *kept = std::get_if<JournalKept>(&line)) {
            since.kept += kept->files;
        } else if (const auto *back = std::get_if<JournalBack>(&line)) {
            since.renamed -= back->files;
        }
        isLast = false;
    }
    summary.figures.renamed = std::max<qint64>(summary.figures.renamed + since.renamed, 0);
    summary.figures.refused += since.refused;
    summary.figures.kept += since.kept;
    if (summary.figures.renamed > 0)
        summary.figures.folders = std::max<qint64>(summary.figures.folders, 1);
}

} // namespace

JournalSummary summaryOf(QIODevice &file)
{
    JournalSummary summary;
    readHead(file, summary);
    if (summary.header && summary.header->version <= journalVersion)
        readTail(file, summary);
    return summary;
}

qint64 endOfLines(QIODevice &file)
{
    for (qint64 offset = file.size(); offset > 0;) {
        const qint64 size = std::min(blockSize, offset);
        offset -= size;
        if (!file.seek(offset))
            break;
        const qsizetype newline = file.read(size).lastIndexOf('\n');
        if (newline >= 0)
            return offset + newline + 1;
    }
    return 0;
}
