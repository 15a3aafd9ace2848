// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/ruleset.h"

/// Rule sets that come with the program, with translated names.
[[nodiscard]] QList<RuleSet> exampleRuleSets();
