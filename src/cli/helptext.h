// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/options.h"

#include <QString>

/// What --help prints.
[[nodiscard]] QString helpText();
[[nodiscard]] QString helpText(Command command);
