// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/ruleoptions.h"

#include "cli/shellquote.h"
#include "naming/ruleset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Takes the values of one option apart; the first fault is told.
class RuleReader
{
public:
    RuleReader(const QString &ofOption, QString *error)
        : option(ofOption)
        , firstError(error)
    {
        firstError->clear();
    }

    [[nodiscard]] bool isGood() const { return firstError->isEmpty(); }

    void refuse(const QString &problem)
    {
        if (isGood())
            *firstError = "--"_L1 + option + ": "_L1 + problem;
    }

    [[nodiscard]] QString text(const QString &value)
    {
        if (value.size() > mostCharactersOfRuleText)
            refuse(u"the text has more than %1 characters"_s.arg(mostCharactersOfRuleText));
        if (!value.isValidUtf16())
            refuse(u"the text is no UTF-8"_s);
        return value;
    }

    [[nodiscard]] int number(const QString &value, const char *name, Range range)
    {
        const bool isDigits = !value.isEmpty() && std::all_of(value.begin(), value.end(), [](QChar digit) {
            return digit >= u'0' && digit <= u'9';
        });
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isDigits || !isNumber || number < range.least || number > range.most)
            refuse(u"%1 must be a whole number from %2 to %3"_s.arg(QLatin1StringView(name))
                       .arg(range.least)
                       .arg(range.most));
        return number;
    }

    /// Whether the word is the last of the parts; it is taken away then.
    static bool takeWord(QStringList &parts, QLatin1StringView word)
    {
        const bool isThere = !parts.isEmpty() && parts.constLast() == word;
        if (isThere)
            parts.removeLast();
        return isThere;
    }

    void expectParts(const QStringList &parts, qsizetype least, qsizetype most, const char *form)
    {
        if (parts.size() < least || parts.size() > most)
            refuse("must be "_L1 + QLatin1StringView(form));
    }

private:
    QString option;
    QString *firstError;
};

Parameters readReplace(const QStringList &values, RuleReader &reader)
{
    return ReplaceParameters(reader.text(values.at(0)), reader.text(values.at(1)), false);
}

Parameters readRegExp(const QStringList &values, RuleReader &reader)
{
    ReplaceParameters parameters(reader.text(values.at(0)), reader.text(values.at(1)), true);
    // In a shell nobody sees the mark that says so in the window.
    if (parameters.pattern.verdict() == RegExp::Verdict::Invalid)
        reader.refuse(u"PATTERN is no valid regular expression"_s);
    if (parameters.pattern.verdict() == RegExp::Verdict::TooSlow)
        reader.refuse(u"PATTERN would take too long"_s);
    return parameters;
}

Parameters readTrim(const QStringList &values, RuleReader &reader)
{
    QStringList parts = values.at(0).split(u',');
    const bool fromEnd = RuleReader::takeWord(parts, "end"_L1);
    reader.expectParts(parts, 2, 2, "POSITION,LENGTH[,end]");
    TrimParameters parameters;
    parameters.position = reader.number(parts.value(0), "POSITION", positionRange);
    parameters.length = reader.number(parts.value(1), "LENGTH", lengthRange);
    parameters.fromStart = !fromEnd;
    return parameters;
}

Parameters readCase(const QStringList &values, RuleReader &reader)
{
    QStringList parts = values.at(0).split(u',');
    ChangeCaseParameters parameters;
    parameters.ignoreExtension = !RuleReader::takeWord(parts, "all"_L1);
    const QString word = parts.join(u',');
    parameters.firstLetters = word == "title"_L1;
    parameters.upper = word == "upper"_L1;
    parameters.lower = word == "lower"_L1;
    if (!parameters.firstLetters && !parameters.upper && !parameters.lower)
        reader.refuse(u"must be lower, upper or title, which all may follow behind a comma"_s);
    return parameters;
}

