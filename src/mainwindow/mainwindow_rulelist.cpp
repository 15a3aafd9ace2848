// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/mainwindow.h"

#include "mainwindow/commandids.h"
#include "rules/rule.h"
#include "rules/rulechain.h"
#include "rules/ruledata.h"
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
    RuleData *record = rule ? rule->createData(editor) : nullptr;
    if (!record)
        return;
    ruleList.append(record);
    refreshRuleTree();
    on_buttonPreview_clicked();
}

void MainWindow::refreshRuleTree()
{
    QTreeWidget *tree = ui->treeWidgetRules;
    const int currentRow = tree->currentIndex().row();
    tree->clear();
    for (const RuleData *record : std::as_const(ruleList))
        tree->addTopLevelItem(new QTreeWidgetItem({ruleName(record), ruleDescription(record)}));
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
        delete ruleList.takeAt(row);
        if (row >= 1)
            --row;
        break;
    case MoveRuleUp:
        if (row < 1)
            return;
        ruleList.swapItemsAt(row, row - 1);
        --row;
        break;
    case MoveRuleDown:
        if (row >= ruleList.size() - 1)
            return;
        // With no current row the first rule would be swapped with one before it.
        if (row < 0)
            return;
        ruleList.swapItemsAt(row, row + 1);
        ++row;
        break;
    case ClearRules:
        qDeleteAll(ruleList);
        ruleList.clear();
        break;
    default:
        return;
    }
    tree->setCurrentItem(tree->topLevelItem(row), 0);
    refreshRuleTree();
    if (ui->buttonPreview->isChecked())
        on_buttonPreview_clicked();
}
