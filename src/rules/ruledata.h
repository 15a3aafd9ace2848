// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

class Rule;

/// The parameters of one rule in the chain. A plain value, whatever the kind: it is deleted as what it is.
/// Made by Rule::createData() and never edited afterwards.
struct RuleData
{
    /// The kind that made it and interprets it; not owned.
    const Rule *rule = nullptr;
    Parameters parameters;
};
