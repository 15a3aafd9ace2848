// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/describe.h"
#include "naming/kind.h"
#include "naming/transform.h"
#include "unit/support/brackettranslator.h"

#include <QTest>

/// What a rule makes of a name.
inline QString applied(const Parameters &parameters, const QString &name, int row = 0)
{
    return transformed(parameters, name, row);
}
