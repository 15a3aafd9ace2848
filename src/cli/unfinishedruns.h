// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/commandline.h"
#include "cli/exitcode.h"
#include "cli/shell.h"
#include "run/journalfolder.h"

/// How to go on with a planned run that was interrupted; the name is that of its journal.
[[nodiscard]] QString waysOnInWords(const QString &journal);
/// Says on standard error which planned runs wait for somebody to go on with them.
void tellUnfinishedRuns(const Shell &shell);

/// Renames what a planned run did not come to.
[[nodiscard]] ExitCode finishRun(const JournalInfo &run, const CommandLine &line, const Shell &shell);
/// Has an interrupted run be as it is.
[[nodiscard]] ExitCode leaveRun(const JournalInfo &run, const CommandLine &line, const Shell &shell);
