// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "naming/describe.h"
#include "naming/transform.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString extensionOf(const QString &name)
{
    const QString fileName = name.mid(name.lastIndexOf(u'/') + 1);
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot < 0 ? QString() : fileName.mid(dot + 1);
}

/// Character by character, and half a character as it is.
template <typename Convert>
QString converted(const QString &text, const Convert &convert)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        QString character = text.at(i);
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            character += text.at(++i);
        result += character.isValidUtf16() ? convert(character) : character;
    }
    return result;
}

/// Whether result is what the choice makes of the text. Capitals at the beginning of words are checked only
/// for being the same letters.
bool isCaseOf(const QString &result, const QString &text, int choice)
{
    if (choice == 1)
        return result == converted(text, [](const QString &part) { return part.toUpper(); });
    if (choice == 2)
        return result == converted(text, [](const QString &part) { return part.toLower(); });
    if (choice == 3)
        return result.isEmpty();
    return std::equal(result.begin(), result.end(), text.begin(), text.end(),
                      [](QChar a, QChar b) { return a == b || a == b.toUpper(); });
}

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
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
    ChangeCaseParameters parameters;
    const int choice = input.number(0, 3); // the last: no choice, which no editor gives
    parameters.firstLetters = choice == 0;
    parameters.upper = choice == 1;
    parameters.lower = choice == 2;
    parameters.ignoreExtension = input.flag();
    // What file systems take; the time of a pattern grows with the square.
    const QString name = input.line().left(64);
    const Parameters rule = parameters;
    const QString result = transformed(rule, name, 0);
    const QString extension = extensionOf(name);
    if (!parameters.ignoreExtension) {
        FUZZ_VERIFY(isCaseOf(result, name, choice), result);
        return 0;
    }
    FUZZ_VERIFY(result.endsWith(u'.' + extension), result);
    const QString body = result.chopped(extension.size() + 1);
    if (isPlain(extension)) {
        const QString kept = name.chopped(std::min(name.size(), extension.size() + 1));
        FUZZ_VERIFY(isCaseOf(body, kept, choice), result);
    } else {
        // As a pattern the extension may take any part of the name away. No letter has more than three
        // capitals.
        FUZZ_VERIFY(body.size() <= 3 * name.size(), result);
    }
    FUZZ_VERIFY(!description(rule).isEmpty(), name);
    return 0;
}
