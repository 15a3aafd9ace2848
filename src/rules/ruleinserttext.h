// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/directionbox.h"
#include "rules/rule.h"
#include "rules/rulewidget.h"

class QLineEdit;

/// Inserts a fixed text at a position.
class RuleInsertText final : public Rule
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] RuleData *createData(const QWidget *editor) const override;
    [[nodiscard]] QString describe(const RuleData *data) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent) const override;
    [[nodiscard]] QString apply(const RuleData *data, QString name, int fileIndex) const override;
};

class RuleWidgetInsertText final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetInsertText(QWidget *parent);
    void retranslateUi() override;

    QLineEdit *lineEditText;
    QSpinBox *spinBoxPosition;
    DirectionBox direction;
    QLabel *labelText;
    QLabel *labelPosition;
};
