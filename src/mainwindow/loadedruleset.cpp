// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/loadedruleset.h"

#include "mainwindow/activerules.h"
#include "naming/kind.h"
#include "rules/editing.h"

using namespace Qt::StringLiterals;

LoadedRuleSet::LoadedRuleSet(ActiveRules &ofRules, const QMap<int, Rule *> &ofKinds)
    : rules(ofRules)
    , kinds(ofKinds)
{
    connect(&rules, &ActiveRules::changed, this, &LoadedRuleSet::changed);
    connect(&rules, &ActiveRules::switched, this, &LoadedRuleSet::changed);
}

void LoadedRuleSet::load(const RuleSet &set, const QString &path, Kept kept)
{
    comment = set.comment;
    rules.replaceAll(rulesOf(set));
    becomeSaved(set.name, path);
    isKept = kept == Kept::Yes;
}

void LoadedRuleSet::append(const RuleSet &set)
{
    rules.append(rulesOf(set));
}

void LoadedRuleSet::becomeSaved(const QString &name, const QString &path)
{
    setName = name;
    filePath = path;
    loadedContent = content();
    isKept = true;
    emit changed();
}

void LoadedRuleSet::follow(const QString &name, const QString &path)
{
    setName = name;
    filePath = path;
    isKept = isKept && !path.isEmpty();
    emit changed();
}

bool LoadedRuleSet::isChanged() const
{
    return !setName.isEmpty() && content() != loadedContent;
}

bool LoadedRuleSet::isUnsaved() const
{
    return rules.count() > 0 && (!isKept || isChanged());
}

RuleSet LoadedRuleSet::activeAs(const QString &name) const
{
    RuleSet set{name, {}, comment};
    for (int row = 0; row < rules.count(); ++row)
        set.rules.append({{rules.record(row).parameters, rules.note(row).isOn}, rules.note(row).comment});
    return set;
}

std::vector<ActiveRule> LoadedRuleSet::rulesOf(const RuleSet &set) const
{
    std::vector<ActiveRule> result;
    for (const SetRule &rule : set.rules) {
        const Rule *kind = kinds.value(static_cast<int>(kindOf(rule.step.parameters)));
        result.push_back({createRecord(*kind, rule.step.parameters), {rule.step.isOn, rule.comment}});
    }
    return result;
}

/// What a file would hold of them; nothing where there is too much of it.
QByteArray LoadedRuleSet::content() const
{
    RuleSetError error;
    return jsonOf(activeAs(u"-"_s), &error).value_or(QByteArray());
}
