// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/chain.h"

#include "naming/transform.h"

QString newName(const Chain &chain, const QString &name, int row)
{
    QString result = name;
    for (const Step &step : chain) {
        if (step.isOn)
            result = transformed(step.parameters, result, row);
    }
    return result;
}
