// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulechangecase.h"

#include "ui_rulechangecase.h"

#include <QCoreApplication>

RuleWidgetChangeCase::RuleWidgetChangeCase(QWidget *parent)
    : RuleWidget(parent)
{
    Ui::RuleWidgetChangeCase ui;
    ui.setupUi(this);
    radioButtonFirstLetters = ui.radioButtonFirstLetters;
    radioButtonUpper = ui.radioButtonUpper;
    radioButtonLower = ui.radioButtonLower;
    checkBoxIgnoreExtension = ui.checkBoxIgnoreExtension;
}

void RuleWidgetChangeCase::retranslateUi()
{
    radioButtonFirstLetters->setText(
        QCoreApplication::translate("Rules", "Uppercase first letter of each word"));
    radioButtonUpper->setText(QCoreApplication::translate("Rules", "Uppercase letters"));
    radioButtonLower->setText(QCoreApplication::translate("Rules", "Lowercase letters"));
    checkBoxIgnoreExtension->setText(QCoreApplication::translate("Rules", "Ignore File Extension"));
}

ChangeCaseParameters RuleWidgetChangeCase::parameters() const
{
    return {radioButtonFirstLetters->isChecked(), radioButtonUpper->isChecked(),
            radioButtonLower->isChecked(), checkBoxIgnoreExtension->isChecked()};
}
