// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/commandline.h"
#include "cli/exitcode.h"
#include "cli/shell.h"

/// What each command does. What it needs of the command line is there and makes sense.
[[nodiscard]] ExitCode preview(const CommandLine &line, const Shell &shell);
[[nodiscard]] ExitCode apply(const CommandLine &line, const Shell &shell);
[[nodiscard]] ExitCode undo(const CommandLine &line, const Shell &shell);
[[nodiscard]] ExitCode history(const CommandLine &line, const Shell &shell);
[[nodiscard]] ExitCode sets(const CommandLine &line, const Shell &shell);

/// Where the runs' journals and the rule sets of a data directory are.
[[nodiscard]] QString journalFolderOf(const Shell &shell);
[[nodiscard]] QString ruleSetFolderOf(const Shell &shell);

/// The rules of a set: a saved one of that name, one that comes with the program, or a file.
[[nodiscard]] std::optional<Chain> findRuleSet(const QString &nameOrFile, const Shell &shell, QString *error);

/// Of a run that went through all files.
[[nodiscard]] ExitCode exitCodeOf(qint64 done, qint64 failed);
