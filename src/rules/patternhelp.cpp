// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/patternhelp.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString lastLine()
{
    return QCoreApplication::translate("Rules", "Upper and lower case differ; as much as possible is found.");
}

} // namespace

QList<PatternHelpLine> patternHelp()
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("Rules", source);
    };
    return {{u"."_s, text(QT_TRANSLATE_NOOP("Rules", "any character"))},
            {u"\\."_s, text(QT_TRANSLATE_NOOP("Rules", "the dot itself"))},
            {u"[abc]"_s, text(QT_TRANSLATE_NOOP("Rules", "one of these characters"))},
            {u"[^abc]"_s, text(QT_TRANSLATE_NOOP("Rules", "any other character"))},
            {u"\\d"_s, text(QT_TRANSLATE_NOOP("Rules", "a digit"))},
            {u"\\w"_s, text(QT_TRANSLATE_NOOP("Rules", "a letter, a digit or _"))},
            {u"\\s"_s, text(QT_TRANSLATE_NOOP("Rules", "a blank"))},
            {u"a*"_s, text(QT_TRANSLATE_NOOP("Rules", "any number of a, also none"))},
            {u"a+"_s, text(QT_TRANSLATE_NOOP("Rules", "one a or more"))},
            {u"a?"_s, text(QT_TRANSLATE_NOOP("Rules", "one a or none"))},
            {u"a{2,4}"_s, text(QT_TRANSLATE_NOOP("Rules", "two to four a"))},
            {u"ab|cd"_s, text(QT_TRANSLATE_NOOP("Rules", "either ab or cd"))},
            {u"^"_s, text(QT_TRANSLATE_NOOP("Rules", "the beginning of the name"))},
            {u"$"_s, text(QT_TRANSLATE_NOOP("Rules", "the end of the name"))},
            {u"(ab)"_s, text(QT_TRANSLATE_NOOP("Rules", "a group: \\1 in the new text is what it found"))}};
}

QString patternToolTip(const QString &title)
{
    QString tip = "<p><b>"_L1 + title.toHtmlEscaped() + "</b></p><table>"_L1;
    const QList<PatternHelpLine> lines = patternHelp();
    for (const PatternHelpLine &line : lines)
        tip += "<tr><td><b>"_L1 + line.pattern.toHtmlEscaped() + "</b>&nbsp;&nbsp;</td><td>"_L1 +
               line.meaning.toHtmlEscaped() + "</td></tr>"_L1;
    return tip + "</table><p>"_L1 + lastLine().toHtmlEscaped() + "</p>"_L1;
}

QString patternDescription()
{
    QString description;
    const QList<PatternHelpLine> lines = patternHelp();
    for (const PatternHelpLine &line : lines)
        description += line.pattern + ": "_L1 + line.meaning + "; "_L1;
    return description + lastLine();
}
