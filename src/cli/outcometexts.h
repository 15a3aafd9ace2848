// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/plannedfiles.h"
#include "run/journalfolder.h"
#include "run/outcome.h"
#include "run/undorun.h"

/// Why a file keeps its name.
[[nodiscard]] QString reasonInWords(Fate reason);
/// The same of a row, where another one is in its way: that one's path, as it is printed.
[[nodiscard]] QString troubleInWords(const Outcome &outcome, const QString &blocker);

/// "1 file", "2 files", "100,000 files".
[[nodiscard]] QString filesInWords(qint64 count);
/// What a run would come to.
[[nodiscard]] QString planInWords(int files, const PlanCounts &counts);

/// Why a run cannot be taken back.
/// Why a run was not begun.
[[nodiscard]] QString noJournalInWords(const QString &error);
[[nodiscard]] QString refusalInWords(UndoRun::Refusal refusal);
/// By what scripts know the state of a run; never changed.
[[nodiscard]] QString idOf(const JournalInfo &run);
[[nodiscard]] QString stateInWords(const JournalInfo &run);
[[nodiscard]] QString timeInWords(const QDateTime &time);
