// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruleenumerate.h"

#include "rules/insertion.h"
#include "rules/ruledata.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

using namespace Qt::StringLiterals;

QString RuleEnumerate::name() const
{
    return QCoreApplication::translate("Rules", "Enumerate");
}

RuleData *RuleEnumerate::createData(const QWidget *editor) const
{
    const auto *widget = qobject_cast<const RuleWidgetEnumerate *>(editor);
    if (!widget)
        return nullptr;
    return new RuleData{
        this, EnumerateParameters{widget->spinBoxLeadingZeros->value(), widget->spinBoxStartNumber->value(),
                                  widget->spinBoxPosition->value(), widget->direction.isFromStart()}};
}

QString RuleEnumerate::describe(const RuleData *data) const
{
    const auto &parameters = std::get<EnumerateParameters>(data->parameters);
    return QCoreApplication::translate("Rules", "Start Number") + u" %1 / "_s.arg(parameters.startNumber) +
           QCoreApplication::translate("Rules", "Position") + u" %1 / "_s.arg(parameters.position) +
           directionName(parameters.fromStart);
}

QWidget *RuleEnumerate::createEditor(QWidget *parent) const
{
    auto *editor = new RuleWidgetEnumerate(parent);
    editor->retranslateUi();
    return editor;
}

QString RuleEnumerate::apply(const RuleData *data, QString name, int fileIndex) const
{
    const auto &parameters = std::get<EnumerateParameters>(data->parameters);
    const qint64 number = qint64{fileIndex} + parameters.startNumber;
    const QString text = u"%1"_s.arg(number, parameters.leadingZeros + 1, 10, QChar(u'0'));
    return insertedInto(std::move(name), text, parameters.position, parameters.fromStart);
}

RuleWidgetEnumerate::RuleWidgetEnumerate(QWidget *parent)
    : RuleWidget(parent)
    , spinBoxStartNumber(createSpinBox(this, 0, 512))
    , spinBoxLeadingZeros(createSpinBox(this, 0, 9))
    , spinBoxPosition(createSpinBox(this, 0, 512))
    , direction(this)
    , labelStartNumber(new QLabel(this))
    , labelLeadingZeros(new QLabel(this))
    , labelPosition(new QLabel(this))
{
    direction.createLabel(this);
    auto *layout = new QGridLayout(this);
    layout->addWidget(labelStartNumber, 0, 0);
    layout->addWidget(spinBoxStartNumber, 0, 1);
    layout->addWidget(labelLeadingZeros, 1, 0);
    layout->addWidget(spinBoxLeadingZeros, 1, 1);
    layout->addItem(new QSpacerItem(16, 16, QSizePolicy::Fixed, QSizePolicy::Minimum), 2, 0);
    layout->addWidget(labelPosition, 3, 0);
    layout->addWidget(spinBoxPosition, 3, 1);
    direction.addTo(layout, 4);
}

void RuleWidgetEnumerate::retranslateUi()
{
    labelStartNumber->setText(QCoreApplication::translate("Rules", "Start Number"));
    labelLeadingZeros->setText(QCoreApplication::translate("Rules", "Leading Zeros"));
    labelPosition->setText(QCoreApplication::translate("Rules", "Position"));
    direction.retranslateUi();
}
