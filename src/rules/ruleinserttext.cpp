// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruleinserttext.h"

#include "ui_ruleinserttext.h"

#include <QCoreApplication>

RuleWidgetInsertText::RuleWidgetInsertText(QWidget *parent)
    : RuleWidget(parent)
{
    Ui::RuleWidgetInsertText ui;
    ui.setupUi(this);
    lineEditText = ui.lineEditText;
    spinBoxPosition = ui.spinBoxPosition;
    direction = {ui.radioButtonStart, ui.radioButtonEnd, ui.labelDirection};
    labelText = ui.labelText;
    labelPosition = ui.labelPosition;
    setRange(spinBoxPosition, positionRange);
}

void RuleWidgetInsertText::retranslateUi()
{
    labelText->setText(QCoreApplication::translate("Rules", "Text"));
    labelPosition->setText(QCoreApplication::translate("Rules", "Position"));
    direction.retranslateUi();
}

InsertTextParameters RuleWidgetInsertText::parameters() const
{
    return {lineEditText->text(), spinBoxPosition->value(), direction.isFromStart()};
}
