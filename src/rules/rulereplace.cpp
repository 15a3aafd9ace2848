// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulereplace.h"

#include "rules/patternhelp.h"
#include "rules/patternmark.h"
#include "ui_rulereplace.h"

#include <QCoreApplication>

RuleWidgetReplace::RuleWidgetReplace(QWidget *parent)
    : RuleWidget(parent)
{
    Ui::RuleWidgetReplace ui;
    ui.setupUi(this);
    lineEditReplaceWhat = ui.lineEditReplaceWhat;
    lineEditReplaceWith = ui.lineEditReplaceWith;
    toolButtonRegExp = ui.toolButtonRegExp;
    labelReplaceWhat = ui.labelReplaceWhat;
    labelReplaceWith = ui.labelReplaceWith;
    patternMark = new PatternMark(lineEditReplaceWhat, toolButtonRegExp);
}

void RuleWidgetReplace::retranslateUi()
{
    labelReplaceWhat->setText(QCoreApplication::translate("Rules", "Replace what"));
    labelReplaceWith->setText(QCoreApplication::translate("Rules", "Replace with"));
    toolButtonRegExp->setStatusTip(QCoreApplication::translate("Rules", "Regular Expression"));
    toolButtonRegExp->setAccessibleName(toolButtonRegExp->statusTip());
    toolButtonRegExp->setToolTip(patternToolTip(toolButtonRegExp->statusTip()));
    toolButtonRegExp->setAccessibleDescription(patternDescription());
    patternMark->refresh();
}

ReplaceParameters RuleWidgetReplace::parameters() const
{
    return {lineEditReplaceWhat->text(), lineEditReplaceWith->text(), toolButtonRegExp->isChecked()};
}
