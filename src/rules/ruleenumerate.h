// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/directionbox.h"
#include "rules/ruleofkind.h"
#include "rules/rulewidget.h"

class QSpinBox;

class RuleWidgetEnumerate final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetEnumerate(QWidget *parent);
    void retranslateUi() override;
    [[nodiscard]] EnumerateParameters parameters() const;

    QSpinBox *spinBoxStartNumber;
    QSpinBox *spinBoxLeadingZeros;
    QSpinBox *spinBoxPosition;
    DirectionBox direction;
    QLabel *labelStartNumber;
    QLabel *labelLeadingZeros;
    QLabel *labelPosition;
};

/// Inserts a running number: the file's row plus a start number.
class RuleEnumerate final : public RuleOfKind<Kind::Enumerate, RuleWidgetEnumerate>
{
};
