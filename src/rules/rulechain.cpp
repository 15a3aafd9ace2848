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

template <typename RuleKind>
class Factory final : public RuleFactory
{
public:
    [[nodiscard]] Rule *create() const override { return new RuleKind; }
};

} // namespace

QList<RuleFactory *> createRuleFactories()
{
    return {new Factory<RuleReplace>, new Factory<RuleTrim>, new Factory<RuleChangeCase>,
            new Factory<RuleInsertText>, new Factory<RuleEnumerate>};
}

QString applyRuleChain(const RuleData *data, const QString &name, int fileIndex)
{
    return data->rule ? data->rule->apply(data, name, fileIndex) : QString();
}

QString applyRules(const RuleSteps &steps, const QString &name, int fileIndex)
{
    QString result = name;
    for (const RuleData &step : steps)
        result = applyRuleChain(&step, result, fileIndex);
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
