// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

#include <memory>

class QWidget;
class Rule;
struct RuleData;

/// Shows parameters in an editor of their kind; false where it is one of another kind.
bool showParameters(QWidget *editor, const Parameters &parameters);

/// The record that the kind makes of these parameters when they stand in its editor.
[[nodiscard]] std::unique_ptr<RuleData> createRecord(const Rule &rule, const Parameters &parameters);
