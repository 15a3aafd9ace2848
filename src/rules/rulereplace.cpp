// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulereplace.h"

#include "rules/patternmark.h"
#include "rules/ruledata.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

QString RuleReplace::name() const
{
    return QCoreApplication::translate("Rules", "Replace");
}

RuleData *RuleReplace::createData(const QWidget *editor) const
{
    const auto *widget = qobject_cast<const RuleWidgetReplace *>(editor);
    if (!widget)
        return nullptr;
    ReplaceParameters parameters{widget->lineEditReplaceWhat->text(), widget->lineEditReplaceWith->text(),
                                 widget->toolButtonRegExp->isChecked(), RegExp()};
    if (parameters.regExp)
        parameters.pattern = RegExp(parameters.replaceWhat);
    return new RuleData{this, std::move(parameters)};
}

QString RuleReplace::describe(const RuleData *data) const
{
    const auto &parameters = std::get<ReplaceParameters>(data->parameters);
    return u"'%1' - '%2'"_s.arg(parameters.replaceWhat, parameters.replaceWith);
}

QWidget *RuleReplace::createEditor(QWidget *parent) const
{
    auto *editor = new RuleWidgetReplace(parent);
    editor->retranslateUi();
    return editor;
}

QString RuleReplace::apply(const RuleData *data, QString name, int /*fileIndex*/) const
{
    const auto &parameters = std::get<ReplaceParameters>(data->parameters);
    if (parameters.regExp)
        return parameters.pattern.replacedIn(name, parameters.replaceWith);
    return name.replace(parameters.replaceWhat, parameters.replaceWith, Qt::CaseSensitive);
}

RuleWidgetReplace::RuleWidgetReplace(QWidget *parent)
    : RuleWidget(parent)
    , lineEditReplaceWhat(new QLineEdit(this))
    , lineEditReplaceWith(new QLineEdit(this))
    , toolButtonRegExp(new QToolButton(this))
    , labelReplaceWhat(new QLabel(this))
    , labelReplaceWith(new QLabel(this))
{
    toolButtonRegExp->setCheckable(true);
    toolButtonRegExp->setIcon(QIcon(u":/img/regexp.png"_s));
    toolButtonRegExp->setIconSize({20, 20});
    auto *layout = new QGridLayout(this);
    layout->addWidget(labelReplaceWhat, 1, 0);
    layout->addWidget(lineEditReplaceWhat, 1, 1);
    layout->addWidget(toolButtonRegExp, 1, 2);
    layout->addWidget(labelReplaceWith, 2, 0);
    layout->addWidget(lineEditReplaceWith, 2, 1);
    patternMark = new PatternMark(lineEditReplaceWhat, toolButtonRegExp);
}

void RuleWidgetReplace::retranslateUi()
{
    labelReplaceWhat->setText(QCoreApplication::translate("Rules", "Replace what"));
    labelReplaceWith->setText(QCoreApplication::translate("Rules", "Replace with"));
    toolButtonRegExp->setStatusTip(QCoreApplication::translate("Rules", "Regular Expression"));
    toolButtonRegExp->setAccessibleName(toolButtonRegExp->statusTip());
    patternMark->refresh();
}
