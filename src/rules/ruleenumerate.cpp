// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruleenumerate.h"

#include "ui_ruleenumerate.h"

#include <QCoreApplication>

RuleWidgetEnumerate::RuleWidgetEnumerate(QWidget *parent)
    : RuleWidget(parent)
{
    Ui::RuleWidgetEnumerate ui;
    ui.setupUi(this);
    spinBoxStartNumber = ui.spinBoxStartNumber;
    spinBoxLeadingZeros = ui.spinBoxLeadingZeros;
    spinBoxPosition = ui.spinBoxPosition;
    direction = {ui.radioButtonStart, ui.radioButtonEnd, ui.labelDirection};
    labelStartNumber = ui.labelStartNumber;
    labelLeadingZeros = ui.labelLeadingZeros;
    labelPosition = ui.labelPosition;
    setRange(spinBoxStartNumber, startNumberRange);
    setRange(spinBoxLeadingZeros, leadingZerosRange);
    setRange(spinBoxPosition, positionRange);
}

void RuleWidgetEnumerate::retranslateUi()
{
    labelStartNumber->setText(QCoreApplication::translate("Rules", "Start Number"));
    labelLeadingZeros->setText(QCoreApplication::translate("Rules", "Leading Zeros"));
    labelPosition->setText(QCoreApplication::translate("Rules", "Position"));
    direction.retranslateUi();
}

EnumerateParameters RuleWidgetEnumerate::parameters() const
{
    return {spinBoxLeadingZeros->value(), spinBoxStartNumber->value(), spinBoxPosition->value(),
            direction.isFromStart()};
}
