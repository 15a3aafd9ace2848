// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "run/undorun.h"

#include <QString>

// Runs and what their journals tell, in words.

/// When a run began, "11:27"; with its date where that is not today's.
[[nodiscard]] QString timeText(const QDateTime &time);

/// "/…/Photos", or "3 folders"
[[nodiscard]] QString placeText(const JournalInfo &journal);
/// What taking it back would do.
[[nodiscard]] QString takeBackText(const JournalInfo &journal);
/// Why a run cannot be taken back.
[[nodiscard]] QString refusalText(UndoRun::Refusal refusal);

// Of the menu.
[[nodiscard]] QString undoText();
[[nodiscard]] QString redoText();
[[nodiscard]] QString closeRunsText();

// Lines of the log.
[[nodiscard]] QString undoStartedText();
[[nodiscard]] QString notTakenBackText(const QString &name, const QString &reason);
[[nodiscard]] QString interruptedText(const JournalInfo &journal);
/// So many renames cannot be taken back; 0: all of the run.
[[nodiscard]] QString unrecordedText(qint64 renames);
