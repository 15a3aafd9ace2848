// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalline.h"

#include "run/jsontext.h"

namespace {

/// Room for the names of an object's members and its numbers.
constexpr qsizetype forTheRest = 400;
/// More than any run can have; sums of it are numbers still.
constexpr qint64 mostFiles = qint64{1} << 40;

/// One line, with room for so many characters of texts.
template <typename Write>
QByteArray line(qsizetype characters, const Write &write)
{
    QByteArray bytes(forTheRest + JsonWriter::mostBytes(characters), Qt::Uninitialized);
    JsonWriter json(bytes.data());
    write(json);
    json.raw("}\n");
    bytes.truncate(json.end() - bytes.data());
    return bytes;
}

void add(JsonWriter &json, QByteArrayView name, qint64 number)
{
    json.raw(name);
    json.number(number);
}

void add(JsonWriter &json, QByteArrayView name, QStringView text)
{
    json.raw(name);
    json.text(text);
}

/// As a text: numbers of files may be larger than what other readers keep of a number.
void addNumber(JsonWriter &json, QByteArrayView name, quint64 number)
{
    json.raw(name);
    json.number(number);
    json.raw(R"(")");
}

void addWhich(JsonWriter &json, const FileStamp &file)
{
    if (file.number != 0) {
        addNumber(json, R"(,"file":")", file.number);
        return;
    }
    add(json, R"(,"size":)", file.size);
    add(json, R"(,"modified":)", file.modified);
}

void addFiles(JsonWriter &json, int files)
{
    if (files > 1)
        add(json, R"(,"files":)", files);
}

void addHalf(JsonWriter &json, int half)
{
    if (half > 0)
        add(json, R"(,"half":)", half);
}

std::optional<QDateTime> timeOf(const JsonObject &object)
{
    const QDateTime time = QDateTime::fromString(object.text("time").value_or(QString()), Qt::ISODateWithMs);
    return time.isValid() && time.timeSpec() == Qt::UTC ? std::optional(time) : std::nullopt;
}

JournalLine headerOf(const JsonObject &object, bool isUndo)
{
    const auto version = object.number("version");
    const auto time = timeOf(object);
    const auto rows = object.number("rows");
    const auto takesBack = object.text("of");
    if (!object.has("format", "orvanto-journal") || version.value_or(0) < 1 || !time)
        return {};
    const qint64 planned = object.number("planned").value_or(0);
    // A newer one may say the rest in other ways.
    if (*version <= journalVersion && (rows.value_or(-1) < 0 || planned < 0 || planned > mostFiles ||
                                       takesBack.value_or(QString()).isEmpty() == isUndo))
        return {};
    return JournalHeader{.version = *version,
                         .time = *time,
                         .program = object.text("program").value_or(QString()),
                         .machine = object.text("machine").value_or(QString()),
                         .rows = rows.value_or(0),
                         .takesBack = takesBack.value_or(QString()),
                         .planned = planned};
}

FileStamp stampOf(const JsonObject &object)
{
    return {.volume = object.text("volume").value_or(QString()),
            .number = object.text("file").value_or(QString()).toULongLong(),
            .size = object.number("size").value_or(0),
            .modified = object.number("modified").value_or(0)};
}

JournalLine wishOf(const JsonObject &object)
{
    auto from = object.text("from");
    auto to = object.text("to");
    if (!from || !to)
        return {};
    return JournalWish{.folder = object.text("folder"),
                       .from = std::move(*from),
                       .to = std::move(*to),
                       .file = stampOf(object),
                       .isStamped = object.text("file") || object.number("size")};
}

/// Of one file, or of both of an exchange.
std::optional<int> filesOf(const JsonObject &object)
{
    const qint64 files = object.number("files").value_or(1);
    return files == 1 || files == 2 ? std::optional(static_cast<int>(files)) : std::nullopt;
}

/// Of an exchange that is taken back by one of its files.
std::optional<int> halfOf(const JsonObject &object)
{
    const qint64 half = object.number("half").value_or(0);
    return half >= 0 && half <= 2 ? std::optional(static_cast<int>(half)) : std::nullopt;
}

JournalLine entryOf(const JsonObject &object, bool isExchange)
{
    const auto number = object.number("n");
    const auto half = halfOf(object);
    auto folder = object.text("folder");
    auto from = object.text("from");
    auto to = object.text("to");
    if (number.value_or(-1) < 0 || !folder || !from || !to || object.number("of").value_or(0) < 0 || !half)
        return {};
    FileStamp file = stampOf(object);
    std::optional<FileStamp> other;
    if (isExchange) {
        other = FileStamp{.volume = file.volume,
                          .number = object.text("other").value_or(QString()).toULongLong()};
        if (file.number == 0 || other->number == 0)
            return {};
    }
    return JournalEntry{.number = *number,
                        .takesBack = object.number("of").value_or(-1),
                        .folder = std::move(*folder),
                        .from = std::move(*from),
                        .to = std::move(*to),
                        .file = std::move(file),
                        .other = std::move(other),
                        .half = *half};
}

JournalLine figuresOf(const JsonObject &object)
{
    JournalFigures result;
    if (object.has("state", "complete"))
        result.state = JournalFigures::State::Complete;
    else if (object.has("state", "cancelled"))
        result.state = JournalFigures::State::Cancelled;
    else if (object.has("kind", "end"))
        return {};
    const std::pair<QByteArrayView, qint64 &> figures[] = {{"renamed", result.renamed},
                                                           {"refused", result.refused},
                                                           {"kept", result.kept},
                                                           {"unrecorded", result.unrecorded},
                                                           {"folders", result.folders}};
    for (const auto &[name, figure] : figures) {
        figure = object.number(name).value_or(-1);
        if (figure < 0 || figure > mostFiles)
            return {};
    }
    return result;
}

} // namespace

