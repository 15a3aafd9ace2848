// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/directionbox.h"

#include "naming/describe.h"

#include <QCoreApplication>
#include <QLabel>
#include <QRadioButton>

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
