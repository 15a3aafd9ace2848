// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruletrim.h"

#include "rules/ruledata.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

using namespace Qt::StringLiterals;

QString RuleTrim::name() const
{
    return QCoreApplication::translate("Rules", "Trim");
}

RuleData *RuleTrim::createData(const QWidget *editor) const
{
    const auto *widget = qobject_cast<const RuleWidgetTrim *>(editor);
    if (!widget)
        return nullptr;
    return new RuleData{this, TrimParameters{widget->spinBoxPosition->value(), widget->spinBoxLength->value(),
                                             widget->direction.isFromStart()}};
}

QString RuleTrim::describe(const RuleData *data) const
{
    const auto &parameters = std::get<TrimParameters>(data->parameters);
    return u"%1 - %2 / "_s.arg(parameters.position).arg(parameters.length) +
           directionName(parameters.fromStart);
}

QWidget *RuleTrim::createEditor(QWidget *parent) const
{
    auto *editor = new RuleWidgetTrim(parent);
    editor->retranslateUi();
    return editor;
}

QString RuleTrim::apply(const RuleData *data, QString name, int /*fileIndex*/) const
{
    const auto &parameters = std::get<TrimParameters>(data->parameters);
    if (parameters.fromStart)
        return name.remove(parameters.position, parameters.length);
    // Deliberate: from the end the run always begins length characters before the end, and the position only
    // shortens it when the name is short. A start before the name counts from its end, as QString::remove has
    // it.
    const qsizetype size = name.size();
    return name.remove(size - parameters.length, size - parameters.position);
}

RuleWidgetTrim::RuleWidgetTrim(QWidget *parent)
    : RuleWidget(parent)
    , spinBoxPosition(createSpinBox(this, 0, 512))
    , spinBoxLength(createSpinBox(this, 1, 512))
    , direction(this)
    , labelPosition(new QLabel(this))
    , labelLength(new QLabel(this))
{
    direction.createLabel(this);
    auto *layout = new QGridLayout(this);
    layout->addWidget(labelPosition, 0, 0);
    layout->addWidget(spinBoxPosition, 0, 1);
    layout->addWidget(labelLength, 1, 0);
    layout->addWidget(spinBoxLength, 1, 1);
    direction.addTo(layout, 2);
    layout->addItem(new QSpacerItem(20, 20, QSizePolicy::Preferred, QSizePolicy::Expanding), 3, 0);
}

void RuleWidgetTrim::retranslateUi()
{
    labelPosition->setText(QCoreApplication::translate("Rules", "Position"));
    labelLength->setText(QCoreApplication::translate("Rules", "Length"));
    direction.retranslateUi();
}
