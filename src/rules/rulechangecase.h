// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/ruleofkind.h"
#include "rules/rulewidget.h"

class QCheckBox;
class QRadioButton;

class RuleWidgetChangeCase final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetChangeCase(QWidget *parent);
    void retranslateUi() override;
    [[nodiscard]] ChangeCaseParameters parameters() const;

    QRadioButton *radioButtonFirstLetters;
    QRadioButton *radioButtonUpper;
    QRadioButton *radioButtonLower;
    QCheckBox *checkBoxIgnoreExtension;
};

/// Changes the case of letters.
class RuleChangeCase final : public RuleOfKind<Kind::ChangeCase, RuleWidgetChangeCase>
{
};
