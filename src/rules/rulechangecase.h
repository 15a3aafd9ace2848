// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/rule.h"
#include "rules/rulewidget.h"

class QCheckBox;
class QRadioButton;

/// Changes the case of letters.
class RuleChangeCase final : public Rule
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] RuleData *createData(const QWidget *editor) const override;
    [[nodiscard]] QString describe(const RuleData *data) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent) const override;
    [[nodiscard]] QString apply(const RuleData *data, QString name, int fileIndex) const override;
};

class RuleWidgetChangeCase final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetChangeCase(QWidget *parent);
    void retranslateUi() override;

    QRadioButton *radioButtonFirstLetters;
    QRadioButton *radioButtonUpper;
    QRadioButton *radioButtonLower;
    QCheckBox *checkBoxIgnoreExtension;
};
