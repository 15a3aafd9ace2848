// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "mainwindow/activerules.h"
#include "mainwindow/commandids.h"
#include "mainwindow/ruleswitches.h"
#include "rules/rule.h"
#include "ui_mainwindow.h"

void MainWindow::fillRuleComboBox()
{
    refreshRuleTree();
    QComboBox *comboBox = ui->comboBoxRules;
    const int selectedKey = comboBox->currentIndex() < 0 ? -1 : comboBox->currentData().toInt();
    comboBox->clear();
    for (auto [key, rule] : ruleTypes.asKeyValueRange())
        comboBox->addItem(rule->name(), key);
    if (selectedKey >= 0)
        comboBox->setCurrentIndex(comboBox->findData(selectedKey));
    comboBox->model()->sort(0, Qt::AscendingOrder);
}

void MainWindow::on_comboBoxRules_currentIndexChanged(int index)
{
    ui->stackedWidgetRules->setCurrentIndex(ui->comboBoxRules->itemData(index).toInt());
}

void MainWindow::on_buttonAddRule_clicked()
{
    const QWidget *editor = ui->stackedWidgetRules->currentWidget();
    const Rule *rule = ruleTypes.value(ui->stackedWidgetRules->currentIndex());
    std::unique_ptr<RuleData> record(rule ? rule->createData(editor) : nullptr);
    if (!record)
        return;
    activeRules->insert(activeRules->count(), {std::move(record), {}});
    // Deliberate: adding shows the rows anew while Preview is up, too.
    if (!ui->buttonPreview->isChecked())
        on_buttonPreview_clicked();
}

void MainWindow::refreshRuleTree()
{
    QTreeWidget *tree = ui->treeWidgetRules;
    const int currentRow = tree->currentIndex().row();
    tree->clear();
    for (int row = 0; row < activeRules->count(); ++row)
        tree->addTopLevelItem(createRuleItem(activeRules->record(row), activeRules->note(row)));
    if (currentRow >= 0 && currentRow < tree->topLevelItemCount())
        tree->setCurrentItem(tree->topLevelItem(currentRow), 0);
}

void MainWindow::onClickedRuleList(int id)
{
    QTreeWidget *tree = ui->treeWidgetRules;
    int row = tree->currentIndex().row();
    switch (id) {
    case RemoveRule:
        if (row < 0)
            return;
        activeRules->remove(row);
        if (row >= 1)
            --row;
        break;
    case MoveRuleUp:
        if (row < 1)
            return;
        activeRules->move(row, row - 1);
        --row;
        break;
    case MoveRuleDown:
        if (row >= activeRules->count() - 1)
            return;
        if (row < 0)
            return;
        activeRules->move(row, row + 1);
        ++row;
        break;
    case ClearRules:
        activeRules->clear();
        break;
    default:
        return;
    }
    tree->setCurrentItem(tree->topLevelItem(row), 0);
}
