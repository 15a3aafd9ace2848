// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/directionbox.h"
#include "rules/rule.h"
#include "rules/rulewidget.h"

/// Inserts a running number: the file's row plus a start number.
class RuleEnumerate final : public Rule
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] RuleData *createData(const QWidget *editor) const override;
    [[nodiscard]] QString describe(const RuleData *data) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent) const override;
    [[nodiscard]] QString apply(const RuleData *data, QString name, int fileIndex) const override;
};

class RuleWidgetEnumerate final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetEnumerate(QWidget *parent);
    void retranslateUi() override;

    QSpinBox *spinBoxStartNumber;
    QSpinBox *spinBoxLeadingZeros;
    QSpinBox *spinBoxPosition;
    DirectionBox direction;
    QLabel *labelStartNumber;
    QLabel *labelLeadingZeros;
    QLabel *labelPosition;
};
