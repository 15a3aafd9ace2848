// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/translationfile.h"

#include <QMap>
#include <QtEndian>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// A file: the magic number, then sections. A section: its kind in one byte, its length in four, its bytes.
// All numbers are big-endian.
constexpr char magic[] = "\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd";
constexpr qsizetype magicLength = sizeof(magic) - 1;

enum class Section : quint8 {
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
    NumerusRules = 0x88,
    Language = 0xa7,
};

using Sections = QMap<Section, QByteArrayView>;

// The parts of a message: what they are in one byte, then their bytes, most of them behind their length.
enum Part : quint8 { End = 1, Translation = 3, Obsolete = 5, SourceText = 6, Context = 7, Comment = 8 };
constexpr quint32 emptyTranslation = 0xffffffff;

// A hash, and where its message begins.
constexpr qsizetype hashLength = 8;

/// Takes numbers and bytes off the front, and never more than there are.
class Reader final
{
public:
    explicit Reader(QByteArrayView allBytes)
        : bytes(allBytes)
    {
    }

    [[nodiscard]] qsizetype position() const { return next; }
    [[nodiscard]] bool atEnd() const { return next == bytes.size(); }

    template <typename Number>
    [[nodiscard]] std::optional<Number> number()
    {
        const auto taken = view(sizeof(Number));
        return taken ? std::optional(qFromBigEndian<Number>(taken->data())) : std::nullopt;
    }
    [[nodiscard]] std::optional<QByteArrayView> view(qsizetype length)
    {
        if (length > bytes.size() - next)
            return std::nullopt;
        next += length;
        return bytes.sliced(next - length, length);
    }
    /// The bytes behind their length.
    [[nodiscard]] std::optional<QByteArrayView> block()
    {
        const auto length = number<quint32>();
        return length ? view(*length) : std::nullopt;
    }

private:
    QByteArrayView bytes;
    qsizetype next = 0;
};

/// No value where one of them reaches beyond the end of the file. Of several of a kind the last counts.
std::optional<Sections> sectionsOf(const QByteArray &content)
{
    Sections sections;
    Reader reader(QByteArrayView(content).sliced(magicLength));
    while (!reader.atEnd()) {
        const auto kind = reader.number<quint8>();
        const auto bytes = reader.block();
        if (!bytes)
            return std::nullopt;
        if (!bytes->isEmpty())
            sections.insert(static_cast<Section>(*kind), *bytes);
    }
    return sections;
}

bool skipTranslation(Reader &reader)
{
    const auto length = reader.number<quint32>();
    if (!length || *length == emptyTranslation)
        return length.has_value();
    return *length % sizeof(char16_t) == 0 && reader.view(*length);
}

bool skipMessage(Reader &reader)
{
    while (const auto part = reader.number<quint8>()) {
        switch (*part) {
        case End:
            return true;
        case Translation:
            if (!skipTranslation(reader))
                return false;
            break;
        case Obsolete:
            if (!reader.number<quint32>())
                return false;
            break;
        case SourceText:
        case Context:
        case Comment:
            if (!reader.block())
                return false;
            break;
        default:
            return false;
        }
    }
    return false;
}

/// Whether the messages fill their section, one behind the other, and every hash leads to the beginning of
/// one.
bool areMessagesWhole(QByteArrayView hashes, QByteArrayView messages)
{
    std::vector<quint32> beginnings;
    Reader reader(messages);
    while (!reader.atEnd()) {
        beginnings.push_back(static_cast<quint32>(reader.position()));
        if (!skipMessage(reader))
            return false;
    }
    if (hashes.size() % hashLength != 0)
        return false;
    Reader entries(hashes);
    while (entries.number<quint32>()) {
        if (!std::binary_search(beginnings.begin(), beginnings.end(), *entries.number<quint32>()))
            return false;
    }
    return true;
}

/// Whether the names at this place of the pool come to their end, an empty one. Those in known do.
bool isListOfNames(QByteArrayView pool, qsizetype start, std::vector<bool> &known)
{
    if (start > pool.size())
        return false;
    Reader reader(pool.sliced(start));
    std::optional<quint8> length;
    do {
        const qsizetype position = start + reader.position();
        length = reader.number<quint8>();
        if (!length || !reader.view(*length))
            return false;
        if (known.at(static_cast<size_t>(position)))
            return true;
        known.at(static_cast<size_t>(position)) = true;
    } while (*length != 0);
    return true;
}

/// A table of places in the pool of names behind it, in units of two bytes; 0 stands for none.
bool areContextsWhole(QByteArrayView contexts)
{
    if (contexts.isEmpty())
        return true;
    Reader reader(contexts);
    const auto entries = reader.number<quint16>();
    const auto table = entries ? reader.view(*entries * qsizetype{sizeof(quint16)}) : std::nullopt;
    if (!table || table->isEmpty())
        return false;
    const QByteArrayView pool = contexts.sliced(reader.position());
    std::vector<bool> known(static_cast<size_t>(pool.size()), false);
    Reader places(*table);
    while (const auto place = places.number<quint16>()) {
        if (*place != 0 && !isListOfNames(pool, *place * qsizetype{2}, known))
            return false;
    }
    return true;
}

} // namespace

QByteArray installableTranslation(const QByteArray &content)
{
    if (!content.startsWith(QByteArrayView(magic, magicLength)))
        return {};
    const auto sections = sectionsOf(content);
    if (!sections || !areContextsWhole(sections->value(Section::Contexts)) ||
        !areMessagesWhole(sections->value(Section::Hashes), sections->value(Section::Messages)))
        return {};
    QByteArray checked = content.first(magicLength);
    for (const Section kind :
         {Section::Language, Section::Contexts, Section::Hashes, Section::NumerusRules, Section::Messages}) {
        const QByteArrayView bytes = sections->value(kind);
        if (bytes.isEmpty())
            continue;
        const auto length = qToBigEndian(static_cast<quint32>(bytes.size()));
        checked.append(static_cast<char>(kind));
        checked.append(reinterpret_cast<const char *>(&length), sizeof(length));
        checked.append(bytes.data(), bytes.size());
    }
    return checked;
}
