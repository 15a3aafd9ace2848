// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/jsontext.h"

#include <charconv>
#include <cstring>

namespace {

constexpr auto hexDigits = "0123456789abcdef";

/// Whether a character below 0x80 stands for itself.
constexpr std::array<bool, 0x80> plain = [] {
    std::array<bool, 0x80> table{};
    for (char16_t unit = 0x20; unit < 0x7f; ++unit)
        table[unit] = unit != u'"' && unit != u'\\';
    return table;
}();

bool isPlain(char16_t unit)
{
    return unit < plain.size() && plain[unit];
}

/// Control characters, halves of a character, and the mark that readers of UTF-8 drop at a text's beginning.
bool isUnseen(char16_t unit)
{
    return unit < 0xa0 || QChar::isSurrogate(unit) || unit == QChar::ByteOrderMark;
}

char *writeUtf8(char *at, char32_t character)
{
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3f));
    };
    if (character < 0x800) {
        *at++ = static_cast<char>(0xc0 | (character >> 6));
        *at++ = tail(0);
    } else if (character < 0x10000) {
        *at++ = static_cast<char>(0xe0 | (character >> 12));
        *at++ = tail(6);
        *at++ = tail(0);
    } else {
        *at++ = static_cast<char>(0xf0 | (character >> 18));
        *at++ = tail(12);
        *at++ = tail(6);
        *at++ = tail(0);
    }
    return at;
}

/// The value of four hexadecimal digits, or -1.
int fourDigits(QByteArrayView digits)
{
    int value = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.begin() + 4, value, 16);
    return error == std::errc() && end == digits.begin() + 4 && digits.front() != '-' ? value : -1;
}

/// What stands behind a backslash, or null.
char16_t shortEscape(char letter)
{
    switch (letter) {
    case '"':
    case '\\':
    case '/':
        return static_cast<char16_t>(letter);
    case 'b':
        return u'\b';
    case 'f':
        return u'\f';
    case 'n':
        return u'\n';
    case 'r':
        return u'\r';
    case 't':
        return u'\t';
    default:
        return u'\0';
    }
}

QString decoded(QByteArrayView text)
{
    // QString drops a byte order mark at the beginning.
    const bool marked = text.startsWith("\xef\xbb\xbf");
    return marked ? QChar(QChar::ByteOrderMark) + QString::fromUtf8(text.sliced(3)) : QString::fromUtf8(text);
}

/// The text without its escapes, all of which are known to be good.
QString unescaped(QByteArrayView text)
{
    QString result;
    while (!text.isEmpty()) {
        const qsizetype backslash = text.indexOf('\\');
        result += decoded(backslash < 0 ? text : text.first(backslash));
        if (backslash < 0)
            break;
        if (text[backslash + 1] == 'u') {
            result += QChar(fourDigits(text.sliced(backslash + 2, 4)));
            text = text.sliced(backslash + 6);
        } else {
            result += QChar(shortEscape(text[backslash + 1]));
            text = text.sliced(backslash + 2);
        }
    }
    return result;
}

} // namespace

void JsonWriter::raw(QByteArrayView text)
{
    std::memcpy(at, text.data(), static_cast<size_t>(text.size()));
    at += text.size();
}

void JsonWriter::number(qint64 number)
{
    at = std::to_chars(at, at + 20, number).ptr;
}

void JsonWriter::number(quint64 number)
{
    at = std::to_chars(at, at + 20, number).ptr;
}

void JsonWriter::escaped(char16_t unit)
{
    *at++ = '\\';
    *at++ = 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        *at++ = hexDigits[(unit >> shift) & 0xf];
}

void JsonWriter::text(QStringView text)
{
    *at++ = '"';
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        const bool isPair =
            QChar::isHighSurrogate(unit) && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPlain(unit))
            *at++ = static_cast<char>(unit);
        else if (isPair)
            at = writeUtf8(at, QChar::surrogateToUcs4(unit, text[++i].unicode()));
        else if (isUnseen(unit))
            escaped(unit);
        else
            at = writeUtf8(at, unit);
    }
    *at++ = '"';
}

/// Reads one object. After anything unexpected it is at its end, and not ok.
class JsonParser final
{
public:
    explicit JsonParser(QByteArrayView line)
        : at(line.begin())
        , end(line.end())
    {
    }

    bool parse(JsonObject &object)
    {
        if (!takes('{'))
            return false;
        do {
            if (object.count == JsonObject::mostMembers || !member(object.members[object.count++]))
                return false;
        } while (takes(','));
        return takes('}') && isAtEnd();
    }

private:
    void skipBlanks()
    {
        while (at != end && (*at == ' ' || *at == '\t' || *at == '\r'))
            ++at;
    }
    bool isAtEnd()
    {
        skipBlanks();
        return at == end;
    }
    bool takes(char wanted)
    {
        skipBlanks();
        if (at == end || *at != wanted)
            return false;
        ++at;
        return true;
    }

    bool member(JsonObject::Member &member)
    {
        bool isEscaped = false;
        if (!takes('"') || !text(member.name, isEscaped) || isEscaped || !takes(':'))
            return false;
        member.isText = takes('"');
        return member.isText ? text(member.text, member.isEscaped) : number(member.number);
    }

    /// Up to the closing quote.
    bool text(QByteArrayView &text, bool &isEscaped)
    {
        const char *begin = at;
        for (; at != end && *at != '"'; ++at) {
            if (static_cast<unsigned char>(*at) < 0x20)
                return false;
            if (*at == '\\') {
                isEscaped = true;
                if (!skipEscape())
                    return false;
            }
        }
        text = QByteArrayView(begin, at);
        return at != end && *at++ == '"' && text.isValidUtf8();
    }

    /// To the last character of an escape.
    bool skipEscape()
    {
        if (end - at < 2)
            return false;
        ++at;
        if (*at != 'u')
            return shortEscape(*at) != u'\0';
        if (end - at < 5 || fourDigits({at + 1, 4}) < 0)
            return false;
        at += 4;
        return true;
    }

    /// A whole one, as JSON writes it.
    bool number(qint64 &number)
    {
        const char *digits = at != end && *at == '-' ? at + 1 : at;
        const auto [next, error] = std::from_chars(at, end, number);
        if (error != std::errc() || (*digits == '0' && next - digits > 1))
            return false;
        at = next;
        // A fraction or an exponent is none of ours.
        return at == end || (*at != '.' && *at != 'e' && *at != 'E');
    }

    const char *at;
    const char *end;
};

std::optional<JsonObject> JsonObject::parse(QByteArrayView line)
{
    JsonObject object;
    if (!JsonParser(line).parse(object))
        return std::nullopt;
    return object;
}

const JsonObject::Member *JsonObject::find(QByteArrayView name) const
{
    // Of two members of one name the last counts, as everywhere.
    for (qsizetype i = count - 1; i >= 0; --i) {
        if (members[i].name == name)
            return &members[i];
    }
    return nullptr;
}

std::optional<QString> JsonObject::text(QByteArrayView name) const
{
    const Member *member = find(name);
    if (!member || !member->isText)
        return std::nullopt;
    return member->isEscaped ? unescaped(member->text) : decoded(member->text);
}

std::optional<qint64> JsonObject::number(QByteArrayView name) const
{
    const Member *member = find(name);
    if (!member || member->isText)
        return std::nullopt;
    return member->number;
}

bool JsonObject::has(QByteArrayView name, QByteArrayView text) const
{
    const Member *member = find(name);
    return member && member->isText && member->text == text;
}
