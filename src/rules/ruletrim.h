// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/directionbox.h"
#include "rules/ruleofkind.h"
#include "rules/rulewidget.h"

class QSpinBox;

class RuleWidgetTrim final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetTrim(QWidget *parent);
    void retranslateUi() override;
    [[nodiscard]] TrimParameters parameters() const;

    QSpinBox *spinBoxPosition;
    QSpinBox *spinBoxLength;
    DirectionBox direction;
    QLabel *labelPosition;
    QLabel *labelLength;
};

/// Removes a run of characters.
class RuleTrim final : public RuleOfKind<Kind::Trim, RuleWidgetTrim>
{
};
