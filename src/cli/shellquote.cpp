// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/shellquote.h"

#include "platform/bytetext.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whether a terminal may show something else for it, or do something.
bool isUnprintable(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        break;
    }
    // Those that turn the direction of writing make one name look like another.
    switch (QChar::direction(character)) {
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return true;
    default:
        return false;
    }
}

/// Whether a shell takes the character, which is at that place of the text, for itself alone.
bool isPlain(QStringView text, qsizetype at)
{
    switch (text.at(at).unicode()) {
    case u'#':
    case u'~':
        return at > 0;
    // Deliberate: ls leaves those of a pair unquoted, which shells would take for several words.
    case u'{':
    case u'}':
        return text.size() > 1 && !(text.contains(u'{') && text.contains(u'}'));
    default:
        return !u" \"!$&'()*;<=>?[\\^`|"_s.contains(text.at(at));
    }
}

/// Whether the character means itself in double quotes, too, as far as `ls` uses them.
bool isPlainInDoubleQuotes(QStringView text, qsizetype at)
{
    switch (text.at(at).unicode()) {
    case u' ':
    case u'\'':
        return true;
    case u'#':
    case u'~':
        return at == 0;
    case u'{':
    case u'}':
        return false;
    default:
        return isPlain(text, at);
    }
}

template <typename Check>
bool allOf(QStringView text, Check check)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!check(text, i))
            return false;
    }
    return true;
}

bool hasUnprintable(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    return !text.isValidUtf16() || std::any_of(characters.begin(), characters.end(), isUnprintable);
}

/// Of a byte: \n, or three octal digits.
QString escaped(uchar byte)
{
    switch (byte) {
    case '\a':
        return u"\\a"_s;
    case '\b':
        return u"\\b"_s;
    case '\f':
        return u"\\f"_s;
    case '\n':
        return u"\\n"_s;
    case '\r':
        return u"\\r"_s;
    case '\t':
        return u"\\t"_s;
    case '\v':
        return u"\\v"_s;
    default:
        return u"\\%1"_s.arg(byte, 3, 8, QLatin1Char('0'));
    }
}

/// Between quotes, what cannot be printed in quotes of their own: 'a'$'\n''b'.
QString withEscapes(const QString &text)
{
    QString result(u'\'');
    bool isEscaping = false;
    const auto setEscaping = [&](bool escaping) {
        if (std::exchange(isEscaping, escaping) != escaping)
            result += escaping ? "'$'"_L1 : "''"_L1;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const char32_t character = isPair ? QChar::surrogateToUcs4(text.at(i), text.at(i + 1))
                                          : static_cast<char32_t>(text.at(i).unicode());
        const QStringView whole = QStringView(text).sliced(i, isPair ? 2 : 1);
        if (isUnprintable(character)) {
            setEscaping(true);
            const QByteArray bytes = bytesOfText(whole);
            for (const char byte : bytes)
                result += escaped(static_cast<uchar>(byte));
        } else if (whole == u"'") {
            isEscaping = false;
            result += "'\\''"_L1;
        } else {
            setEscaping(false);
            result += whole;
        }
        i += isPair ? 1 : 0;
    }
    return result + u'\'';
}

} // namespace

QString shellQuoted(const QString &text)
{
    // Nearly all names are such.
    const auto isSimple = [](QChar character) {
        return character.unicode() < 0x80 && (character.isLetterOrNumber() || u"._-/"_s.contains(character));
    };
    if (!text.isEmpty() && std::all_of(text.begin(), text.end(), isSimple))
        return text;
    if (hasUnprintable(text))
        return withEscapes(text);
    if (!text.isEmpty() && allOf(text, isPlain))
        return text;
    if (text.contains(u'\'') && allOf(text, isPlainInDoubleQuotes))
        return u'"' + text + u'"';
    return u'\'' + QString(text).replace(u'\'', "'\\''"_L1) + u'\'';
}
