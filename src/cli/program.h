// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/exitcode.h"
#include "cli/shell.h"

#include <QStringList>

/// Does what the words behind the program's name ask for.
[[nodiscard]] ExitCode runProgram(const QStringList &words, const Shell &shell);
