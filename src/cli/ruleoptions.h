// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/chain.h"

#include <QStringList>

#include <functional>
#include <optional>

/// Finds the rules of a set by name or file; nothing, and why, where there is none.
using SetFinder = std::function<std::optional<Chain>(const QString &nameOrFile, QString *error)>;

/// The rules that an option stands for, by its name without dashes; nothing where its values are wrong: error
/// says how, naming the option.
[[nodiscard]] std::optional<Chain> rulesOfOption(const QString &option, const QStringList &values,
                                                 const SetFinder &findSet, QString *error);

/// The rule as an option with its values, which a shell can read; the opposite of rulesOfOption().
[[nodiscard]] QString optionOf(const Parameters &parameters);
