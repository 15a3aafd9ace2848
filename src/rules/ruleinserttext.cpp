// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/ruleinserttext.h"

#include "rules/insertion.h"
#include "rules/ruledata.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

using namespace Qt::StringLiterals;

QString RuleInsertText::name() const
{
    return QCoreApplication::translate("Rules", "Insert Text");
}

RuleData *RuleInsertText::createData(const QWidget *editor) const
{
    const auto *widget = qobject_cast<const RuleWidgetInsertText *>(editor);
    if (!widget)
        return nullptr;
    return new RuleData{this,
                        InsertTextParameters{widget->lineEditText->text(), widget->spinBoxPosition->value(),
                                             widget->direction.isFromStart()}};
}

QString RuleInsertText::describe(const RuleData *data) const
{
    const auto &parameters = std::get<InsertTextParameters>(data->parameters);
    return u"'%1' / "_s.arg(parameters.text) + QCoreApplication::translate("Rules", "Position") + u' ' +
           QString::number(parameters.position) + " / "_L1 + directionName(parameters.fromStart);
}

QWidget *RuleInsertText::createEditor(QWidget *parent) const
{
    auto *editor = new RuleWidgetInsertText(parent);
    editor->retranslateUi();
    return editor;
}

QString RuleInsertText::apply(const RuleData *data, QString name, int /*fileIndex*/) const
{
    const auto &parameters = std::get<InsertTextParameters>(data->parameters);
    return insertedInto(std::move(name), parameters.text, parameters.position, parameters.fromStart);
}

RuleWidgetInsertText::RuleWidgetInsertText(QWidget *parent)
    : RuleWidget(parent)
    , lineEditText(new QLineEdit(this))
    , spinBoxPosition(createSpinBox(this, 0, 512))
    , direction(this)
    , labelText(new QLabel(this))
    , labelPosition(new QLabel(this))
{
    direction.createLabel(this);
    auto *layout = new QGridLayout(this);
    layout->addWidget(labelText, 0, 0);
    layout->addWidget(lineEditText, 0, 1);
    layout->addItem(new QSpacerItem(16, 16, QSizePolicy::Fixed, QSizePolicy::Minimum), 1, 0);
    layout->addWidget(labelPosition, 2, 0);
    layout->addWidget(spinBoxPosition, 2, 1);
    direction.addTo(layout, 3);
}

void RuleWidgetInsertText::retranslateUi()
{
    labelText->setText(QCoreApplication::translate("Rules", "Text"));
    labelPosition->setText(QCoreApplication::translate("Rules", "Position"));
    direction.retranslateUi();
}
