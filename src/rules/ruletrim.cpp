// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruletrim.h"

#include "ui_ruletrim.h"

#include <QCoreApplication>

RuleWidgetTrim::RuleWidgetTrim(QWidget *parent)
    : RuleWidget(parent)
{
    Ui::RuleWidgetTrim ui;
    ui.setupUi(this);
    spinBoxPosition = ui.spinBoxPosition;
    spinBoxLength = ui.spinBoxLength;
    direction = {ui.radioButtonStart, ui.radioButtonEnd, ui.labelDirection};
    labelPosition = ui.labelPosition;
    labelLength = ui.labelLength;
    // In a form, a spacer that grows in height is Minimum in width.
    ui.verticalSpacer->changeSize(20, 20, QSizePolicy::Preferred, QSizePolicy::Expanding);
    setRange(spinBoxPosition, positionRange);
    setRange(spinBoxLength, lengthRange);
}

void RuleWidgetTrim::retranslateUi()
{
    labelPosition->setText(QCoreApplication::translate("Rules", "Position"));
    labelLength->setText(QCoreApplication::translate("Rules", "Length"));
    direction.retranslateUi();
}

TrimParameters RuleWidgetTrim::parameters() const
{
    return {spinBoxPosition->value(), spinBoxLength->value(), direction.isFromStart()};
}
