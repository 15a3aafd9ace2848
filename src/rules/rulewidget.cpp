// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulewidget.h"

#include <QEvent>

RuleWidget::RuleWidget(QWidget *parent)
    : QWidget(parent)
{
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
