// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "naming/describe.h"
#include "naming/transform.h"

namespace {

// Of what a rule makes so many characters are kept; docs/patterns.md says why.
constexpr qsizetype longestResult = 8192;

/// Written apart from the rule: one match after the other, from the start.
QString replacedLiterally(const QString &name, const QString &what, const QString &with)
{
    QString result;
    qsizetype position = 0;
    while (position < name.size()) {
        if (QStringView(name).mid(position).startsWith(what)) {
            result += with;
            position += what.size();
            if (!what.isEmpty())
                continue;
        }
        result += name.at(position++);
    }
    return what.isEmpty() ? result + with : result;
}

void verifyLiteral(const QString &name, const ReplaceParameters &parameters, const QString &result)
{
    if (parameters.replaceWhat == parameters.replaceWith)
        FUZZ_VERIFY(result == name || name.isEmpty() || parameters.replaceWhat.isEmpty(), result);
    const QString whole = replacedLiterally(name, parameters.replaceWhat, parameters.replaceWith);
    FUZZ_VERIFY(result == whole.left(longestResult), result);
}

/// What can be said of any pattern.
void verifyPattern(const RegExp &pattern, const QString &name, const QString &with, const QString &result)
{
    FUZZ_VERIFY(pattern.replacedIn(name, with).left(longestResult) == result, result);
    const QString removed = pattern.removedFrom(name);
    FUZZ_VERIFY(removed == pattern.replacedIn(name, QString()), removed);
    // What is left is the name without some of its characters, in their order.
    qsizetype position = 0;
    for (const QChar character : removed) {
        position = name.indexOf(character, position) + 1;
        FUZZ_VERIFY(position > 0, removed);
    }
    // A bound: every place between characters may match, and every capture be the whole name.
    FUZZ_VERIFY(result.size() <= (name.size() + 1) * (with.size() * (name.size() + 1) + 1), result);
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool isPattern = input.flag();
    const QString what = input.line();
    const ReplaceParameters parameters(what, input.line(), isPattern);
    // The time of a pattern grows with the square of the name's length, and sanitizers take their share.
    const QString name = input.line().left(parameters.regExp ? 32 : 1000);
    const Parameters rule = parameters;
    const QString result = transformed(rule, name, 0);
    if (parameters.regExp)
        verifyPattern(parameters.pattern, name, parameters.replaceWith, result);
    else
        verifyLiteral(name, parameters, result);
    FUZZ_VERIFY(description(rule).contains(parameters.replaceWith), description(rule));
    return 0;
}
