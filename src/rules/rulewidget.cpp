// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulewidget.h"

#include <QEvent>
#include <QSpinBox>

RuleWidget::RuleWidget(QWidget *parent)
    : QWidget(parent)
{
}

void RuleWidget::setRange(QSpinBox *spinBox, Range range)
{
    spinBox->setRange(range.least, range.most);
}

void RuleWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        event->accept();
        return;
    }
    QWidget::changeEvent(event);
}
