// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/examplerules.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct ExampleRules
{
    Q_DECLARE_TR_FUNCTIONS(ExampleRules)
};

RuleSet set(const QString &name, const QList<Parameters> &rules)
{
    RuleSet result{name, {}, {}};
    for (const Parameters &parameters : rules)
        result.rules.append(SetRule{{parameters, true}, {}});
    return result;
}

Parameters pattern(const QString &what, const QString &with)
{
    return ReplaceParameters(what, with, true);
}

} // namespace

QList<RuleSet> exampleRuleSets()
{
    const QString photo = ExampleRules::tr("Photo");
    return {
        // The number stands behind the word and the blank: "Photo 001.jpg".
        set(ExampleRules::tr("Number photos"),
            {pattern(u"^.*(\\.[^.]*)$"_s, photo + " \\1"_L1),
             EnumerateParameters{2, 1, static_cast<int>(photo.size()) + 1, true}}),
        set(ExampleRules::tr("Blanks for underscores"), {ReplaceParameters(u"_"_s, u" "_s, false)}),
        // Changing the case but that of the extension takes a name to have one: it gets a dot for so long.
        set(ExampleRules::tr("Tidy upper and lower case"),
            {pattern(u"^([^.]*)$"_s, u"\\1."_s),
             ChangeCaseParameters{.lower = true, .ignoreExtension = false},
             ChangeCaseParameters{.firstLetters = true, .ignoreExtension = true}, pattern(u"\\.$"_s, {})}),
        set(ExampleRules::tr("Without camera prefixes"),
            {pattern(u"^(IMG|DSC|DSCN|DSCF|PXL|MVI|VID|P)[_-]?(?=\\d)"_s, {})}),
        set(ExampleRules::tr("Dates as 2024-01-31"),
            {pattern(u"(^|\\D)((?:19|20)\\d\\d)(0[1-9]|1[0-2])(0[1-9]|[12]\\d|3[01])(?!\\d)"_s,
                     u"\\1\\2-\\3-\\4"_s)}),
        set(ExampleRules::tr("Track numbers with two digits"), {pattern(u"^(\\d)(?!\\d)"_s, u"0\\1"_s)}),
        set(ExampleRules::tr("\"Title - Artist\" for \"Artist - Title\""),
            {pattern(u"^((?:(?! - ).)+) - (.+)(\\.[^.]*)$"_s, u"\\2 - \\1\\3"_s)}),
    };
}
