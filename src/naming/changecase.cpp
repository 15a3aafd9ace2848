// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/halves.h"
#include "naming/transform.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString withFirstLettersUpper(const QString &name)
{
    QString result;
    result.reserve(name.size());
    QChar previous;
    for (const QChar character : name) {
        // Deliberate: the previous character is narrowed to Latin-1, so a letter outside it does not count as
        // one and every character after it is upper-cased. Letters inside a word are never lowered.
        const bool insideWord = QChar(QLatin1Char(previous.toLatin1())).isLetter();
        previous = insideWord ? character : character.toUpper();
        result.append(previous);
    }
    return result;
}

/// name after QString::toLower or toUpper. Half a character stays as it is, for a later rule may put the
/// other half beside it again; QString would write U+FFFD.
QString converted(const QString &name, QString (*convert)(const QString &))
{
    if (name.isValidUtf16())
        return convert(name);
    QString result;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (!isHalf(name, i))
            continue;
        result += convert(name.sliced(begin, i - begin)) + name.at(i);
        begin = i + 1;
    }
    return result + convert(name.sliced(begin));
}

/// name without every match of ".<extension>$". Deliberate: the extension is used unescaped, the dot stands
/// for any character, and without an extension the name loses its last character.
QString withoutExtension(const QString &name, const QString &extension)
{
    const auto isPlain = [](QChar c) {
        return c.isLetterOrNumber() || c == u'_' || c == u'-' || c == u' ';
    };
    if (std::all_of(extension.begin(), extension.end(), isPlain)) {
        // Such a pattern has one match at most, at the very end: no need to compile it for every file.
        return name.chopped(std::min(name.size(), extension.size() + 1));
    }
    return RegExp(u'.' + extension + u'$').removedFrom(name);
}

} // namespace

QString transformed(const ChangeCaseParameters &parameters, QString name, int /*row*/)
{
    QString extension;
    if (parameters.ignoreExtension) {
        extension = QFileInfo(name).suffix();
        name = withoutExtension(name, extension);
    }
    QString result;
    if (parameters.firstLetters)
        result = withFirstLettersUpper(name);
    else if (parameters.lower)
        result = converted(name, [](const QString &text) { return text.toLower(); });
    else if (parameters.upper)
        result = converted(name, [](const QString &text) { return text.toUpper(); });
    // Deliberate: the dot comes back even where there was none.
    if (parameters.ignoreExtension)
        result += u'.' + extension;
    return result;
}
