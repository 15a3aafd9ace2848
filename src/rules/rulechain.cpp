// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulechain.h"

#include "rules/rulechangecase.h"
#include "rules/ruledata.h"
#include "rules/ruleenumerate.h"
#include "rules/ruleinserttext.h"
#include "rules/rulereplace.h"
#include "rules/ruletrim.h"

namespace {

// More than any file system takes as a name. Two rules that put a long text between all characters would
// exhaust the memory otherwise.
constexpr qsizetype longestResult = 8192;

template <typename Kind>
class Factory final : public RuleFactory
{
public:
    [[nodiscard]] Rule *create() const override { return new Kind; }
};

} // namespace

QList<RuleFactory *> createRuleFactories()
{
    return {new Factory<RuleReplace>, new Factory<RuleTrim>, new Factory<RuleChangeCase>,
            new Factory<RuleInsertText>, new Factory<RuleEnumerate>};
}

QString applyRuleChain(const RuleData *data, const QString &name, int fileIndex)
{
    if (!data->rule)
        return {};
    QString result = data->rule->apply(data, name, fileIndex);
    result.truncate(longestResult);
    return result;
}

QString ruleName(const RuleData *data)
{
    return data->rule ? data->rule->name() : QString();
}

QString ruleDescription(const RuleData *data)
{
    return data->rule ? data->rule->describe(data) : QString();
}
