// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Runs that rename all files or none, in words.

[[nodiscard]] QString allOrNothingText();
[[nodiscard]] QString allOrNothingTip();

/// What the run will come to when not every row can be renamed.
[[nodiscard]] QString refusedCountsText(int files, int stuck);

// Of the question after a cancel.
[[nodiscard]] QString cancelledQuestion(int renamed, int rows);
[[nodiscard]] QString putEverythingBackText();
[[nodiscard]] QString keepWhatIsDoneText();

// Of the report.
[[nodiscard]] QString keptWord();
[[nodiscard]] QString renameWhatCanBeText();
[[nodiscard]] QString notAllCanBeText();
[[nodiscard]] QString failedAndTakenBackText();
[[nodiscard]] QString cancelledAndTakenBackText();
[[nodiscard]] QString cannotGoBackText(qsizetype standing);
[[nodiscard]] QString needsJournalText();
[[nodiscard]] QString stillUnfinishedText();

/// A line of the log: what a file is called that should have its old name again.
[[nodiscard]] QString notPutBackText(const QString &oldName, const QString &nameNow);
