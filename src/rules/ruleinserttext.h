// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/directionbox.h"
#include "rules/ruleofkind.h"
#include "rules/rulewidget.h"

class QLineEdit;
class QSpinBox;

class RuleWidgetInsertText final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetInsertText(QWidget *parent);
    void retranslateUi() override;
    [[nodiscard]] InsertTextParameters parameters() const;

    QLineEdit *lineEditText;
    QSpinBox *spinBoxPosition;
    DirectionBox direction;
    QLabel *labelText;
    QLabel *labelPosition;
};

/// Inserts a fixed text at a position.
class RuleInsertText final : public RuleOfKind<Kind::InsertText, RuleWidgetInsertText>
{
};
