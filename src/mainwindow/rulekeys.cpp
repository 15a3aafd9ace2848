// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/rulekeys.h"

#include "mainwindow/activerules.h"
#include "mainwindow/commandids.h"
#include "mainwindow/mainwindow.h"
#include "rules/editing.h"

#include <QShortcut>
#include <QTreeWidget>

namespace {

void doubleRule(QTreeWidget *tree, ActiveRules &rules)
{
    const int row = tree->currentIndex().row();
    if (row < 0)
        return;
    const RuleData &record = rules.record(row);
    rules.insert(row + 1, {createRecord(*record.rule, record.parameters), rules.note(row)});
    tree->setCurrentItem(tree->topLevelItem(row + 1), 0);
}

} // namespace

void addRuleKeys(MainWindow *window, QTreeWidget *tree, ActiveRules &rules)
{
    const auto add = [tree](const QKeySequence &keys, const auto &action) {
        auto *shortcut = new QShortcut(keys, tree);
        shortcut->setContext(Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, tree, action);
    };
    add(Qt::ALT | Qt::Key_Up, [window] { window->onClickedRuleList(MoveRuleUp); });
    add(Qt::ALT | Qt::Key_Down, [window] { window->onClickedRuleList(MoveRuleDown); });
    add(Qt::CTRL | Qt::Key_D, [tree, &rules] { doubleRule(tree, rules); });
}
