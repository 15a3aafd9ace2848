// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/ruleswitches.h"

#include "mainwindow/activerules.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTreeWidget>

namespace {

void setOn(QTreeWidgetItem *item, bool isOn)
{
    item->setCheckState(0, isOn ? Qt::Checked : Qt::Unchecked);
    const QVariant color = isOn ? QVariant() : QGuiApplication::palette().brush(QPalette::PlaceholderText);
    for (int column = 0; column < item->columnCount(); ++column)
        item->setData(column, Qt::ForegroundRole, color);
}

} // namespace

QTreeWidgetItem *createRuleItem(const RuleData &record, const RuleNote &note)
{
    auto *item = new QTreeWidgetItem({ruleName(&record), ruleDescription(&record)});
    // Dropped is between rows, not on one.
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    setOn(item, note.isOn);
    return item;
}

RuleSwitches::RuleSwitches(ActiveRules &ofRules, QTreeWidget *ofTree)
    : QObject(ofTree)
    , rules(ofRules)
    , tree(ofTree)
{
    connect(tree, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) {
        rules.setOn(tree->indexOfTopLevelItem(item), item->checkState(0) == Qt::Checked);
    });
    // The rows stay: the check box is still at work.
    connect(&rules, &ActiveRules::switched, this, &RuleSwitches::show);
}

void RuleSwitches::show(int row)
{
    setOn(tree->topLevelItem(row), rules.note(row).isOn);
}
