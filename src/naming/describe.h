// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

/// The translated one-line summary of a rule.
[[nodiscard]] QString description(const Parameters &parameters);

/// The translated word for a direction.
[[nodiscard]] QString directionName(bool fromStart);
