// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/journalfolder.h"

#include <QString>

// Runs and what their journals tell, in words.

/// When a run began, "11:27"; with its date where that is not today's.
[[nodiscard]] QString timeText(const QDateTime &time);

// Lines of the log.
[[nodiscard]] QString interruptedText(const JournalInfo &journal);
/// So many renames cannot be taken back; 0: all of the run.
[[nodiscard]] QString unrecordedText(qint64 renames);
