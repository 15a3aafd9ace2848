// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/rule.h"
#include "rules/rulewidget.h"

class PatternMark;
class QLabel;
class QLineEdit;
class QToolButton;

/// Replaces every occurrence of a text or pattern.
class RuleReplace final : public Rule
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] RuleData *createData(const QWidget *editor) const override;
    [[nodiscard]] QString describe(const RuleData *data) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent) const override;
    [[nodiscard]] QString apply(const RuleData *data, QString name, int fileIndex) const override;
};

class RuleWidgetReplace final : public RuleWidget
{
    Q_OBJECT

public:
    explicit RuleWidgetReplace(QWidget *parent);
    void retranslateUi() override;

    QLineEdit *lineEditReplaceWhat;
    QLineEdit *lineEditReplaceWith;
    QToolButton *toolButtonRegExp;
    QLabel *labelReplaceWhat;
    QLabel *labelReplaceWith;
    PatternMark *patternMark;
};
