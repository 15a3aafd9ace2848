// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

#include <QList>

/// A rule in its place, which may be switched off.
struct Step
{
    Parameters parameters;
    bool isOn = true;
};

/// Rules in the order of their application.
using Chain = QList<Step>;

/// What the steps that are on make of a name; row is the file's row in the list, from 0.
[[nodiscard]] QString newName(const Chain &chain, const QString &name, int row);