JournalEntry otherOf(const JournalEntry &exchange)
{
    return {.number = exchange.number,
            .takesBack = exchange.takesBack,
            .folder = exchange.folder,
            .from = exchange.to,
            .to = exchange.from,
            .file = exchange.other.value_or(FileStamp())};
}

QByteArray toJson(const JournalHeader &header)
{
    const qsizetype characters = header.program.size() + header.machine.size() + header.takesBack.size();
    return line(characters, [&](JsonWriter &json) {
        json.raw(header.takesBack.isEmpty() ? R"({"kind":"run")" : R"({"kind":"undo")");
        json.raw(R"(,"format":"orvanto-journal")");
        add(json, R"(,"version":)", header.version);
        add(json, R"(,"time":)", header.time.toUTC().toString(Qt::ISODateWithMs));
        add(json, R"(,"program":)", header.program);
        add(json, R"(,"machine":)", header.machine);
        add(json, R"(,"rows":)", header.rows);
        if (!header.takesBack.isEmpty())
            add(json, R"(,"of":)", header.takesBack);
        if (header.planned > 0)
            add(json, R"(,"planned":)", header.planned);
    });
}

qsizetype mostBytes(const JournalEntryView &entry)
{
    return forTheRest + JsonWriter::mostBytes(entry.folder.size() + entry.from.size() + entry.to.size() +
                                              entry.file.volume.size());
}

QByteArray folderJson(QStringView folder)
{
    QByteArray bytes(JsonWriter::mostBytes(folder.size()), Qt::Uninitialized);
    JsonWriter json(bytes.data());
    json.text(folder);
    bytes.truncate(json.end() - bytes.data());
    return bytes;
}

qsizetype mostBytes(const JournalWishView &wish)
{
    return forTheRest +
           JsonWriter::mostBytes(wish.folder.size() + wish.from.size() + wish.to.size() + wish.volume.size());
}

char *writeJson(const JournalWishView &wish, char *memory)
{
    JsonWriter json(memory);
    json.raw(R"({"kind":"wish")");
    if (!wish.folder.isNull())
        add(json, R"(,"folder":)", wish.folder);
    add(json, R"(,"from":)", wish.from);
    add(json, R"(,"to":)", wish.to);
    if (!wish.volume.isEmpty())
        add(json, R"(,"volume":)", wish.volume);
    if (!wish.file.volume.isEmpty())
        addWhich(json, wish.file);
    json.raw("}\n");
    return json.end();
}

