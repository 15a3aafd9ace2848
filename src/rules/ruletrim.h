// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/directionbox.h"
#include "rules/rule.h"
#include "rules/rulewidget.h"

/// Removes a run of characters.
class RuleTrim final : public Rule
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] RuleData *createData(const QWidget *editor) const override;
    [[nodiscard]] QString describe(const RuleData *data) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent) const override;
    [[nodiscard]] QString apply(const RuleData *data, QString name, int fileIndex) const override;
};

class RuleWidgetTrim final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetTrim(QWidget *parent);
    void retranslateUi() override;

    QSpinBox *spinBoxPosition;
    QSpinBox *spinBoxLength;
    DirectionBox direction;
    QLabel *labelPosition;
    QLabel *labelLength;
};
