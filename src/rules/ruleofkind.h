// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/describe.h"
#include "naming/kind.h"
#include "naming/transform.h"
#include "rules/rule.h"
#include "rules/ruledata.h"

/// A kind of rule: of its own it has but its editor, which tells the parameters that it shows.
template <Kind kind, typename Editor>
class RuleOfKind : public Rule
{
public:
    [[nodiscard]] QString name() const override { return kindName(kind); }
    [[nodiscard]] RuleData *createData(const QWidget *editor) const override
    {
        const auto *ownEditor = qobject_cast<const Editor *>(editor);
        return ownEditor ? new RuleData{this, ownEditor->parameters()} : nullptr;
    }
    [[nodiscard]] QString describe(const RuleData *data) const override
    {
        return description(data->parameters);
    }
    [[nodiscard]] QWidget *createEditor(QWidget *parent) const override
    {
        auto *editor = new Editor(parent);
        editor->retranslateUi();
        return editor;
    }
    [[nodiscard]] QString apply(const RuleData *data, QString name, int fileIndex) const override
    {
        return transformed(data->parameters, name, fileIndex);
    }
};