Parameters readInsert(const QStringList &values, RuleReader &reader)
{
    const QString &value = values.at(0);
    const qsizetype at = value.lastIndexOf(u'@');
    QStringList parts = value.sliced(at + 1).split(u',');
    const bool fromEnd = RuleReader::takeWord(parts, "end"_L1);
    reader.expectParts(at < 0 ? QStringList() : parts, 1, 1, "TEXT@POSITION[,end]");
    InsertTextParameters parameters;
    parameters.text = reader.text(value.left(std::max<qsizetype>(at, 0)));
    parameters.position = reader.number(parts.value(0), "POSITION", positionRange);
    parameters.fromStart = !fromEnd;
    return parameters;
}

Parameters readNumber(const QStringList &values, RuleReader &reader)
{
    constexpr auto form = "START[,ZEROS[,POSITION[,end]]]";
    QStringList parts = values.at(0).split(u',');
    const bool fromEnd = RuleReader::takeWord(parts, "end"_L1);
    reader.expectParts(parts, fromEnd ? 3 : 1, 3, form);
    EnumerateParameters parameters;
    parameters.startNumber = reader.number(parts.value(0), "START", startNumberRange);
    if (parts.size() > 1)
        parameters.leadingZeros = reader.number(parts.at(1), "ZEROS", leadingZerosRange);
    if (parts.size() > 2)
        parameters.position = reader.number(parts.at(2), "POSITION", positionRange);
    parameters.fromStart = !fromEnd;
    return parameters;
}

struct Reading
{
    QLatin1StringView option;
    Parameters (*read)(const QStringList &values, RuleReader &reader);
};

constexpr std::array readings{
    Reading{"replace"_L1, readReplace}, Reading{"regexp"_L1, readRegExp}, Reading{"trim"_L1, readTrim},
    Reading{"case"_L1, readCase},       Reading{"insert"_L1, readInsert}, Reading{"number"_L1, readNumber},
};

/// The value of an option as one word.
QString optionWith(const char *option, const QString &value)
{
    return "--"_L1 + QLatin1StringView(option) + u' ' + shellQuoted(value);
}

QString placeOf(int position, bool fromStart)
{
    return QString::number(position) + (fromStart ? QString() : u",end"_s);
}

struct OptionWriter
{
    QString operator()(const ReplaceParameters &parameters) const
    {
        return optionWith(parameters.regExp ? "regexp" : "replace", parameters.replaceWhat) + u' ' +
               shellQuoted(parameters.replaceWith);
    }
    QString operator()(const TrimParameters &parameters) const
    {
        return optionWith("trim", QString::number(parameters.position) + u',' +
                                      placeOf(parameters.length, parameters.fromStart));
    }
    QString operator()(const ChangeCaseParameters &parameters) const
    {
        const QString word = parameters.firstLetters ? u"title"_s
                             : parameters.lower      ? u"lower"_s
                                                     : u"upper"_s;
        return optionWith("case", word + (parameters.ignoreExtension ? QString() : u",all"_s));
    }
    QString operator()(const InsertTextParameters &parameters) const
    {
        return optionWith("insert",
                          parameters.text + u'@' + placeOf(parameters.position, parameters.fromStart));
    }
    QString operator()(const EnumerateParameters &parameters) const
    {
        return optionWith("number", u"%1,%2,"_s.arg(parameters.startNumber).arg(parameters.leadingZeros) +
                                        placeOf(parameters.position, parameters.fromStart));
    }
};

} // namespace

std::optional<Chain> rulesOfOption(const QString &option, const QStringList &values, const SetFinder &findSet,
                                   QString *error)
{
    RuleReader reader(option, error);
    if (option == "set"_L1) {
        QString problem;
        auto chain = findSet(values.at(0), &problem);
        if (!chain)
            reader.refuse(problem);
        return chain;
    }
    const auto *reading = std::find_if(readings.begin(), readings.end(),
                                       [&](const Reading &one) { return option == one.option; });
    Q_ASSERT(reading != readings.end());
    const Parameters parameters = reading->read(values, reader);
    if (!reader.isGood())
        return std::nullopt;
    return Chain{{parameters, true}};
}

QString optionOf(const Parameters &parameters)
{
    return std::visit(OptionWriter(), parameters);
}
