// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "run/journalfolder.h"
#include "run/journalreader.h"

#include <QBuffer>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// What a line says, read the slow way.
QJsonObject documentOf(const QByteArray &line)
{
    return QJsonDocument::fromJson(line).object();
}

void verifyEntry(const QJsonObject &object, const JournalEntry &entry, const QString &line)
{
    FUZZ_VERIFY(object.value("kind"_L1) == u"rename"_s, line);
    FUZZ_VERIFY(object.value("n"_L1).toInteger(-1) == entry.number, line);
    FUZZ_VERIFY(object.value("of"_L1).toInteger(-1) == entry.takesBack, line);
    FUZZ_VERIFY(object.value("folder"_L1).toString() == entry.folder, line);
    FUZZ_VERIFY(object.value("from"_L1).toString() == entry.from, line);
    FUZZ_VERIFY(object.value("to"_L1).toString() == entry.to, line);
    FUZZ_VERIFY(object.value("volume"_L1).toString() == entry.file.volume, line);
}

/// Qt reads the same in it, and what is written of it again reads the same.
void verifyLine(const QByteArray &line)
{
    const JournalLine read = fromJson(line);
    const QString text = QString::fromUtf8(line);
    if (std::holds_alternative<std::monostate>(read))
        return;
    const QJsonObject object = documentOf(line);
    FUZZ_VERIFY(!object.isEmpty(), text);
    if (const auto *entry = std::get_if<JournalEntry>(&read)) {
        verifyEntry(object, *entry, text);
        const QByteArray again = toJson(*entry);
        const JournalLine second = fromJson(again.chopped(1));
        FUZZ_VERIFY(std::holds_alternative<JournalEntry>(second), text);
        verifyEntry(documentOf(again), *entry, text);
    } else if (const auto *header = std::get_if<JournalHeader>(&read)) {
        FUZZ_VERIFY(object.value("version"_L1).toInteger() == header->version, text);
        FUZZ_VERIFY(object.value("program"_L1).toString() == header->program, text);
        FUZZ_VERIFY(object.value("of"_L1).toString() == header->takesBack, text);
    } else if (const auto *figures = std::get_if<JournalFigures>(&read)) {
        FUZZ_VERIFY(object.value("renamed"_L1).toInteger() == figures->renamed, text);
        FUZZ_VERIFY(object.value("kept"_L1).toInteger() == figures->kept, text);
    } else if (const auto *refusal = std::get_if<JournalRefusal>(&read)) {
        FUZZ_VERIFY(object.value("why"_L1).toString() == refusal->reason, text);
    }
}

/// The lines from the front, as they should be: each ended, none of a megabyte, without zeros at its front.
QByteArrayList linesOf(const QByteArray &bytes)
{
    QByteArrayList lines = bytes.split('\n');
    lines.removeLast();
    for (QByteArray &line : lines) {
        while (line.startsWith('\0'))
            line.remove(0, 1);
    }
    return lines;
}

/// The entries that were done, by going through the lines from the front.
QList<qint64> entriesOf(const QByteArrayList &lines)
{
    QList<qint64> numbers;
    for (const QByteArray &line : lines) {
        const JournalLine read = fromJson(line);
        if (const auto *entry = std::get_if<JournalEntry>(&read))
            numbers.append(entry->number);
        else if (const auto *refusal = std::get_if<JournalRefusal>(&read))
            if (const qsizetype at = numbers.lastIndexOf(refusal->number); at >= 0)
                numbers.removeAt(at);
    }
    return numbers;
}

void verifyReading(const QByteArray &bytes)
{
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    QByteArrayList lines = linesOf(bytes);
    for (const QByteArray &line : lines)
        verifyLine(line);
    BackwardEntries backward(file);
    QList<qint64> numbers;
    while (const auto entry = backward.next())
        numbers.prepend(entry->number);
    FUZZ_VERIFY(numbers.size() <= lines.size(), QString());
    const QList<qint64> expected = entriesOf(lines);
    // A refusal in front of its entry refuses it going backwards only; journals have none.
    for (const qint64 number : expected)
        FUZZ_VERIFY(numbers.contains(number), QString::number(number));
    BackwardLines reader(file);
    while (const auto line = reader.next())
        FUZZ_VERIFY(lines.takeLast() == *line, QString::fromUtf8(line->toByteArray()));
    FUZZ_VERIFY(lines.isEmpty(), QString());
    const JournalSummary summary = summaryOf(file);
    FUZZ_VERIFY(summary.figures.renamed >= 0, QString::number(summary.figures.renamed));
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    FUZZ_VERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), file.errorString());
}

/// Whatever is in the folder: it is listed, pruned and forgotten.
void verifyFolder(const QByteArray &run, const QByteArray &undo)
{
    const QString first = u"20260801T135741123Z-00000000.jsonl"_s;
    const QString second = u"20260801T135741124Z-00000000.jsonl"_s;
    QDir().mkdir(u"undo"_s);
    JournalFolder journals(QDir::current().filePath(u"undo"_s));
    write(journals.filePath(first), run);
    write(journals.filePath(second), undo);
    const QList<JournalInfo> list = journals.list();
    FUZZ_VERIFY(list.size() == 2, QString());
    for (const JournalInfo &journal : list) {
        FUZZ_VERIFY(journal.standing >= 0 && journal.standing <= std::max<qint64>(journal.renamed, 0),
                    journal.name);
        (void)journals.takenBack(journal.name, list);
        (void)journals.touchedBy(journal.name);
    }
    (void)JournalFolder::undoable(list);
    (void)JournalFolder::redoable(list);
    (void)journals.leave(first);
    journals.prune();
    FUZZ_VERIFY(journals.forgetAll(), QString());
    FUZZ_VERIFY(journals.list().isEmpty(), QString());
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

/// A journal; behind a line "===", another that may take the first one back. "MACHINE" in them is this
/// machine.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    bytes.replace("MACHINE", thisMachine().toLatin1());
    verifyReading(bytes);
    const qsizetype border = bytes.indexOf("\n===\n");
    verifyFolder(border < 0 ? bytes : bytes.first(border + 1),
                 border < 0 ? QByteArray() : bytes.sliced(border + 5));
    return 0;
}
