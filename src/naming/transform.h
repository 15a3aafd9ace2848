// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

/// What a rule makes of a name; row is the file's row in the list, from 0. One .cpp for each kind.
[[nodiscard]] QString transformed(const ReplaceParameters &parameters, QString name, int row);
[[nodiscard]] QString transformed(const TrimParameters &parameters, QString name, int row);
[[nodiscard]] QString transformed(const ChangeCaseParameters &parameters, QString name, int row);
[[nodiscard]] QString transformed(const InsertTextParameters &parameters, QString name, int row);
[[nodiscard]] QString transformed(const EnumerateParameters &parameters, QString name, int row);

/// The same for a rule of any kind; the first 8,192 characters at most: no name is that long.
[[nodiscard]] QString transformed(const Parameters &parameters, const QString &name, int row);
