// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/rulechain.h"

#include <QObject>

#include <memory>
#include <vector>

/// What is kept beside the record of a rule, which is never edited.
struct RuleNote
{
    bool isOn = true;
    /// Of the rule set that it came from; null where there is none.
    QString comment;
};

struct ActiveRule
{
    std::unique_ptr<RuleData> record;
    RuleNote note;
};

/// Changes the window's chain: what is kept beside a record goes where the record goes. Each change is told
/// once.
class ActiveRules final : public QObject
{
    Q_OBJECT

public:
    /// The list, which owns its records, is changed here alone.
    explicit ActiveRules(QList<RuleData *> &ofRecords)
        : records(ofRecords)
    {
    }
    Q_DISABLE_COPY_MOVE(ActiveRules)

    [[nodiscard]] int count() const { return static_cast<int>(records.size()); }
    [[nodiscard]] const RuleData &record(int row) const { return *records.at(row); }
    [[nodiscard]] const RuleNote &note(int row) const { return notes.at(row); }
    /// The row of a record, or -1.
    [[nodiscard]] int rowOf(const RuleData *record) const;
    /// The rules that are on.
    [[nodiscard]] const RuleSteps &steps() const { return onSteps; }
    /// Those of them above a row.
    [[nodiscard]] RuleSteps stepsAbove(int row) const;

    void insert(int row, ActiveRule rule);
    void append(std::vector<ActiveRule> rules);
    /// Other parameters in its place; what is kept beside it stays.
    void replace(int row, std::unique_ptr<RuleData> record);
    void replaceAll(std::vector<ActiveRule> rules);
    /// Between the others so that it has the row "to" then.
    void move(int from, int to);
    void remove(int row);
    void clear();
    void setOn(int row, bool isOn);

signals:
    /// Other rules, or in another order.
    void changed();
    /// A rule was switched on or off.
    void switched(int row);

private:
    void add(std::vector<ActiveRule> rules);
    void finish();

    QList<RuleData *> &records;
    QList<RuleNote> notes;
    RuleSteps onSteps;
};
