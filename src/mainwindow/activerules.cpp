// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/activerules.h"

#include <utility>

int ActiveRules::rowOf(const RuleData *record) const
{
    return static_cast<int>(records.indexOf(const_cast<RuleData *>(record)));
}

void ActiveRules::insert(int row, ActiveRule rule)
{
    records.insert(row, rule.record.release());
    notes.insert(row, rule.note);
    finish();
}

void ActiveRules::append(std::vector<ActiveRule> rules)
{
    add(std::move(rules));
    finish();
}

void ActiveRules::replace(int row, std::unique_ptr<RuleData> record)
{
    delete std::exchange(records[row], record.release());
    finish();
}

void ActiveRules::replaceAll(std::vector<ActiveRule> rules)
{
    qDeleteAll(records);
    records.clear();
    notes.clear();
    add(std::move(rules));
    finish();
}

void ActiveRules::move(int from, int to)
{
    records.move(from, to);
    notes.move(from, to);
    finish();
}

void ActiveRules::remove(int row)
{
    delete records.takeAt(row);
    notes.removeAt(row);
    finish();
}

void ActiveRules::clear()
{
    replaceAll({});
}

void ActiveRules::setOn(int row, bool isOn)
{
    if (notes.at(row).isOn == isOn)
        return;
    notes[row].isOn = isOn;
    findSteps();
    emit switched(row);
}

void ActiveRules::add(std::vector<ActiveRule> rules)
{
    for (ActiveRule &rule : rules) {
        records.append(rule.record.release());
        notes.append(rule.note);
    }
}

void ActiveRules::findSteps()
{
    onSteps.clear();
    for (int row = 0; row < count(); ++row) {
        if (note(row).isOn)
            onSteps.push_back(record(row));
    }
}

void ActiveRules::finish()
{
    findSteps();
    emit changed();
}
