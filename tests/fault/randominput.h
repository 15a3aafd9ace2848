// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "support/drivenwindow.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

/// Random trees, lists and chains of rules, leaning towards what goes wrong. The same seed gives the same.
class RandomInput
{
public:
    explicit RandomInput(quint32 seed)
        : generator(seed)
    {
    }

    [[nodiscard]] int below(int limit) { return generator.bounded(limit); }
    [[nodiscard]] bool chance(int percent) { return below(100) < percent; }
    template <typename List>
    [[nodiscard]] auto oneOf(const List &list)
    {
        return list.at(below(static_cast<int>(list.size())));
    }

    /// A name that the file system takes.
    QString fileName()
    {
        static const QStringList names = {
            u"a"_s,           u"A"_s,          u"aa"_s,           u"b"_s,
            u"a.txt"_s,       u"A.TXT"_s,      u"b.txt"_s,        u"1"_s,
            u"2"_s,           u"12"_s,         u"IMG_0001.JPG"_s, u"IMG_0002.JPG"_s,
            u"no dot"_s,      u"NO DOT"_s,     u".hidden"_s,      u".a"_s,
            u"...a"_s,        u"a."_s,         u"a.b.c"_s,        u" a "_s,
            u"a'b"_s,         u"%1"_s,         u"%2 %1.txt"_s,    u"a\nb"_s,
            u"a\\b"_s,        u"straße.txt"_s, u"STRASSE.txt"_s,  u"é.txt"_s,
            u"e\u0301.txt"_s, u"日本語.txt"_s, u"İi.txt"_s,       u"😀.txt"_s,
            u"a😀"_s,          u"😀😀"_s,         u"A🎉.TXT"_s,       u"\U00010400b"_s,
            u"ǆ"_s,           u"ﬁle"_s,        u"\u200f.txt"_s,   u"?"_s,
            u"*"_s,           u"a|b"_s,        u"[a].txt"_s,      u"\uFFFD"_s};
        if (chance(80))
            return oneOf(names);
        if (chance(50))
            return u"x"_s.repeated(245 + below(11));
        return u"ü"_s.repeated(120 + below(8)) + QString::number(below(10));
    }

    /// Adds one rule of a random kind to the chain.
    void addRule(const DrivenWindow &window)
    {
        switch (below(5)) {
        case ReplaceKind:
            addReplace(window);
            break;
        case TrimKind:
            window.addTrim(position(), oneOf(QList<int>{1, 1, 2, 3, 5, 100, 512}), chance(50));
            break;
        case ChangeCaseKind:
            window.addChangeCase(
                oneOf(QList<QRadioButton * RuleWidgetChangeCase::*>{
                    &RuleWidgetChangeCase::radioButtonLower, &RuleWidgetChangeCase::radioButtonUpper,
                    &RuleWidgetChangeCase::radioButtonFirstLetters}),
                chance(50));
            break;
        case InsertTextKind:
            window.addInsert(insertedText(), position(), chance(60));
            break;
        default:
            window.addEnumerate(below(3), below(4), position(), chance(50));
            break;
        }
    }

private:
    int position() { return oneOf(QList<int>{0, 0, 0, 1, 1, 2, 3, 5, 20, 300, 512}); }

    QString insertedText()
    {
        static const QStringList texts = {QString(), u"x"_s,   u"a"_s,    u"."_s,         u".."_s,  u"/"_s,
                                          u"sub/"_s, u"../"_s, u"./"_s,   u"nowhere/"_s,  u"sub"_s, u"é"_s,
                                          u"😀"_s,    u" "_s,   u"'%1'"_s, u"\U00010428"_s};
        return chance(5) ? u"y"_s.repeated(200) : oneOf(texts);
    }

    void addReplace(const DrivenWindow &window)
    {
        static const QStringList plain = {QString(), u"a"_s, u"A"_s, u"b"_s, u"."_s,    u".txt"_s,
                                          u" "_s,    u"1"_s, u"é"_s, u"😀"_s, u"IMG_"_s, u"x"_s};
        static const QStringList patterns = {QString(), u"."_s,      u".*"_s,     u"^."_s, u".$"_s,
                                             u"\\d+"_s, u"(.)(.)"_s, u"[ab]"_s,   u"["_s,  u"(a"_s,
                                             u"\\."_s,  u"a|b"_s,    u"\\..*$"_s, u"x+"_s, u"\\s"_s};
        static const QStringList results = {QString(),   QString(), u"a"_s, u"b"_s,
                                            u"\\2\\1"_s, u"\\1"_s,  u"/"_s, u"."_s,
                                            u"_"_s,      u"sub/"_s, u"ß"_s, u"\U00010400"_s};
        const bool regExp = chance(50);
        window.addReplace(oneOf(regExp ? patterns : plain), oneOf(results), regExp);
    }

    QRandomGenerator generator;
};
