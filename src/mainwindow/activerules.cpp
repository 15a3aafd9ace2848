// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/activerules.h"

#include <algorithm>
#include <utility>

int ActiveRules::rowOf(const RuleData *record) const
{
    const auto found = std::find(records.cbegin(), records.cend(), record);
    return found == records.cend() ? -1 : static_cast<int>(found - records.cbegin());
}

RuleSteps ActiveRules::stepsAbove(int row) const
{
    RuleSteps steps;
    for (int above = 0; above < row; ++above) {
        if (note(above).isOn)
            steps.push_back(record(above));
    }
    return steps;
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
    onSteps = stepsAbove(count());
    emit switched(row);
}

void ActiveRules::add(std::vector<ActiveRule> rules)
{
    for (ActiveRule &rule : rules) {
        records.append(rule.record.release());
        notes.append(rule.note);
    }
}

void ActiveRules::finish()
{
    onSteps = stepsAbove(count());
    emit changed();
}
