// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/spelling.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

qsizetype utf8Size(QStringView text)
{
    qsizetype size = 0;
    for (const QChar character : text) {
        if (character.unicode() < 0x80)
            size += 1;
        else if (character.unicode() < 0x800 || character.isSurrogate())
            size += 2; // a pair of surrogates takes four
        else
            size += 3;
    }
    return size;
}

} // namespace

QString foldedName(QStringView name, FolderTraits::Spelling spelling)
{
    if (spelling == FolderTraits::Spelling::Folded) {
        // Upper case first: folding alone leaves letters that stand for several.
        const QString decomposed = name.toString().normalized(QString::NormalizationForm_D);
        return decomposed.toUpper().toCaseFolded().normalized(QString::NormalizationForm_D);
    }
    QString folded = name.toString();
    for (QChar &character : folded)
        character = character.toUpper();
    return folded;
}

QString otherCase(QStringView name)
{
    QString other = name.toString();
    for (QChar &character : other)
        character = character.isUpper() ? character.toLower() : character.toUpper();
    return other;
}

bool hasForbiddenCharacter(QStringView name)
{
    return std::any_of(name.begin(), name.end(), [](QChar character) {
        return character.unicode() < 0x20 || u"\"*/:<>?\\|"_s.contains(character);
    });
}

bool endsInDotOrBlank(QStringView name)
{
    return name.endsWith(u'.') || name.endsWith(u' ');
}

bool namesDevice(QStringView name)
{
    const QString stem = name.toString().section(u'.', 0, 0).trimmed().toUpper();
    static const QStringList devices = {u"CON"_s, u"PRN"_s, u"AUX"_s, u"NUL"_s, u"CONIN$"_s, u"CONOUT$"_s};
    if (devices.contains(stem))
        return true;
    const bool isPort = stem.size() == 4 && (stem.startsWith("COM"_L1) || stem.startsWith("LPT"_L1));
    return isPort && u"0123456789¹²³"_s.contains(stem.back());
}

bool isLongerThan(QStringView text, qsizetype most, FolderTraits::LengthUnit unit)
{
    if (unit == FolderTraits::LengthUnit::Utf16)
        return text.size() > most;
    // Most names are too short to be counted.
    return text.size() * 3 > most && utf8Size(text) > most;
}
