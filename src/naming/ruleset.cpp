// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/ruleset.h"

#include "naming/kind.h"
#include "naming/rulesetfields.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr auto format = "orvanto-rules"_L1;
constexpr int version = 1;

Parameters readParameters(Kind kind, RuleSetFields &fields)
{
    const auto position = [&fields] {
        return fields.number("position"_L1, positionRange);
    };
    const auto fromStart = [&fields] {
        return fields.choice("from"_L1, {u"start"_s, u"end"_s}) == 0;
    };
    switch (kind) {
    case Kind::Replace: {
        const QString what = fields.text("what"_L1, mostCharactersOfRuleText);
        const QString with = fields.text("with"_L1, mostCharactersOfRuleText);
        return ReplaceParameters(what, with, fields.flag("regexp"_L1));
    }
    case Kind::Trim:
        return TrimParameters{position(), fields.number("length"_L1, lengthRange), fromStart()};
    case Kind::ChangeCase: {
        const int to = fields.choice("to"_L1, {u"lower"_s, u"upper"_s, u"title"_s});
        const bool keepsExtension = fields.choice("extension"_L1, {u"keep"_s, u"change"_s}) == 0;
        return ChangeCaseParameters{to == 2, to == 1, to == 0, keepsExtension};
    }
    case Kind::InsertText:
        return InsertTextParameters{fields.text("text"_L1, mostCharactersOfRuleText), position(),
                                    fromStart()};
    case Kind::Enumerate:
        break;
    }
    const int start = fields.number("start"_L1, startNumberRange);
    return EnumerateParameters{fields.number("zeros"_L1, leadingZerosRange), start, position(), fromStart()};
}

std::optional<SetRule> readRule(const QJsonValue &value, int number, RuleSetError *error)
{
    if (!value.isObject()) {
        *error = {number, {}, RuleSetFields::mustBeObject()};
        return std::nullopt;
    }
    RuleSetFields fields(value.toObject());
    QStringList ids;
    for (const Kind kind : allKinds)
        ids.append(kindId(kind));
    const int kind = fields.choice("kind"_L1, ids);
    SetRule rule;
    // Of an unknown kind no field is known.
    if (fields.isGood()) {
        rule.step.isOn = fields.flag("enabled"_L1, true);
        rule.step.parameters = readParameters(allKinds.at(static_cast<size_t>(kind)), fields);
        rule.comment = fields.comment();
        fields.expectNoMore();
    }
    if (fields.isGood())
        return rule;
    *error = fields.error();
    error->rule = number;
    return std::nullopt;
}

class RuleWriter
{
public:
    RuleWriter(JsonLines &toLines, const Step &step)
        : lines(toLines)
    {
        lines.add("kind"_L1, kindId(kindOf(step.parameters)));
        lines.add("enabled"_L1, step.isOn);
        std::visit(*this, step.parameters);
    }

    void operator()(const ReplaceParameters &parameters)
    {
        lines.add("what"_L1, parameters.replaceWhat);
        lines.add("with"_L1, parameters.replaceWith);
        lines.add("regexp"_L1, parameters.regExp);
    }
    void operator()(const TrimParameters &parameters)
    {
        addPosition(parameters.position);
        lines.add("length"_L1, parameters.length);
        addFrom(parameters.fromStart);
    }
    void operator()(const ChangeCaseParameters &parameters)
    {
        lines.add("to"_L1, parameters.firstLetters ? u"title"_s : parameters.lower ? u"lower"_s : u"upper"_s);
        lines.add("extension"_L1, parameters.ignoreExtension ? u"keep"_s : u"change"_s);
    }
    void operator()(const InsertTextParameters &parameters)
    {
        lines.add("text"_L1, parameters.text);
        addPosition(parameters.position);
        addFrom(parameters.fromStart);
    }
    void operator()(const EnumerateParameters &parameters)
    {
        lines.add("start"_L1, parameters.startNumber);
        lines.add("zeros"_L1, parameters.leadingZeros);
        addPosition(parameters.position);
        addFrom(parameters.fromStart);
    }

private:
    void addPosition(int position) { lines.add("position"_L1, position); }
    void addFrom(bool start) { lines.add("from"_L1, start ? u"start"_s : u"end"_s); }

    JsonLines &lines;
};

} // namespace

std::optional<RuleSet> ruleSetFromJson(const QByteArray &json, RuleSetError *error)
{
    *error = {};
    if (json.size() > mostBytesOfSet) {
        error->problem = RuleSetFields::tooLarge();
        return std::nullopt;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        error->problem =
            RuleSetFields::noJson(json.first(std::min<qsizetype>(parseError.offset, json.size())));
        return std::nullopt;
    }
    RuleSetFields fields(document.object());
    RuleSet set;
    if (fields.choice("format"_L1, {format}) == 0 && fields.isVersion("version"_L1, version)) {
        set.name = fields.name("name"_L1, mostCharactersOfSetName);
        set.comment = fields.comment();
        const QJsonArray rules = fields.list("rules"_L1, mostRulesOfSet);
        fields.expectNoMore();
        for (int i = 0; fields.isGood() && i < rules.size(); ++i) {
            const auto rule = readRule(rules.at(i), i + 1, error);
            if (!rule)
                return std::nullopt;
            set.rules.append(*rule);
        }
    }
    if (fields.isGood())
        return set;
    *error = fields.error();
    return std::nullopt;
}

std::optional<QByteArray> jsonOf(const RuleSet &set, RuleSetError *error)
{
    JsonLines lines;
    lines.add("format"_L1, QString(format));
    lines.add("version"_L1, version);
    lines.add("name"_L1, set.name);
    lines.addComment(set.comment);
    lines.beginList("rules"_L1);
    for (const SetRule &rule : set.rules) {
        lines.beginObject();
        const RuleWriter writer(lines, rule.step);
        lines.addComment(rule.comment);
        lines.endObject();
    }
    lines.endList();
    const QByteArray json = lines.finished();
    // What was written is read again: no file is left behind that nobody can load.
    if (!ruleSetFromJson(json, error))
        return std::nullopt;
    return json;
}
