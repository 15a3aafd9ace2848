// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;
struct RuleData;

/// A kind of rule. Holds no data of its own: what one rule of the chain does is in its RuleData.
class Rule
{
public:
    Rule() = default;
    virtual ~Rule() = default;
    Q_DISABLE_COPY_MOVE(Rule)

    /// The kind's translated name.
    [[nodiscard]] virtual QString name() const = 0;
    /// A new record with the editor's current values, owned by the caller; null when editor is null.
    [[nodiscard]] virtual RuleData *createData(const QWidget *editor) const = 0;
    /// A translated one-line summary of a record of this kind.
    [[nodiscard]] virtual QString describe(const RuleData *data) const = 0;
    /// A new editor (a RuleWidget) with its texts set, owned by parent.
    [[nodiscard]] virtual QWidget *createEditor(QWidget *parent) const = 0;
    /// What a record of this kind makes of a name; fileIndex is the file's row in the list, from 0.
    [[nodiscard]] virtual QString apply(const RuleData *data, QString name, int fileIndex) const = 0;
};

/// Makes the one object of a kind at start-up.
class RuleFactory
{
public:
    RuleFactory() = default;
    virtual ~RuleFactory() = default;
    Q_DISABLE_COPY_MOVE(RuleFactory)

    /// A new Rule, owned by the caller.
    [[nodiscard]] virtual Rule *create() const = 0;
};
