// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/directionbox.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

DirectionBox::DirectionBox(QWidget *editor)
    : radioButtonStart(new QRadioButton(editor))
    , radioButtonEnd(new QRadioButton(editor))
{
    radioButtonStart->setChecked(true);
}

void DirectionBox::createLabel(QWidget *editor)
{
    labelDirection = new QLabel(editor);
}

void DirectionBox::addTo(QGridLayout *layout, int row) const
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(radioButtonStart);
    buttons->addWidget(radioButtonEnd);
    layout->addWidget(labelDirection, row, 0);
    layout->addLayout(buttons, row, 1);
}

void DirectionBox::retranslateUi() const
{
    radioButtonStart->setText(directionName(true));
    radioButtonEnd->setText(directionName(false));
    labelDirection->setText(QCoreApplication::translate("Rules", "Direction"));
}

bool DirectionBox::isFromStart() const
{
    return radioButtonStart->isChecked();
}

QString directionName(bool fromStart)
{
    return fromStart ? QCoreApplication::translate("Rules", "Start")
                     : QCoreApplication::translate("Rules", "End");
}

QSpinBox *createSpinBox(QWidget *editor, int minimum, int maximum)
{
    auto *spinBox = new QSpinBox(editor);
    spinBox->setRange(minimum, maximum);
    return spinBox;
}
