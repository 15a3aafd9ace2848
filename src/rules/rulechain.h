// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/ruledata.h"

#include <QList>
#include <QString>

#include <vector>

class RuleFactory;

/// Rules that are on, in the order of application.
using RuleSteps = std::vector<RuleData>;

/// One new factory of each kind, in the order of the catalogue: Replace, Trim, Change Case, Insert Text,
/// Enumerate. The caller owns them.
[[nodiscard]] QList<RuleFactory *> createRuleFactories();

/// What one rule of the chain makes of a name. A record without a rule makes it empty.
[[nodiscard]] QString applyRuleChain(const RuleData *data, const QString &name, int fileIndex);

/// What all of them make of a name: a run and a preview alike.
[[nodiscard]] QString applyRules(const RuleSteps &steps, const QString &name, int fileIndex);

/// The translated name of the record's kind; empty for a record without a rule.
[[nodiscard]] QString ruleName(const RuleData *data);
/// The translated summary of the record; empty for a record without a rule.
[[nodiscard]] QString ruleDescription(const RuleData *data);
