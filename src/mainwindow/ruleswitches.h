// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActiveRules;
class QTreeWidget;
class QTreeWidgetItem;
struct RuleData;
struct RuleNote;

/// The row of a rule: its check box says whether the rule is on.
[[nodiscard]] QTreeWidgetItem *createRuleItem(const RuleData &record, const RuleNote &note);

/// Lets the check boxes of the rows switch the rules.
class RuleSwitches final : public QObject
{
    Q_OBJECT

public:
    RuleSwitches(ActiveRules &ofRules, QTreeWidget *ofTree);

private:
    void show(int row);

    ActiveRules &rules;
    QTreeWidget *tree;
};
