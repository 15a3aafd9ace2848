// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/ruleofkind.h"
#include "rules/rulewidget.h"

class PatternMark;
class QLabel;
class QLineEdit;
class QToolButton;

class RuleWidgetReplace final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetReplace(QWidget *parent);
    void retranslateUi() override;
    [[nodiscard]] ReplaceParameters parameters() const;

    QLineEdit *lineEditReplaceWhat;
    QLineEdit *lineEditReplaceWith;
    QToolButton *toolButtonRegExp;
    QLabel *labelReplaceWhat;
    QLabel *labelReplaceWith;

private:
    PatternMark *patternMark;
};

/// Replaces every occurrence of a text or pattern.
class RuleReplace final : public RuleOfKind<Kind::Replace, RuleWidgetReplace>
{
};