char *writeJson(const JournalEntryView &entry, QByteArrayView folder, char *memory)
{
    JsonWriter json(memory);
    json.raw(entry.other ? R"({"kind":"exchange")" : R"({"kind":"rename")");
    add(json, R"(,"n":)", entry.number);
    if (entry.takesBack >= 0)
        add(json, R"(,"of":)", entry.takesBack);
    addHalf(json, entry.half);
    json.raw(R"(,"folder":)");
    json.raw(folder);
    add(json, R"(,"from":)", entry.from);
    add(json, R"(,"to":)", entry.to);
    if (!entry.file.volume.isEmpty()) {
        add(json, R"(,"volume":)", entry.file.volume);
        addWhich(json, entry.file);
    }
    if (entry.other)
        addNumber(json, R"(,"other":")", entry.other->number);
    json.raw("}\n");
    return json.end();
}

QByteArray toJson(const JournalEntry &entry)
{
    const JournalEntryView view{entry.number,
                                entry.takesBack,
                                entry.folder,
                                entry.from,
                                entry.to,
                                entry.file,
                                entry.other ? &*entry.other : nullptr,
                                entry.half};
    QByteArray bytes(mostBytes(view), Qt::Uninitialized);
    bytes.truncate(writeJson(view, folderJson(entry.folder), bytes.data()) - bytes.data());
    return bytes;
}

QByteArray toJson(const JournalRefusal &refusal)
{
    return line(refusal.reason.size(), [&](JsonWriter &json) {
        add(json, R"({"kind":"refused","n":)", refusal.number);
        add(json, R"(,"why":)", refusal.reason);
    });
}

QByteArray toJson(const JournalKept &kept)
{
    return line(0, [&](JsonWriter &json) {
        add(json, R"({"kind":"kept","of":)", kept.takesBack);
        addHalf(json, kept.half);
        addFiles(json, kept.files);
    });
}

QByteArray toJson(const JournalBack &back)
{
    return line(0, [&](JsonWriter &json) {
        add(json, R"({"kind":"back","n":)", back.number);
        addFiles(json, back.files);
    });
}

QByteArray toJson(const JournalFigures &figures)
{
    return line(0, [&](JsonWriter &json) {
        json.raw(figures.state == JournalFigures::State::Running    ? R"({"kind":"so far")"
                 : figures.state == JournalFigures::State::Complete ? R"({"kind":"end","state":"complete")"
                                                                    : R"({"kind":"end","state":"cancelled")");
        add(json, R"(,"renamed":)", figures.renamed);
        add(json, R"(,"refused":)", figures.refused);
        add(json, R"(,"kept":)", figures.kept);
        add(json, R"(,"unrecorded":)", figures.unrecorded);
        add(json, R"(,"folders":)", figures.folders);
    });
}

QByteArray toJson(const JournalLeft & /*left*/)
{
    return line(0, [](JsonWriter &json) { json.raw(R"({"kind":"left")"); });
}

JournalLine fromJson(QByteArrayView line)
{
    const auto object = JsonObject::parse(line);
    if (!object)
        return {};
    if (object->has("kind", "rename"))
        return entryOf(*object, false);
    if (object->has("kind", "wish"))
        return wishOf(*object);
    if (object->has("kind", "exchange"))
        return entryOf(*object, true);
    if (object->has("kind", "run") || object->has("kind", "undo"))
        return headerOf(*object, object->has("kind", "undo"));
    const qint64 number = object->number("n").value_or(-1);
    if (object->has("kind", "refused") && number >= 0)
        return JournalRefusal{.number = number, .reason = object->text("why").value_or(QString())};
    const qint64 takesBack = object->number("of").value_or(-1);
    const auto files = filesOf(*object);
    const auto half = halfOf(*object);
    if (object->has("kind", "kept") && takesBack >= 0 && files && half)
        return JournalKept{.takesBack = takesBack, .files = *files, .half = *half};
    if (object->has("kind", "back") && number >= 0 && files)
        return JournalBack{.number = number, .files = *files};
    if (object->has("kind", "end") || object->has("kind", "so far"))
        return figuresOf(*object);
    return object->has("kind", "left") ? JournalLine(JournalLeft()) : JournalLine();
}
